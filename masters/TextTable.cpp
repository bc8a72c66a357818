#include "masters/TextTable.h"

#include "core/numeric/NumericText.h"

#include <algorithm>

void TextTable::Redimension(std::int32_t lowRow, std::int32_t highRow, std::int32_t lowColumn, std::int32_t highColumn)
{
    const auto columns = static_cast<std::size_t>(std::max(highColumn - lowColumn + 1, 0));
    if (lowRow != mLowRow || lowColumn != mLowColumn)
        mRows.clear();
    mRows.resize(static_cast<std::size_t>(std::max(highRow - lowRow + 1, 0)));
    for (Row &row : mRows)
        row.resize(columns);
    mLowRow = lowRow;
    mLowColumn = lowColumn;
    mColumns = static_cast<std::int32_t>(columns);
}

void TextTable::Clear()
{
    for (Row &row : mRows)
        for (std::string &text : row)
            text.clear();
}

void TextTable::DeleteRow(std::int32_t row)
{
    static_cast<void>(mRows.at(RowAt(row)));
    mRows.erase(mRows.begin() + (row - mLowRow));
}

const std::string &TextTable::Cell(std::int32_t row, std::int32_t column) const
{
    return mRows.at(RowAt(row)).at(ColumnAt(column));
}

void TextTable::Cell(std::int32_t row, std::int32_t column, std::string text)
{
    mRows.at(RowAt(row)).at(ColumnAt(column)) = std::move(text);
}

bool TextTable::IsEmptyRow(std::int32_t row) const
{
    return std::ranges::all_of(mRows.at(RowAt(row)), [](const std::string &text) { return text.empty(); });
}

std::optional<std::int32_t> TextTable::Find(std::int32_t column, std::string_view text) const
{
    for (std::int32_t row = LowerRow(); row <= UpperRow(); ++row)
        if (Cell(row, column) == text)
            return row;
    return std::nullopt;
}

void TextTable::Sort(std::int32_t first, std::int32_t last, std::int32_t column)
{
    struct Keyed {
        std::optional<Decimal> number;
        Row row;
    };
    first = std::max(first, LowerRow());
    last = std::min(last, UpperRow());
    std::vector<std::optional<Decimal>> numbers;
    for (std::int32_t row = first; row <= last; ++row) {
        const std::string &text = Cell(row, column);
        numbers.push_back(text.empty() ? std::nullopt : std::optional(NumericTextToDecimal(text)));
    }
    std::vector<Keyed> keyed;
    keyed.reserve(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        keyed.push_back({numbers[i], std::move(mRows[RowAt(first) + i])});
    std::ranges::stable_sort(keyed, [](const Keyed &left, const Keyed &right) {
        return left.number && (!right.number || *left.number < *right.number);
    });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        mRows[RowAt(first) + i] = std::move(keyed[i].row);
}
