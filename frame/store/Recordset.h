#pragma once

#include "core/numeric/Value.h"
#include "frame/store/Connection.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class CursorType : std::uint8_t { Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType : std::uint8_t { ReadOnly = 1, Optimistic = 3, BatchOptimistic = 4 };

/// What is pending in a recordset until Update: nothing, a change of the current row, or a new row.
enum class RecordEdit : std::uint8_t { None, Change, Add };

/// Names a row of one recordset; valid until that set is closed, requeried or opened again.
using Bookmark = std::int64_t;

/// The rows of one SELECT, loaded at Open (client-side cursor).
///
/// Columns of whole numbers come as 32-bit integers (decimals where 32 bits do not hold the number, as in DateTime),
/// columns of real numbers as decimals of up to 15 significant digits, texts as text; column names are
/// case-insensitive. A value is converted when it is asked for, so a number out of a decimal's range raises overflow
/// (6) there and not before.
///
/// A keyset set with optimistic lock over one table writes AddNew, Update and Delete through to the store; a
/// batch-optimistic set keeps them in memory and Requery forgets them. Other sets are read-only, and so is a keyset set
/// whose rows cannot be told by the table's key (joins, the key not selected).
/// Moving, AddNew, Find and Requery while an edit is pending first try that edit's Update, whose error goes up.
class Recordset
{
public:
    struct Rows; ///< what an open set holds

    Recordset();
    ~Recordset();
    Recordset(Recordset &&other) noexcept;
    Recordset &operator=(Recordset &&other) noexcept;

    /// Where Find starts when it does not start at the current row.
    static constexpr Bookmark kBookmarkFirst = 1;
    static constexpr int kSearchForward = 1;

    /// Runs one SELECT through gConnection and stands at its first row. WrongState when the set is open already or
    /// there is no open connection; statement failures as Connection::Execute.
    void Open(std::string_view sql, CursorType cursor, LockType lock);
    /// WrongState when it is not open. A pending edit is dropped.
    void Close();
    [[nodiscard]] bool IsOpen() const noexcept { return mRows != nullptr; }
    /// It is open, and there is a row in sight.
    [[nodiscard]] bool HasRows() const noexcept;
    /// Open, in place of the rows that are there: what every list and lookup does. Where it fails the old rows stay.
    void Reopen(std::string_view sql, CursorType cursor, LockType lock);
    /// Fetches the rows again with the same statement; a Sort that was set stays in force, a Filter too.
    void Requery();

    /// Rows that the filter lets through, a row being added included.
    [[nodiscard]] std::int32_t RecordCount() const;
    /// Past the last row; true for an empty set.
    [[nodiscard]] bool AtEnd() const;
    /// Before the first row; true for an empty set.
    [[nodiscard]] bool AtStart() const;
    /// MoveFirst and MoveLast of an empty set do nothing. MoveNext at the end raises NoCurrentRow.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    /// `rows` forward (negative: back) from the current row, or from the row at `start`.
    void Move(std::int64_t rows, std::optional<Bookmark> start = std::nullopt);

    /// The value of a column in the current row, Null where the store has NULL. NoCurrentRow, NoSuchColumn.
    [[nodiscard]] Value Fields(std::string_view column) const;
    /// Puts a value into the current row and leaves the edit pending until Update. ReadOnly on read-only sets.
    void Fields(std::string_view column, const Value &value);

    /// Passes `skip` rows from the start, then scans forward for the first row that meets "Column op value" with op
    /// one of = <= >=; the set stands at its end where none does. The start is the current row, the first row
    /// (kBookmarkFirst), or the row that a bookmark names; from the end nothing is found. Numbers are compared exactly,
    /// as numbers, with a point as separator, a stored real number counting as its 15 significant digits; text stands
    /// between single quotes and is compared to the letter; Null meets nothing. BadArgument where the criterion is
    /// none.
    void Find(std::string_view criterion, std::int64_t skip = 0, int direction = kSearchForward,
              std::optional<Bookmark> start = std::nullopt);

    /// Find from the first row.
    void FindFirst(std::string_view criterion) { Find(criterion, 0, kSearchForward, kBookmarkFirst); }

    /// One row, for reading only.
    class Row
    {
    public:
        [[nodiscard]] Value Fields(std::string_view column) const;

    private:
        friend Recordset;
        Row(const Rows &rows, std::size_t row)
            : mRows(&rows)
            , mRow(row)
        {
        }
        const Rows *mRows;
        std::size_t mRow;
    };
    /// The rows in sight, in their order, until the set is closed, requeried or opened again. It stands where it stood.
    [[nodiscard]] std::vector<Row> EachRow() const;

    /// The current row's name; going to a bookmark of a row that is gone raises NoCurrentRow.
    [[nodiscard]] Bookmark CurrentBookmark() const;
    void GoTo(Bookmark bookmark);

    /// A new, empty row becomes the current one; CancelUpdate drops it, Update keeps it.
    void AddNew();
    void Update();
    void CancelUpdate();
    [[nodiscard]] RecordEdit EditMode() const;
    /// Removes the current row (1: this row only). It stays current, but gone, until the set moves: its fields raise
    /// NoCurrentRow, it counts no more, and MoveNext goes to the row that followed it (or the end).
    void Delete(int affected = 1);

    /// A criterion as in Find (only the rows that meet it stay in sight), or empty text for all rows. The set stands
    /// at the first row in sight afterwards. Text without quotes is taken to its end as it stands.
    void Filter(std::string_view criterion);
    /// "Column ASC" or "Column DESC"; empty text for the order of the statement. Equal rows keep that order.
    /// Text is ordered without regard to case. Stands at the first row afterwards.
    void Sort(std::string_view order);

private:
    [[nodiscard]] Rows &Opened() const; ///< WrongState
    [[nodiscard]] Rows &Updatable() const; ///< ReadOnly
    [[nodiscard]] Rows &Settled(); ///< with no edit pending any more

    std::unique_ptr<Rows> mRows;
};
