#include "frame/store/StoreMaker.h"

#include "frame/store/Connection.h"
#include "frame/store/Statement.h"
#include "frame/store/maker/SampleShips.h"
#include "frame/store/maker/StoreTexts.h"

#include <sqlite3.h>

#include <memory>
#include <random>
#include <string>

namespace
{
namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string &why)
{
    throw RuntimeError(StoreError::StatementFailed, why);
}

/// The first opening would play what another store left into the new one.
void RefuseLeftovers(const fs::path &file)
{
    for (const char *ending : {"-journal", "-wal"}) {
        fs::path rest = file;
        rest += ending;
        std::error_code error;
        if (fs::symlink_status(rest, error).type() != fs::file_type::not_found)
            Refuse(rest.string() + " belongs to a store that is gone. Put the store back, or move that file away.");
    }
}

void Run(sqlite3 *handle, const char *script)
{
    if (const int code = sqlite3_exec(handle, script, nullptr, nullptr, nullptr); code != SQLITE_OK)
        RaiseStoreError(handle, code);
}

void Fill(const fs::path &file, StoreContent content)
{
    sqlite3 *handle = nullptr;
    const std::u8string name = file.u8string();
    const int code = sqlite3_open_v2(reinterpret_cast<const char *>(name.c_str()), &handle,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXRESCODE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> owner(handle, sqlite3_close_v2);
    if (code != SQLITE_OK)
        RaiseStoreError(handle, code);
    // The file gets its name when it is whole, so it needs no journal beside it.
    Run(handle, "PRAGMA journal_mode = MEMORY; PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; BEGIN");
    Run(handle, kSchemaText);
    Run(handle, kInitialRowsText);
    if (content == StoreContent::Sample)
        WriteSample(handle);
    Run(handle, "COMMIT");
}

/// A file that goes away when the work on it does.
class Draft
{
public:
    explicit Draft(const fs::path &final)
        : mFile(final)
    {
        mFile += ".making-" + std::to_string(std::random_device()());
    }
    ~Draft()
    {
        std::error_code ignored;
        fs::remove(mFile, ignored);
    }
    Draft(const Draft &) = delete;
    Draft &operator=(const Draft &) = delete;

    [[nodiscard]] const fs::path &File() const noexcept { return mFile; }

    /// False where the name is taken.
    [[nodiscard]] bool TakeName(const fs::path &final) const
    {
        std::error_code error;
        fs::create_hard_link(mFile, final, error);
        if (!error)
            return true;
        if (fs::symlink_status(final, error).type() != fs::file_type::not_found)
            return false;
        // Not every file system has links.
        fs::rename(mFile, final, error);
        if (error)
            Refuse("The store cannot be given its name: " + error.message());
        return true;
    }

private:
    fs::path mFile;
};
} // namespace

bool MakeStore(const fs::path &file, StoreContent content)
{
    std::error_code error;
    const fs::file_type type = fs::symlink_status(file, error).type();
    if (type == fs::file_type::directory || type == fs::file_type::none)
        Refuse("No store can be made under that name.");
    if (type != fs::file_type::not_found)
        return false;
    RefuseLeftovers(file);
    const Draft draft(file);
    Fill(draft.File(), content);
    return draft.TakeName(file);
}
