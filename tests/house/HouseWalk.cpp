#include "tests/house/HouseWalk.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <optional>
#include <string_view>

namespace house
{
namespace
{

namespace fs = std::filesystem;

struct Room {
    std::string_view mFolder;
    int mFloor;
    std::string_view mTarget;
    bool mQt;
};

constexpr std::array Rooms {
    Room {"core/numeric", 1, "keelmark_numeric", false},
    Room {"frame/store", 2, "keelmark_store", false},
    Room {"core", 3, "keelmark_core", false},
    Room {"frame/platform", 4, "keelmark_platform", true},
    Room {"frame/controls", 4, "keelmark_platform", true},
    Room {"frame", 5, "keelmark_frame", true},
    Room {"reports", 6, "keelmark_reports", true},
    Room {"survey", 7, "keelmark_survey", true},
    Room {"survey_loading", 8, "keelmark_survey_loading", true},
    Room {"survey_discharging", 8, "keelmark_survey_discharging", true},
    Room {"masters", 8, "keelmark_masters", true},
    Room {"app", 9, "keelmark", true},
};

bool IsBelow(const std::string &file, std::string_view folder)
{
    return file.starts_with(folder) && file.size() > folder.size() && file[folder.size()] == '/';
}

// The innermost room that a path from the root lies in.
const Room *RoomOf(const std::string &file)
{
    const Room *found = nullptr;
    for (const Room &room : Rooms)
        if (IsBelow(file, room.mFolder) && (!found || room.mFolder.size() > found->mFolder.size()))
            found = &room;
    return found;
}

bool MayInclude(const Room &from, const Room &to)
{
    return to.mFloor < from.mFloor || to.mTarget == from.mTarget;
}

struct Include {
    bool mQuoted;
    std::string mName;
};

std::optional<Include> ReadInclude(std::string_view line)
{
    const auto skip = [&line](std::string_view word) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        const bool found = line.starts_with(word);
        line.remove_prefix(found ? word.size() : 0);
        return found;
    };
    if (!skip("#") || !skip("include"))
        return std::nullopt;
    const bool quoted = skip("\"");
    if (!quoted && !skip("<"))
        return std::nullopt;
    return Include {quoted, std::string(line.substr(0, line.find(quoted ? '"' : '>')))};
}

// Qt's own headers have names such as QLabel, QtCore/qglobal.h and qstring.h; its form compiler makes ui_ headers.
bool IsQtHeader(const std::string &path)
{
    const std::string name = path.substr(path.rfind('/') + 1);
    const bool capital = path.size() > 1 && path[0] == 'Q' && (std::isupper(path[1]) || path[1] == 't');
    return capital || (path.starts_with('q') && path.ends_with(".h")) || name.starts_with("ui_");
}

bool IsSource(const fs::path &path)
{
    return path.extension() == ".cpp" || path.extension() == ".h";
}

// The path from the root of what an include names; as for the compiler, the including file's own folder comes first.
std::string Resolved(const fs::path &root, const std::string &file, const Include &include)
{
    const fs::path beside = (fs::path(file).parent_path() / include.mName).lexically_normal();
    const fs::path chosen = include.mQuoted && fs::exists(root / beside) ? beside : fs::path(include.mName);
    return chosen.lexically_normal().generic_string();
}

void JudgeInclude(Walk &walk, const std::string &place, const Room &from, const std::string &resolved)
{
    if (!from.mQt && IsQtHeader(resolved))
        walk.mComplaints.push_back(place + " includes Qt: " + resolved);
    const Room *to = RoomOf(resolved);
    if (!to || to == &from)
        return;
    ++walk.mIncludesAcrossRooms;
    if (!MayInclude(from, *to))
        walk.mComplaints.push_back(place + " must not know " + resolved);
}

void ReadSource(Walk &walk, const fs::path &root, const std::string &file)
{
    const Room *room = RoomOf(file);
    if (room)
        walk.mRooms.emplace(room->mFolder);
    else if (!IsBelow(file, "tests") && !IsBelow(file, "benchmarks"))
        walk.mComplaints.push_back(file + " belongs to no room");
    ++walk.mSources;

    std::ifstream stream(root / file);
    std::string line;
    int lines = 0;
    for (; std::getline(stream, line); ++lines) {
        const std::optional<Include> include = ReadInclude(line);
        if (room && include)
            JudgeInclude(walk, file + ":" + std::to_string(lines + 1), *room, Resolved(root, file, *include));
    }
    if (lines > LinesAllowed)
        walk.mComplaints.push_back(file + " has " + std::to_string(lines) + " lines");
}

bool IsOutside(const fs::path &folder)
{
    return folder.filename().string().starts_with('.') || fs::exists(folder / "CMakeCache.txt");
}

} // namespace

Walk WalkHouse(const fs::path &root)
{
    Walk walk;
    for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
        if (entry->is_directory() && IsOutside(entry->path()))
            entry.disable_recursion_pending();
        else if (entry->is_regular_file() && IsSource(entry->path()))
            ReadSource(walk, root, entry->path().lexically_relative(root).generic_string());
    }
    for (const std::string &room : walk.mRooms)
        if (!fs::exists(root / room / "README.md"))
            walk.mComplaints.push_back(room + " has no README.md");
    return walk;
}

} // namespace house
