#include "core/numeric/NumericText.h"
#include "frame/store/RecordsetRows.h"

#include <algorithm>

namespace
{
double NumberOf(const Cell &cell)
{
    return cell.kind == Cell::Kind::Real ? cell.real : static_cast<double>(cell.whole);
}

/// Null before numbers before texts, as the store itself sorts.
bool ComesBefore(const Cell &left, const Cell &right, const RowTable &table)
{
    const auto rank = [](const Cell &cell) { return cell.kind == Cell::Kind::Whole ? Cell::Kind::Real : cell.kind; };
    if (rank(left) != rank(right))
        return rank(left) < rank(right);
    switch (rank(left)) {
    case Cell::Kind::Null:
        return false;
    case Cell::Kind::Text:
        return CompareWithoutCase(table.TextOf(left), table.TextOf(right)) < 0;
    default:
        return NumberOf(left) < NumberOf(right);
    }
}
} // namespace

const Criterion &Recordset::Rows::Understand(std::string_view criterion)
{
    if (!found || foundText != criterion) {
        found.emplace(criterion, table, Criterion::BareText::Refused);
        foundText = criterion;
    }
    return *found;
}

void Recordset::Rows::SetFilter(std::string_view criterion)
{
    if (criterion.empty())
        filter.reset();
    else
        filter = Criterion(criterion, table, Criterion::BareText::Taken);
    filterText = criterion;
    Arrange();
}

void Recordset::Rows::SetSort(std::string_view text)
{
    std::string_view rest = text;
    const std::string_view column = TakeColumnName(rest);
    const std::string_view direction = Trimmed(rest);
    const bool descending = CompareWithoutCase(direction, "DESC") == 0;
    if (column.empty() ? !text.empty() : !descending && !direction.empty() && CompareWithoutCase(direction, "ASC") != 0)
        throw RuntimeError(StoreError::BadArgument, "The sort order cannot be understood.");
    if (column.empty())
        sort.reset();
    else
        sort = SortOrder {table.RequireColumn(column), descending};
    sortText = text;
    Arrange();
}

void Recordset::Rows::Arrange()
{
    order.clear();
    order.reserve(table.RowCount());
    for (std::size_t row = 0; row < table.RowCount(); ++row) {
        const bool dropped = row < deleted.size() && deleted[row];
        if (!dropped && (!filter || filter->Meets(table.At(filter->Column(), row), table)))
            order.push_back(static_cast<std::uint32_t>(row));
    }
    if (sort) {
        const std::span<const Cell> cells = table.Cells(sort->column);
        std::stable_sort(order.begin(), order.end(), [&](std::uint32_t left, std::uint32_t right) {
            return sort->descending ? ComesBefore(cells[right], cells[left], table)
                                    : ComesBefore(cells[left], cells[right], table);
        });
    }
    StandAt(0);
}

void Recordset::Filter(std::string_view criterion)
{
    Settled().SetFilter(criterion);
}

void Recordset::Sort(std::string_view order)
{
    Settled().SetSort(order);
}
