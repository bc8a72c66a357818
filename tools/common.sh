# The parts that ./run, ./test and ./bench share. Sourced from the root of the repository.

# One package a word; where systems name it differently, the names stand in order of preference with a bar between.
buildPackages=(g++ cmake ninja-build libboost-dev pkg-config\|pkgconf libsqlite3-dev qt6-base-dev libgl-dev
    qt6-svg-dev\|libqt6svg6-dev qt6-svg-plugins\|libqt6svg6 fonts-liberation)
benchPackages=(libbenchmark-dev)
testPackages=(libgtest-dev libgmock-dev "${benchPackages[@]}" clang-format-14\|clang-format poppler-utils sqlite3 git)

say()
{
    printf '== %s\n' "$*"
}

fail()
{
    printf '== %s\n' "$*" >&2
    exit 1
}

isInstalled()
{
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints those of the packages that have none of their names installed.
missingPackages()
{
    local package name
    for package in "$@"; do
        for name in ${package//|/ }; do
            isInstalled "$name" && continue 2
        done
        printf '%s\n' "$package"
    done
}

# Prints the first name of a package that this system's sources offer.
offeredName()
{
    local name
    for name in ${1//|/ }; do
        if [ -n "$(apt-cache show --no-all-versions "$name" 2>/dev/null)" ]; then
            printf '%s\n' "$name"
            return
        fi
    done
}

aptGet()
{
    local asRoot=()
    [ "$(id -u)" -eq 0 ] || asRoot=(sudo)
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

# Installs what is missing of the packages named. On a system without apt-get it says what is needed and goes on, unless
# not even the tools are there.
needPackages()
{
    local packages=("$@") missing=() names=() package name log
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "Not a Debian or Ubuntu system. Needed, under this system's own names: ${packages[*]}"
        for name in c++ cmake ninja; do
            command -v "$name" >/dev/null || fail "The tool $name is missing."
        done
        return 0
    fi
    mapfile -t missing < <(missingPackages "${packages[@]}")
    [ "${#missing[@]}" -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        fail "Packages are missing, and there is no sudo. As root, install: ${missing[*]}"
    fi
    log=$(mktemp)
    # Sources that are not Debian's own may be out of reach; only a package that cannot be had ends the run.
    aptGet update >"$log" 2>&1 || cat "$log" >&2
    for package in "${missing[@]}"; do
        name=$(offeredName "$package")
        [ -n "$name" ] || fail "This system's package sources do not offer: $package"
        names+=("$name")
    done
    say "Installing what is missing: ${names[*]}"
    if ! aptGet install -y --no-install-recommends "${names[@]}" >"$log" 2>&1; then
        cat "$log" >&2
        fail "Not installed: ${names[*]}"
    fi
    rm -f "$log"
}

# Configures a preset in silence and builds it.
buildPreset()
{
    local launcher log
    launcher=$(command -v ccache || true)
    log=$(mktemp)
    say "Configuring ($1)"
    if ! cmake --preset "$1" "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher" >"$log" 2>&1; then
        cat "$log" >&2
        fail "The configuration failed."
    fi
    rm -f "$log"
    say "Building ($1)"
    cmake --build --preset "$1"
}
