#pragma once

#include "core/numeric/Decimal.h"
#include "frame/store/RowTable.h"

#include <optional>
#include <string>
#include <string_view>

/// "Column op value" with op one of = <= >=, read once and then held against many cells.
class Criterion
{
public:
    /// Whether a text that is no number may stand without quotes.
    enum class BareText : std::uint8_t { Refused, Taken };

    /// BadArgument where the text is no criterion, NoSuchColumn, overflow (6) for a number out of a decimal's range
    /// that stands without quotes.
    Criterion(std::string_view text, const RowTable &table, BareText bareText);

    [[nodiscard]] std::size_t Column() const noexcept { return mColumn; }
    [[nodiscard]] bool Meets(const Cell &cell, const RowTable &table) const;

private:
    enum class Operator : std::uint8_t { Equal, AtMost, AtLeast };

    void ReadOperator(std::string_view &rest);
    void ReadQuoted(std::string_view quoted);
    void ReadNumber(std::string_view text, bool quoted);
    [[nodiscard]] bool Holds(int comparison) const noexcept;
    [[nodiscard]] int CompareClose(const Cell &cell) const;
    [[nodiscard]] int CompareNumber(double number, const Cell &cell) const;

    std::size_t mColumn = 0;
    Operator mOperator = Operator::Equal;
    std::string mText;
    std::optional<Decimal> mNumber;
    double mBelow = 0; ///< doubles under it are certainly less than the number
    double mAbove = 0; ///< doubles over it are certainly greater
};

/// A column name as it may stand in a criterion or sort text: with or without brackets. Takes it off the text.
[[nodiscard]] std::string_view TakeColumnName(std::string_view &text);

inline bool Criterion::Holds(int comparison) const noexcept
{
    switch (mOperator) {
    case Operator::AtMost:
        return comparison <= 0;
    case Operator::AtLeast:
        return comparison >= 0;
    default:
        return comparison == 0;
    }
}

inline int Criterion::CompareNumber(double number, const Cell &cell) const
{
    return number < mBelow ? -1 : number > mAbove ? 1 : CompareClose(cell);
}

inline bool Criterion::Meets(const Cell &cell, const RowTable &table) const
{
    switch (cell.kind) {
    case Cell::Kind::Real:
        return mNumber && Holds(CompareNumber(cell.real, cell));
    case Cell::Kind::Whole:
        return mNumber && Holds(CompareNumber(static_cast<double>(cell.whole), cell));
    case Cell::Kind::Text:
        return Holds(table.TextOf(cell).compare(mText));
    default:
        return false;
    }
}
