#include "frame/store/RowTable.h"

#include "frame/store/Connection.h"
#include "frame/store/Statement.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>

namespace
{
RowTable::ColumnKind KindOf(const char *declaredType)
{
    const std::string_view type = declaredType == nullptr ? "" : declaredType;
    if (type == "INTEGER")
        return RowTable::ColumnKind::Whole;
    if (type == "REAL")
        return RowTable::ColumnKind::Real;
    return type == "TEXT" ? RowTable::ColumnKind::Text : RowTable::ColumnKind::Any;
}

unsigned char Folded(char letter) noexcept
{
    const bool upper = letter >= 'A' && letter <= 'Z';
    return static_cast<unsigned char>(upper ? letter - 'A' + 'a' : letter);
}

Cell WholeCell(std::int64_t number)
{
    Cell cell;
    cell.whole = number;
    cell.kind = Cell::Kind::Whole;
    return cell;
}

Cell RealCell(double number)
{
    Cell cell;
    cell.real = number;
    cell.kind = Cell::Kind::Real;
    return cell;
}

RowTable::ColumnKind KindOf(const Value &value)
{
    switch (value.Type()) {
    case Value::Kind::Boolean:
    case Value::Kind::Integer:
    case Value::Kind::Long:
        return RowTable::ColumnKind::Whole;
    case Value::Kind::Double:
    case Value::Kind::Decimal:
        return RowTable::ColumnKind::Real;
    default:
        return RowTable::ColumnKind::Text;
    }
}
} // namespace

int CompareWithoutCase(std::string_view left, std::string_view right) noexcept
{
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i)
        if (const int difference = Folded(left[i]) - Folded(right[i]); difference != 0)
            return difference;
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

RowTable::RowTable(Statement &select)
{
    sqlite3_stmt *statement = select.Handle();
    mColumns.resize(static_cast<std::size_t>(sqlite3_column_count(statement)));
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        mColumns[i].name = sqlite3_column_name(statement, static_cast<int>(i));
        mColumns[i].kind = KindOf(sqlite3_column_decltype(statement, static_cast<int>(i)));
    }
    while (select.Step()) {
        AppendRow();
        for (std::size_t i = 0; i < mColumns.size(); ++i)
            Read(select, i, mColumns[i].cells.back());
    }
}

void RowTable::Read(Statement &select, std::size_t index, Cell &cell)
{
    sqlite3_stmt *statement = select.Handle();
    const int column = static_cast<int>(index);
    // The tables are strict: what is declared a number can only be that or NULL, and NULL reads as 0. So most cells
    // need no question about their kind.
    if (mColumns[index].kind == ColumnKind::Real) {
        cell.real = sqlite3_column_double(statement, column);
        cell.kind = Cell::Kind::Real;
        if (cell.real != 0)
            return;
    }
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_FLOAT:
        cell.real = sqlite3_column_double(statement, column);
        cell.kind = Cell::Kind::Real;
        break;
    case SQLITE_INTEGER:
        cell.whole = sqlite3_column_int64(statement, column);
        cell.kind = Cell::Kind::Whole;
        break;
    case SQLITE_NULL:
        cell.kind = Cell::Kind::Null;
        break;
    default: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
        cell = TextCell({text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))});
    }
    }
}

std::size_t RowTable::FindColumn(std::string_view name) const noexcept
{
    for (std::size_t i = 0; i < mColumns.size(); ++i)
        if (mColumns[i].name.size() == name.size() && CompareWithoutCase(mColumns[i].name, name) == 0)
            return i;
    return kNone;
}

std::size_t RowTable::RequireColumn(std::string_view name) const
{
    const std::size_t column = FindColumn(name);
    if (column == kNone)
        throw RuntimeError(StoreError::NoSuchColumn, "There is no column \"" + std::string(name) + "\".");
    return column;
}

std::string_view RowTable::TextOf(const Cell &cell) const
{
    return std::string_view(mText).substr(cell.textStart, cell.textLength);
}

Value RowTable::ValueOf(const Cell &cell) const
{
    switch (cell.kind) {
    case Cell::Kind::Null:
        return Value::Null();
    case Cell::Kind::Real:
        return Decimal::FromDouble(cell.real);
    case Cell::Kind::Text:
        return TextOf(cell);
    case Cell::Kind::Whole:
        break;
    }
    if (cell.whole < std::numeric_limits<std::int32_t>::min() || cell.whole > std::numeric_limits<std::int32_t>::max())
        return Decimal(cell.whole);
    return static_cast<std::int32_t>(cell.whole);
}

Cell RowTable::MakeCell(std::size_t column, const Value &value)
{
    if (value.IsNull())
        return {};
    const ColumnKind declared = mColumns[column].kind;
    switch (declared == ColumnKind::Any ? KindOf(value) : declared) {
    case ColumnKind::Whole:
        // The store writes True as 1.
        return WholeCell(value.Type() == Value::Kind::Boolean ? value.ToBoolean() : value.ToDecimal().ToInt64());
    case ColumnKind::Real:
        return RealCell(value.ToDouble());
    default:
        return TextCell(value.Text());
    }
}

Cell RowTable::TextCell(std::string_view text)
{
    Cell cell;
    cell.textStart = mText.size();
    cell.textLength = static_cast<std::uint32_t>(text.size());
    cell.kind = Cell::Kind::Text;
    mText.append(text);
    return cell;
}

std::size_t RowTable::AppendRow()
{
    for (Column &column : mColumns)
        column.cells.emplace_back();
    return mRowCount++;
}

void RowTable::RemoveLastRow()
{
    for (Column &column : mColumns)
        column.cells.pop_back();
    --mRowCount;
}
