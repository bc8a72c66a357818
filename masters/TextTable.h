#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A table of texts in memory, by row and column, both counted from bounds of their own. A row or column outside the
/// bounds raises std::out_of_range.
class TextTable
{
public:
    /// Gives the table new bounds, each pair included in it. Where the lower ones stay, the cells inside both
    /// the old and the new bounds keep their texts; all others are empty.
    void Redimension(std::int32_t lowRow, std::int32_t highRow, std::int32_t lowColumn, std::int32_t highColumn);
    /// Empties every cell; the bounds stay.
    void Clear();
    /// The rows after it move up by one.
    void DeleteRow(std::int32_t row);

    [[nodiscard]] std::int32_t LowerRow() const noexcept { return mLowRow; }
    /// One less than LowerRow for a table without rows.
    [[nodiscard]] std::int32_t UpperRow() const noexcept { return mLowRow + RowCount() - 1; }
    [[nodiscard]] std::int32_t RowCount() const noexcept { return static_cast<std::int32_t>(mRows.size()); }
    [[nodiscard]] std::int32_t LowerColumn() const noexcept { return mLowColumn; }
    [[nodiscard]] std::int32_t ColumnCount() const noexcept { return mColumns; }

    [[nodiscard]] const std::string &Cell(std::int32_t row, std::int32_t column) const;
    void Cell(std::int32_t row, std::int32_t column, std::string text);
    [[nodiscard]] bool IsEmptyRow(std::int32_t row) const;

    /// The first row whose cell in that column holds just this text.
    [[nodiscard]] std::optional<std::int32_t> Find(std::int32_t column, std::string_view text) const;
    /// Puts the rows from first to last, as far as there are such, into the ascending order of the numbers in a column.
    /// Equal numbers keep their order; rows without one come last. Type mismatch (13) for a text that is no number.
    void Sort(std::int32_t first, std::int32_t last, std::int32_t column);

private:
    using Row = std::vector<std::string>;

    [[nodiscard]] std::size_t RowAt(std::int32_t row) const noexcept { return static_cast<std::size_t>(row - mLowRow); }
    [[nodiscard]] std::size_t ColumnAt(std::int32_t column) const noexcept
    {
        return static_cast<std::size_t>(column - mLowColumn);
    }

    std::vector<Row> mRows;
    std::int32_t mLowRow = 0;
    std::int32_t mLowColumn = 0;
    std::int32_t mColumns = 0;
};
