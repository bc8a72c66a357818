#include "frame/store/StoreProof.h"

#include "frame/store/Connection.h"

#include <sqlite3.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace
{
using Prepared = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;
using Header = std::array<unsigned char, 100>;

[[noreturn]] void Refuse(const std::string &why)
{
    throw RuntimeError(ErrorNumber::StoreRefusal, why);
}

void Run(sqlite3 *handle, const char *sql)
{
    if (const int code = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr); code != SQLITE_OK)
        RaiseOpenError(handle, code);
}

Prepared First(sqlite3 *handle, const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    int code = sqlite3_prepare_v2(handle, sql, -1, &statement, nullptr);
    Prepared owner(statement, sqlite3_finalize);
    if (code == SQLITE_OK)
        code = sqlite3_step(statement);
    if (code != SQLITE_ROW)
        RaiseOpenError(handle, code);
    return owner;
}

std::int64_t Ask(sqlite3 *handle, const char *sql)
{
    return sqlite3_column_int64(First(handle, sql).get(), 0);
}

/// Walks through the whole file: some milliseconds for thousands of surveys.
void ProvePages(sqlite3 *handle)
{
    const Prepared check = First(handle, "PRAGMA quick_check(1)");
    const std::string finding = reinterpret_cast<const char *>(sqlite3_column_text(check.get(), 0));
    if (finding != "ok")
        Refuse("The store file is damaged: " + finding);
}

std::uint32_t BigEndian(const Header &header, std::size_t at, std::size_t bytes)
{
    std::uint32_t number = 0;
    for (std::size_t i = at; i < at + bytes; ++i)
        number = number << 8U | header[i];
    return number;
}

/// SQLite itself takes a file that lost the end of its last page for whole.
void ProveLength(sqlite3 *handle)
{
    sqlite3_file *file = nullptr;
    Header header {};
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || file == nullptr
        || file->pMethods->xFileSize(file, &size) != SQLITE_OK
        || file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0) != SQLITE_OK)
        Refuse("The store file cannot be read.");
    const std::uint32_t written = BigEndian(header, 16, 2);
    const sqlite3_int64 pageSize = written == 1 ? 65536 : written;
    const bool countHolds = BigEndian(header, 24, 4) == BigEndian(header, 92, 4);
    if (countHolds && size < pageSize * BigEndian(header, 28, 4))
        Refuse("The store file is cut short.");
}
} // namespace

void RaiseOpenError(sqlite3 *handle, int code)
{
    if (code == SQLITE_NOMEM)
        throw RuntimeError(StoreError::StatementFailed, sqlite3_errmsg(handle));
    Refuse(sqlite3_errmsg(handle));
}

void ProveFile(const std::filesystem::path &file)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        Refuse("There is no store file at this place.");
    if (std::filesystem::file_size(file, error) == 0 || error)
        Refuse("The store file is empty.");
}

void ProveStore(sqlite3 *handle)
{
    // One read transaction, so that no other program changes the file between the looks at it.
    Run(handle, "BEGIN");
    const std::int64_t tables = Ask(handle,
                                    "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name IN ("
                                    "'Ship', 'HydrostaticDataTable', 'Port', 'DeductionMaster', "
                                    "'DraftParticulars', 'DraftDetails', 'DeductionTrans', 'TipOfDay')");
    ProveLength(handle);
    if (Ask(handle, "PRAGMA application_id") != kStoreApplicationId)
        throw RuntimeError(StoreError::ForeignStore, "The file is the store of another program.");
    if (const std::int64_t version = Ask(handle, "PRAGMA user_version"); version != kStoreVersion)
        throw RuntimeError(StoreError::ForeignStore, "The store has the version " + std::to_string(version) + ".");
    if (tables != 8)
        Refuse("The store has lost tables.");
    ProvePages(handle);
    Run(handle, "COMMIT");
}
