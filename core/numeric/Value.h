#pragma once

#include "core/numeric/Decimal.h"
#include "core/numeric/RuntimeError.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

/// A tagged value: what a field, a column or a step of the calculation holds.
///
/// Arithmetic: with a decimal on either side it is done in decimal, a double being converted first to 15 significant
/// digits; two 16-bit integers added, subtracted or multiplied stay integers (32 bits where 16 do not hold the result,
/// a double beyond); `/` of two non-decimals gives a double. A boolean counts as -1 or 0, no value as 0. Text raises
/// type mismatch (13), Null invalid use of Null (94), a zero divisor division by zero (11), a result out of range
/// overflow (6).
class Value
{
public:
    enum class Kind : std::uint8_t { NoValue, Null, Text, Boolean, Integer, Long, Double, Decimal };

    Value() = default; ///< no value
    Value(std::string text)
        : mData(std::move(text))
    {
    }
    Value(std::string_view text)
        : mData(std::string(text))
    {
    }
    Value(const char *text)
        : mData(std::string(text))
    {
    }
    template<std::same_as<bool> T> Value(T flag)
        : mData(flag)
    {
    }
    Value(std::int16_t number)
        : mData(number)
    {
    }
    Value(std::int32_t number)
        : mData(number)
    {
    }
    Value(double number)
        : mData(number)
    {
    }
    Value(const Decimal &number)
        : mData(number)
    {
    }
    [[nodiscard]] static Value Null();
    [[nodiscard]] static Value EmptyText() { return Value(std::string()); }
    /// The 16-bit integer 0.
    [[nodiscard]] static Value Zero() { return std::int16_t {0}; }

    [[nodiscard]] Kind Type() const noexcept { return static_cast<Kind>(mData.index()); }
    [[nodiscard]] bool IsNull() const noexcept { return Type() == Kind::Null; }
    /// Integer, Long, Double, Decimal or Boolean.
    [[nodiscard]] bool IsNumber() const noexcept { return Type() >= Kind::Boolean; }
    [[nodiscard]] bool IsEmptyText() const noexcept;
    /// No value, or empty text: nothing has been calculated or typed yet.
    [[nodiscard]] bool IsAbsent() const noexcept;

    /// Conversions. Text is read under the regional settings (type mismatch (13) where it is no number); no value is
    /// 0; Null raises 94. Whole numbers are rounded half to even, out of range raises overflow (6).
    [[nodiscard]] Decimal ToDecimal() const;
    [[nodiscard]] double ToDouble() const;
    [[nodiscard]] std::int16_t ToInteger() const;
    [[nodiscard]] std::int32_t ToLong() const;
    /// True for any number but 0, and for the texts "True" and "False" in any case.
    [[nodiscard]] bool ToBoolean() const;

    /// Default text under the regional settings: decimals as Decimal::Text, doubles with up to 15 significant digits
    /// ("1E+15" from there on), booleans "True" and "False", no value "". Null raises 94.
    [[nodiscard]] std::string Text() const;
    /// The same with a point whatever the regional settings, and no exponent: what a statement takes.
    [[nodiscard]] std::string SqlText() const;

    friend Value operator+(const Value &left, const Value &right);
    friend Value operator-(const Value &left, const Value &right);
    friend Value operator*(const Value &left, const Value &right);
    friend Value operator/(const Value &left, const Value &right);

    /// Numbers by value whatever their kinds, a double beside a decimal taken to 15 significant digits; a number never
    /// equals text; no value equals empty text and 0; Null equals nothing.
    friend bool operator==(const Value &left, const Value &right);
    /// Numbers only (no value counts as 0): type mismatch (13) for text, 94 for Null.
    friend bool operator<(const Value &left, const Value &right);
    friend bool operator>(const Value &left, const Value &right) { return right < left; }
    friend bool operator<=(const Value &left, const Value &right) { return !(right < left); }
    friend bool operator>=(const Value &left, const Value &right) { return !(left < right); }

private:
    struct NullTag {
        bool operator==(const NullTag &) const = default;
    };
    std::variant<std::monostate, NullTag, std::string, bool, std::int16_t, std::int32_t, double, Decimal> mData;
};

/// `value` rounded to `places` decimal places, ties to the even digit; its kind stays. Text is converted to decimal
/// first, no value counts as the 16-bit integer 0. Errors as for the conversions.
[[nodiscard]] Value Round(const Value &value, int places);

/// The same; what is absent stays absent.
[[nodiscard]] Value RoundIfPresent(const Value &value, int places);

/// Empty text in place of 0.
[[nodiscard]] Value BlankIfZero(const Value &value);

/// 0 of any kind, or absent.
[[nodiscard]] bool IsZero(const Value &value);

/// A number strictly between two bounds; false for anything that is no number.
[[nodiscard]] bool LiesBetween(const Value &value, std::int32_t low, std::int32_t high);

/// Errors as for the comparison.
[[nodiscard]] inline bool IsNegative(const Value &value)
{
    return value < Value::Zero();
}

/// The value, or Zero for one that is absent.
[[nodiscard]] Value ZeroIfAbsent(const Value &value);

/// The default text; empty for Null, as the store has it where there is nothing.
[[nodiscard]] std::string TextOrEmpty(const Value &value);

/// The magnitude of a number; its kind stays.
[[nodiscard]] Value Abs(const Value &value);

/// What Val2Dec makes of its input.
namespace Val2DecKind
{
inline constexpr std::int32_t Numeric = 0;
inline constexpr std::int32_t Text = 1;
} // namespace Val2DecKind

/// The shared conversion of an entry. Blank input gives the 16-bit integer 0 (numeric) or empty text (text);
/// otherwise a decimal, rounded to `places` unless that is -1, or the text as it is. Any other kind gives no value.
/// Type mismatch (13) for text that is no number, 94 for Null.
[[nodiscard]] Value Val2Dec(const Value &value, std::int16_t places = -1, std::int32_t kind = Val2DecKind::Numeric);
