#include "frame/store/RecordsetRows.h"

#include <sqlite3.h>

#include <algorithm>

namespace
{
constexpr int kRowBits = 32;

std::int64_t NextGeneration()
{
    static std::int64_t generation = 0;
    return ++generation;
}

[[noreturn]] void RaiseNoCurrentRow()
{
    throw RuntimeError(StoreError::NoCurrentRow, "There is no current row.");
}

std::unique_ptr<Recordset::Rows> Fetch(std::string_view sql, CursorType cursor, LockType lock)
{
    Statement select(OpenHandle(), sql);
    if (sqlite3_column_count(select.Handle()) == 0 || sqlite3_stmt_readonly(select.Handle()) == 0)
        throw RuntimeError(StoreError::StatementFailed, "The statement gives no rows.");
    return std::make_unique<Recordset::Rows>(select, sql, cursor, lock);
}
} // namespace

sqlite3 *OpenHandle()
{
    if (gConnection == nullptr)
        throw RuntimeError(StoreError::WrongState, "There is no connection to the store.");
    return gConnection->Handle();
}

Recordset::Rows::Rows(Statement &select, std::string_view statement, CursorType cursorType, LockType lockType)
    : sql(statement)
    , cursor(cursorType)
    , lock(lockType)
    , target(cursor == CursorType::Keyset && lock == LockType::Optimistic ? FindWriteTarget(select) : std::nullopt)
    , table(select)
    , generation(NextGeneration())
{
    Arrange();
}

std::size_t Recordset::Rows::CurrentRow() const
{
    if (gone || place < 0 || place >= Size())
        RaiseNoCurrentRow();
    return order[static_cast<std::size_t>(place)];
}

Bookmark Recordset::Rows::BookmarkOf(std::size_t row) const noexcept
{
    return generation << kRowBits | static_cast<std::int64_t>(row);
}

std::int64_t Recordset::Rows::PlaceOf(Bookmark bookmark) const
{
    if (bookmark == kBookmarkFirst)
        return 0;
    if (bookmark >> kRowBits != generation)
        RaiseNoCurrentRow();
    const auto row = static_cast<std::uint32_t>(bookmark);
    // Without filter, sort and deletions every row has its own number as place.
    if (row < order.size() && order[row] == row)
        return row;
    const auto at = std::find(order.begin(), order.end(), row);
    if (at == order.end())
        RaiseNoCurrentRow();
    return at - order.begin();
}

void Recordset::Rows::StandAt(std::int64_t newPlace) noexcept
{
    place = std::clamp<std::int64_t>(newPlace, -1, Size());
    gone = false;
}

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset &&other) noexcept = default;
Recordset &Recordset::operator=(Recordset &&other) noexcept = default;

Recordset::Rows &Recordset::Opened() const
{
    if (mRows == nullptr)
        throw RuntimeError(StoreError::WrongState, "The recordset is closed.");
    return *mRows;
}

Recordset::Rows &Recordset::Settled()
{
    Rows &rows = Opened();
    rows.Update();
    return rows;
}

void Recordset::Open(std::string_view sql, CursorType cursor, LockType lock)
{
    if (mRows != nullptr)
        throw RuntimeError(StoreError::WrongState, "The recordset is open already.");
    mRows = Fetch(sql, cursor, lock);
}

void Recordset::Close()
{
    [[maybe_unused]] const Rows &rows = Opened();
    mRows.reset();
}

bool Recordset::HasRows() const noexcept
{
    return IsOpen() && mRows->Size() > 0;
}

void Recordset::Reopen(std::string_view sql, CursorType cursor, LockType lock)
{
    // Fetched first: a set whose new rows cannot be had keeps the old ones.
    mRows = Fetch(sql, cursor, lock);
}

void Recordset::Requery()
{
    const Rows &rows = Settled();
    std::unique_ptr<Rows> fresh = Fetch(rows.sql, rows.cursor, rows.lock);
    fresh->SetFilter(rows.filterText);
    fresh->SetSort(rows.sortText);
    mRows = std::move(fresh);
}

std::int32_t Recordset::RecordCount() const
{
    return static_cast<std::int32_t>(Opened().Size());
}

bool Recordset::AtEnd() const
{
    const Rows &rows = Opened();
    return !rows.gone && rows.place >= rows.Size();
}

bool Recordset::AtStart() const
{
    const Rows &rows = Opened();
    return !rows.gone && (rows.place < 0 || rows.Size() == 0);
}

void Recordset::MoveFirst()
{
    Settled().StandAt(0);
}

void Recordset::MoveLast()
{
    Rows &rows = Settled();
    rows.StandAt(std::max<std::int64_t>(rows.Size() - 1, 0));
}

void Recordset::MoveNext()
{
    Move(1);
}

void Recordset::Move(std::int64_t rows, std::optional<Bookmark> start)
{
    Rows &set = Settled();
    const bool fromGone = set.gone && !start;
    const std::int64_t from = start ? set.PlaceOf(*start) : set.place;
    if (rows == 0 && fromGone)
        return;
    const bool blocked = (rows > 0 && from >= set.Size()) || (rows < 0 && from < 0) || (rows != 0 && set.Size() == 0);
    if (blocked && !fromGone)
        RaiseNoCurrentRow();
    const std::int64_t bounded = std::clamp(rows, -set.Size() - 1, set.Size() + 1);
    // The row after a deleted one has taken its place, so the first step forward is done.
    set.StandAt(from + bounded - (fromGone && rows > 0 ? 1 : 0));
}

Value Recordset::Fields(std::string_view column) const
{
    const Rows &rows = Opened();
    return Row(rows, rows.CurrentRow()).Fields(column);
}

Value Recordset::Row::Fields(std::string_view column) const
{
    const RowTable &table = mRows->table;
    return table.ValueOf(table.At(table.RequireColumn(column), mRow));
}

std::vector<Recordset::Row> Recordset::EachRow() const
{
    const Rows &rows = Opened();
    std::vector<Row> each;
    each.reserve(rows.order.size());
    for (const std::uint32_t row : rows.order)
        each.push_back(Row(rows, row));
    return each;
}

void Recordset::Find(std::string_view criterion, std::int64_t skip, int direction, std::optional<Bookmark> start)
{
    Rows &rows = Settled();
    if (direction != kSearchForward || skip < 0)
        throw RuntimeError(StoreError::BadArgument, "Rows are found forward only.");
    const Criterion &wanted = rows.Understand(criterion);
    const std::int64_t from = start ? rows.PlaceOf(*start) : std::max<std::int64_t>(rows.place, 0);
    const std::span<const Cell> cells = rows.table.Cells(wanted.Column());
    const std::int64_t size = rows.Size();
    std::int64_t at = from + std::min(skip, size - from);
    while (at < size && !wanted.Meets(cells[rows.order[static_cast<std::size_t>(at)]], rows.table))
        ++at;
    rows.StandAt(at);
}

Bookmark Recordset::CurrentBookmark() const
{
    const Rows &rows = Opened();
    return rows.BookmarkOf(rows.CurrentRow());
}

void Recordset::GoTo(Bookmark bookmark)
{
    Rows &rows = Settled();
    rows.StandAt(rows.PlaceOf(bookmark));
}
