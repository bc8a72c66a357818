#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace house
{

inline constexpr int LinesAllowed = 600;

// What a walk through a source tree found.
struct Walk {
    std::vector<std::string> mComplaints;
    std::set<std::string> mRooms; // the room folders that hold sources
    int mSources = 0;
    int mIncludesAcrossRooms = 0;
};

// Reads every .cpp and .h file below the folder, hidden folders and build trees left out, and complains of each include
// of a higher or a neighbouring room, each Qt header where Qt is not wanted, each overlong file, each source that
// belongs to no room, and each room without a README.md.
Walk WalkHouse(const std::filesystem::path &root);

} // namespace house
