#pragma once

#include "core/numeric/RuntimeError.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

/// Numbers of store failures beside ErrorNumber::StoreRefusal.
namespace StoreError
{
/// A statement failed: bad SQL, a constraint other than the two unique ones, a locked or full store.
inline constexpr std::int32_t StatementFailed = static_cast<std::int32_t>(0x80040E14U);
/// The file is an SQLite store, but not this program's, or one of a later version.
inline constexpr std::int32_t ForeignStore = static_cast<std::int32_t>(0x80040E21U);
/// The connection or recordset is closed, or open when it must not be.
inline constexpr std::int32_t WrongState = 3704;
/// There is no current row.
inline constexpr std::int32_t NoCurrentRow = 3021;
/// No column of that name.
inline constexpr std::int32_t NoSuchColumn = 3265;
/// A criterion, sort text or argument that the recordset does not understand.
inline constexpr std::int32_t BadArgument = 3001;
/// The rows cannot be changed (read-only set, or one that cannot be written back).
inline constexpr std::int32_t ReadOnly = 3251;
} // namespace StoreError

/// A text as a statement takes it, between single quotes. Nothing is doubled: StatementFailed where the text holds an
/// apostrophe, so that what a user types can never become a part of the statement.
[[nodiscard]] std::string Quoted(std::string_view text);

/// Identity of a store file, kept in its header.
inline constexpr std::int32_t kStoreApplicationId = 0x4B454C4D; // "KELM"
inline constexpr std::int32_t kStoreVersion = 1;

/// The one connection to the store. Everything runs on one thread.
class Connection
{
public:
    Connection() = default;
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Opens an existing store for reading and writing and proves at once that it is one.
    /// StoreRefusal (80004005): no such file, a folder, unreadable, empty, not a store, truncated or damaged, or held
    /// locked by another program. ForeignStore: another program's file, or a version that this program does not know.
    /// A write-protected store opens; writing to it fails.
    /// After a failure the connection is closed and can be opened again.
    void Open(const std::filesystem::path &file);
    /// Closes; an open transaction is abandoned. WrongState when it is not open.
    void Close();
    [[nodiscard]] bool IsOpen() const noexcept { return mHandle != nullptr; }

    /// Runs exactly one statement that returns no rows; anything after it but blanks and semicolons is
    /// refused before any of it runs. StoreRefusal: one of the two unique constraints (a survey with the same ship,
    /// voyage and port; a draft with the same date and time). StatementFailed: every other failure, with the store's
    /// own words.
    /// The number of rows that an INSERT, UPDATE or DELETE touched itself, cascades not counted.
    std::int64_t Execute(std::string_view sql);
    /// The same for a change of one row by its key: StatementFailed where it touches none, for what was to be saved is
    /// then not in the store.
    void ExecuteOnOneRow(std::string_view sql);

    /// One flat transaction. WrongState where one is open already, or none is.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    [[nodiscard]] bool InTransaction() const noexcept;

    /// The open handle, for Recordset. WrongState when closed.
    [[nodiscard]] sqlite3 *Handle() const;

private:
    sqlite3 *mHandle = nullptr;
};

/// The one open connection of the program. Made by the start-up, ended by the unload of the main window.
extern std::unique_ptr<Connection> gConnection;
