#include "frame/store/Statement.h"

#include "frame/store/Connection.h"

#include <sqlite3.h>

#include <climits>
#include <string>

void RaiseStoreError(sqlite3 *handle, int code)
{
    const bool duplicate = code == SQLITE_CONSTRAINT_UNIQUE;
    throw RuntimeError(duplicate ? ErrorNumber::StoreRefusal : StoreError::StatementFailed, sqlite3_errmsg(handle));
}

namespace
{
/// Whether a comment stands outside the quotes. None of the program's own statements has one: it can only come from a
/// text that was typed, and would hide the rest of the statement, its WHERE above all.
bool HasComment(std::string_view sql)
{
    char quote = 0;
    for (std::size_t i = 0; i < sql.size(); ++i) {
        const char c = sql[i];
        if (quote != 0) {
            if (c == quote)
                quote = 0;
        } else if (c == '\'' || c == '"' || c == '`') {
            quote = c;
        } else if (c == '[') {
            quote = ']';
        } else if (sql.substr(i, 2) == "--" || sql.substr(i, 2) == "/*") {
            return true;
        }
    }
    return false;
}
} // namespace

std::string Quoted(std::string_view text)
{
    if (text.find('\'') != std::string_view::npos)
        throw RuntimeError(StoreError::StatementFailed, "A text in a statement holds an apostrophe.");
    return std::string("'").append(text).append("'");
}

void Statement::Finalizer::operator()(sqlite3_stmt *statement) const noexcept
{
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3 *handle, std::string_view sql)
    : mHandle(handle)
{
    // SQLite would stop reading at a NUL and never see what follows it.
    if (sql.find('\0') != std::string_view::npos || sql.size() > INT_MAX)
        throw RuntimeError(StoreError::StatementFailed, "The statement holds a character that no statement may hold.");
    if (HasComment(sql))
        throw RuntimeError(StoreError::StatementFailed, "The statement holds a comment.");
    mStatement = Prepare(sql);
    if (mStatement == nullptr)
        throw RuntimeError(StoreError::StatementFailed, "There is no statement to run.");
    while (!sql.empty())
        if (Prepare(sql) != nullptr)
            throw RuntimeError(StoreError::StatementFailed, "Only one statement can be run at a time.");
}

Statement::Prepared Statement::Prepare(std::string_view &sql)
{
    sqlite3_stmt *statement = nullptr;
    const char *rest = nullptr;
    const int code = sqlite3_prepare_v2(mHandle, sql.data(), static_cast<int>(sql.size()), &statement, &rest);
    if (code != SQLITE_OK)
        RaiseStoreError(mHandle, code);
    sql.remove_prefix(static_cast<std::size_t>(rest - sql.data()));
    return Prepared(statement);
}

bool Statement::Step()
{
    const int code = sqlite3_step(mStatement.get());
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        RaiseStoreError(mHandle, code);
    return false;
}
