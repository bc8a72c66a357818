#pragma once

#include "core/numeric/Value.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class Statement;

/// One value as the store gives it, before anybody has asked for it.
struct Cell {
    enum class Kind : std::uint8_t { Null, Whole, Real, Text };

    union {
        std::int64_t whole = 0;
        double real;
        std::size_t textStart; ///< in the table's text
    };
    std::uint32_t textLength = 0;
    Kind kind = Kind::Null;
};

/// The rows of one SELECT, column by column, in as little memory as a scan over them wants to touch.
class RowTable
{
public:
    enum class ColumnKind : std::uint8_t { Any, Whole, Real, Text };
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// Runs the statement and keeps its rows.
    explicit RowTable(Statement &select);
    RowTable(const RowTable &) = delete;
    RowTable &operator=(const RowTable &) = delete;

    [[nodiscard]] std::size_t RowCount() const noexcept { return mRowCount; }
    [[nodiscard]] std::size_t ColumnCount() const noexcept { return mColumns.size(); }
    /// kNone where there is no column of that name, in whatever case.
    [[nodiscard]] std::size_t FindColumn(std::string_view name) const noexcept;
    /// NoSuchColumn where there is none.
    [[nodiscard]] std::size_t RequireColumn(std::string_view name) const;

    [[nodiscard]] std::span<const Cell> Cells(std::size_t column) const { return mColumns[column].cells; }
    [[nodiscard]] Cell &At(std::size_t column, std::size_t row) { return mColumns[column].cells[row]; }
    [[nodiscard]] const Cell &At(std::size_t column, std::size_t row) const { return mColumns[column].cells[row]; }
    [[nodiscard]] std::string_view TextOf(const Cell &cell) const;
    [[nodiscard]] Value ValueOf(const Cell &cell) const;

    /// The cell that keeps a value in this column; a number column converts it (errors as for Value's conversions).
    [[nodiscard]] Cell MakeCell(std::size_t column, const Value &value);

    /// Appends a row of Null and returns its number.
    std::size_t AppendRow();
    void RemoveLastRow();

private:
    struct Column {
        std::string name;
        ColumnKind kind = ColumnKind::Any;
        std::vector<Cell> cells;
    };
    void Read(Statement &select, std::size_t index, Cell &cell);
    Cell TextCell(std::string_view text);

    std::vector<Column> mColumns;
    std::string mText;
    std::size_t mRowCount = 0;
};

/// Orders two texts, the case of Latin letters apart: below, at or above 0.
[[nodiscard]] int CompareWithoutCase(std::string_view left, std::string_view right) noexcept;
