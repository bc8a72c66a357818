#pragma once

#include "frame/store/Criterion.h"
#include "frame/store/Recordset.h"
#include "frame/store/RowTable.h"
#include "frame/store/Statement.h"

#include <optional>
#include <vector>

/// Where a write-through set writes.
struct WriteTarget {
    std::string table;
    std::size_t keyColumn = RowTable::kNone;
    std::vector<std::string> columns; ///< the table's name for each column of the set, empty for an expression
};

/// What an open Recordset holds.
struct Recordset::Rows {
    using Edit = RecordEdit;
    struct SortOrder {
        std::size_t column = 0;
        bool descending = false;
    };

    Rows(Statement &select, std::string_view statement, CursorType cursorType, LockType lockType);

    [[nodiscard]] std::int64_t Size() const noexcept { return static_cast<std::int64_t>(order.size()); }
    [[nodiscard]] bool IsUpdatable() const noexcept { return lock == LockType::BatchOptimistic || target.has_value(); }
    /// The table's row that is current; NoCurrentRow.
    [[nodiscard]] std::size_t CurrentRow() const;
    [[nodiscard]] Bookmark BookmarkOf(std::size_t row) const noexcept;
    /// Place in the order of the row that a bookmark or kBookmarkFirst names; NoCurrentRow where it is not in sight.
    [[nodiscard]] std::int64_t PlaceOf(Bookmark bookmark) const;
    /// Places before the first row or past the last one stand for the start and the end.
    void StandAt(std::int64_t newPlace) noexcept;

    void SetFilter(std::string_view criterion);
    void SetSort(std::string_view text);
    /// The criterion of a Find; the last one is kept, for walks ask with the same text again and again.
    [[nodiscard]] const Criterion &Understand(std::string_view criterion);
    /// Finds out anew which rows are in sight, and in which order, and stands at the first.
    void Arrange();

    void BeginEdit(Edit kind);
    void Update();
    void CancelUpdate();
    void Delete();

    std::string sql;
    CursorType cursor;
    LockType lock;
    std::optional<WriteTarget> target;
    RowTable table;
    std::int64_t generation; ///< part of the bookmarks, so that those of an earlier fetch name nothing

    std::vector<std::uint32_t> order; ///< the rows in sight
    std::int64_t place = 0; ///< of the current row in the order; -1 before the first
    bool gone = false; ///< the current row has been deleted; the one that followed it now has its place
    std::vector<bool> deleted; ///< by row, as far as rows have been deleted

    std::string filterText;
    std::optional<Criterion> filter;
    std::string sortText;
    std::optional<SortOrder> sort;
    std::string foundText;
    std::optional<Criterion> found;

    Edit edit = Edit::None; ///< of the current row
    std::vector<Cell> before; ///< the row being changed, as it was
    std::vector<bool> changed; ///< by column
    std::int64_t placeBefore = 0; ///< where the set stood before a row was added
    bool goneBefore = false;
};

/// The one table whose rows the statement gives and can be told by their whole-number key, if it is like that.
[[nodiscard]] std::optional<WriteTarget> FindWriteTarget(const Statement &select);

/// The open connection's handle; WrongState where there is none.
[[nodiscard]] sqlite3 *OpenHandle();
