#pragma once

#include <memory>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/// One prepared statement of the store.
class Statement
{
public:
    /// Prepares exactly one statement. StatementFailed where it is none, has an error, or more follows it than blanks
    /// and semicolons, or it holds a comment.
    Statement(sqlite3 *handle, std::string_view sql);

    /// True with the next row at hand, false when the statement is done. Errors as Connection::Execute.
    bool Step();
    [[nodiscard]] sqlite3_stmt *Handle() const noexcept { return mStatement.get(); }

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *statement) const noexcept;
    };
    using Prepared = std::unique_ptr<sqlite3_stmt, Finalizer>;

    /// Prepares the first statement of `sql`, none where there is only white space, and takes it off the text.
    Prepared Prepare(std::string_view &sql);

    sqlite3 *mHandle;
    Prepared mStatement;
};

/// Raises what the store says about its last failure, under the number that the result code stands for.
[[noreturn]] void RaiseStoreError(sqlite3 *handle, int code);
