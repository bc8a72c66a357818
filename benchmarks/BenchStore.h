#pragma once

#include <filesystem>
#include <memory>
#include <string>

struct sqlite3;

/// A store of its own for one benchmark, open on gConnection and, for the yardstick, through the plain C interface.
/// Both are set as the program sets them.
class BenchStore
{
public:
    BenchStore();
    ~BenchStore();
    BenchStore(const BenchStore &) = delete;
    BenchStore &operator=(const BenchStore &) = delete;

    /// A statement through the C interface; ends the run where it fails.
    void Plain(const std::string &sql) const;
    [[nodiscard]] sqlite3 *Handle() const { return mPlain; }

    /// Ship `shipID` with a table of `rows` drafts, 1 cm apart from 2 m on.
    void AddShip(int shipID, int rows) const;
    /// A survey of a ship without drafts.
    void AddSurvey(int recordID, int shipID) const;

private:
    std::filesystem::path mFolder;
    sqlite3 *mPlain = nullptr;
};

/// Says what failed and ends the run.
[[noreturn]] void BenchFailure(const std::string &what);
