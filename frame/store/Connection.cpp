#include "frame/store/Connection.h"

#include "frame/store/Statement.h"
#include "frame/store/StoreProof.h"

#include <sqlite3.h>

#include <string>

namespace
{
constexpr int kBusyMilliseconds = 2000;

struct Closer {
    void operator()(sqlite3 *handle) const noexcept { sqlite3_close_v2(handle); }
};

void Configure(sqlite3 *handle)
{
    constexpr const char *kSettings
        = "PRAGMA foreign_keys = ON; PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA";
    // A name that is none must be an error, never a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    if (const int code = sqlite3_exec(handle, kSettings, nullptr, nullptr, nullptr); code != SQLITE_OK)
        RaiseOpenError(handle, code);
}
} // namespace

std::unique_ptr<Connection> gConnection;

Connection::~Connection()
{
    sqlite3_close_v2(mHandle);
}

void Connection::Open(const std::filesystem::path &file)
{
    if (IsOpen())
        throw RuntimeError(StoreError::WrongState, "The connection is open already.");
    ProveFile(file);
    sqlite3 *handle = nullptr;
    const std::u8string name = file.u8string();
    const int code = sqlite3_open_v2(reinterpret_cast<const char *>(name.c_str()), &handle,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    std::unique_ptr<sqlite3, Closer> opened(handle);
    if (code != SQLITE_OK)
        RaiseOpenError(handle, code);
    sqlite3_busy_timeout(handle, kBusyMilliseconds);
    ProveStore(handle);
    Configure(handle);
    mHandle = opened.release();
}

void Connection::Close()
{
    sqlite3_close_v2(Handle());
    mHandle = nullptr;
}

std::int64_t Connection::Execute(std::string_view sql)
{
    Statement statement(Handle(), sql);
    while (statement.Step()) { }
    return sqlite3_changes64(mHandle);
}

void Connection::ExecuteOnOneRow(std::string_view sql)
{
    if (Execute(sql) != 1)
        throw RuntimeError(StoreError::StatementFailed, "The row to be changed is not in the store any more.");
}

void Connection::BeginTrans()
{
    if (InTransaction())
        throw RuntimeError(StoreError::WrongState, "A transaction is open already.");
    // Takes the write lock at once, so that a key read inside as the highest plus 1 is still free when it is written.
    Execute("BEGIN IMMEDIATE");
}

void Connection::CommitTrans()
{
    if (!InTransaction())
        throw RuntimeError(StoreError::WrongState, "No transaction is open.");
    Execute("COMMIT");
}

void Connection::RollbackTrans()
{
    if (!InTransaction())
        throw RuntimeError(StoreError::WrongState, "No transaction is open.");
    Execute("ROLLBACK");
}

bool Connection::InTransaction() const noexcept
{
    return IsOpen() && sqlite3_get_autocommit(mHandle) == 0;
}

sqlite3 *Connection::Handle() const
{
    if (!IsOpen())
        throw RuntimeError(StoreError::WrongState, "The connection is closed.");
    return mHandle;
}
