#!/usr/bin/env bash
# house.sh FOLDER names each breach of the house's rules below the folder; hidden folders and build trees are left out.
# house.sh --self-check proves on a house made for it that every breach is seen.
# A line of rooms.txt: the floor of a room, its folder, and the word Qt where the room may include Qt.
set -euo pipefail
rooms=$(realpath "$(dirname "${BASH_SOURCE[0]}")/rooms.txt")

breaches()
(
    cd "$1"
    find -- * -type d \( -name '.*' -o -exec test -e '{}/CMakeCache.txt' \; \) -prune \
        -o -type f \( -name '*.cpp' -o -name '*.h' \) -print0 | LC_ALL=C xargs -0 awk -v table="$rooms" '
        function roomOf(path) {
            while (sub(/\/[^\/]*$/, "", path))
                if (path in floor)
                    return path
        }
        BEGIN {
            for (; (getline <table) > 0; hasQt[$2] = $3 == "Qt")
                floor[$2] = $1
            for (i = 1; i < ARGC; ++i) {
                isSource[ARGV[i]] = isHeld[room = roomOf(ARGV[i])] = 1
                if (!room && ARGV[i] !~ /^(tests|benchmarks)\//)
                    print ARGV[i] " belongs to no room"
            }
            for (room in floor) {
                if (!isHeld[room])
                    print room " has no source"
                if ((getline line <(room "/README.md")) < 0)
                    print room " has no README.md"
            }
        }
        FNR == 1 { from = roomOf(FILENAME) }
        FNR == 401 && FILENAME !~ /^tests\// { print FILENAME " has over 400 lines" }
        from && /^[ \t]*#[ \t]*include[ \t]*["<]/ {
            split($0, parts, /["<>]/)
            to = roomOf(name = parts[2])
            # Qt has names such as QLabel, QtCore/qglobal.h and qstring.h; its form compiler makes ui_ headers.
            if (!hasQt[from] && name ~ /^(Q[A-Zt]|q.*\.h$|ui_)/)
                print FILENAME ":" FNR " includes Qt: " name
            if (/^[^<]*"/ && !isSource[name] && name !~ /^ui_/)
                print FILENAME ":" FNR " does not start from the root: " name
            if (to && to != from && floor[to] >= floor[from])
                print FILENAME ":" FNR " must not know " name
        }' | LC_ALL=C sort
)

if [ "$1" != --self-check ]; then
    found=$(breaches "$1")
    [ -z "$found" ] || { echo "$found"; exit 1; }
    exit
fi
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
while read -r _ room _; do
    install -D /dev/null "$made/$room/README.md"
    touch "$made/$room/Room.h"
done <"$rooms"
# A line has a file, the include in it, and what is to be said of it.
while IFS='|' read -r file line said; do
    install -D <(echo "$line") "$made/$file"
    [ -z "$said" ] || echo "$file$said"
done >"$made/said" <<'END'
attic/Old.cpp|| belongs to no room
build/CMakeCache.txt||
build/moc_Form.cpp||
core/.old/Draft.h|#include "app/Room.h"|
core/Above.cpp|  #  include <survey/Room.h> // above|:1 must not know survey/Room.h
core/Comment.h|// #include "app/Room.h"|
core/Form.h|#include "ui_frmOpen.h"|:1 includes Qt: ui_frmOpen.h
core/numeric/Inner.h|#include "core/Room.h"|:1 must not know core/Room.h
core/numeric/Part.h|#include <QtCore/qglobal.h>|:1 includes Qt: QtCore/qglobal.h
frame/controls/Neighbour.h|#include "frame/platform/Room.h"|:1 must not know frame/platform/Room.h
frame/store/Beside.h|#include "../platform/Room.h"|:1 does not start from the root: ../platform/Room.h
frame/store/Small.h|#include <qstring.h>|:1 includes Qt: qstring.h
END
rm "$made/app/Room.h" "$made/core/README.md"
printf '\n%.0s' {1..400} >"$made/masters/Long.cpp"
printf '\n%.0s' {1..601} >"$made/masters/Longer.cpp"
printf '%s\n' 'app has no source' 'core has no README.md' 'masters/Longer.cpp has over 400 lines' >>"$made/said"
diff <(LC_ALL=C sort "$made/said") <(breaches "$made")
