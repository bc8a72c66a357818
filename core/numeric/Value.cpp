#include "core/numeric/Value.h"

#include "core/numeric/NumericText.h"
#include "core/numeric/Regional.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <compare>
#include <functional>
#include <limits>
#include <optional>

namespace
{
using Kind = Value::Kind;

/// A double of this magnitude or more is no decimal.
constexpr double kDecimalLimit = 0x1p96;
constexpr int kSignificant = 15;

/// What arithmetic and comparison make of a value: Text and Null raise their errors.
void RequireNumber(const Value &value)
{
    if (value.Type() == Kind::Text)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    if (value.IsNull())
        throw RuntimeError(ErrorNumber::InvalidUseOfNull);
}

bool IsEither(Kind kind, const Value &left, const Value &right)
{
    return left.Type() == kind || right.Type() == kind;
}

Value FiniteDouble(double number)
{
    if (!std::isfinite(number))
        throw RuntimeError(ErrorNumber::Overflow);
    return number;
}

/// The smallest kind, from 16 bits (or 32, if an operand has them) up, that holds a whole result. A product of two
/// 32-bit numbers fits in 64.
Value WholeResult(std::int64_t result, bool isLong)
{
    if (!isLong && result == static_cast<std::int16_t>(result))
        return static_cast<std::int16_t>(result);
    if (result == static_cast<std::int32_t>(result))
        return static_cast<std::int32_t>(result);
    return static_cast<double>(result);
}

/// The promotion rules of addition, subtraction and multiplication.
template<typename Operation> Value Combined(const Value &left, const Value &right, Operation operation)
{
    RequireNumber(left);
    RequireNumber(right);
    if (IsEither(Kind::Decimal, left, right))
        return operation(left.ToDecimal(), right.ToDecimal());
    if (IsEither(Kind::Double, left, right))
        return FiniteDouble(operation(left.ToDouble(), right.ToDouble()));
    return WholeResult(operation(std::int64_t {left.ToLong()}, std::int64_t {right.ToLong()}),
                       IsEither(Kind::Long, left, right));
}

/// Both are numbers or no value. Doubles that no decimal holds are beyond all decimals.
std::partial_ordering CompareNumbers(const Value &left, const Value &right)
{
    if (!IsEither(Kind::Decimal, left, right))
        return left.ToDouble() <=> right.ToDouble();
    const Value &other = left.Type() == Kind::Decimal ? right : left;
    if (other.Type() == Kind::Double && !(std::abs(other.ToDouble()) < kDecimalLimit))
        return left.ToDouble() <=> right.ToDouble();
    return left.ToDecimal() <=> right.ToDecimal();
}

template<typename Whole> Whole Narrowed(std::int64_t number)
{
    if (number != static_cast<Whole>(number))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Whole>(number);
}

/// Ties to the even number.
std::int64_t ToWhole(const Value &value)
{
    if (value.Type() != Kind::Double)
        return value.ToDecimal().ToInt64();
    const double whole = std::nearbyint(value.ToDouble());
    if (!(std::abs(whole) < 0x1p63))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(whole);
}

bool EqualsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return std::ranges::equal(text, lowerCase, {}, [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
}

std::string GeneralText(double number)
{
    std::array<char, 32> buffer {};
    const double unsignedZero = number == 0 ? 0 : number;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), unsignedZero,
                                   std::chars_format::general, kSignificant);
    std::string text(buffer.data(), end.ptr);
    std::ranges::replace(text, 'e', 'E');
    return text;
}

std::string PlainText(double number)
{
    if (std::abs(number) < kDecimalLimit)
        return Decimal::FromDouble(number).Text();
    std::array<char, 512> buffer {};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

std::string WithSeparator(std::string plain, const std::string &separator)
{
    if (const auto point = plain.find('.'); point != std::string::npos)
        plain.replace(point, 1, separator);
    return plain;
}

/// Text becomes the decimal it stands for, no value the 16-bit integer 0.
Value AsNumber(const Value &value)
{
    if (value.Type() == Kind::NoValue)
        return std::int16_t {0};
    return value.IsNumber() ? value : Value(value.ToDecimal());
}
} // namespace

Value Value::Null()
{
    Value null;
    null.mData = NullTag {};
    return null;
}

bool Value::IsEmptyText() const noexcept
{
    const auto *text = std::get_if<std::string>(&mData);
    return text != nullptr && text->empty();
}

bool Value::IsAbsent() const noexcept
{
    return Type() == Kind::NoValue || IsEmptyText();
}

Decimal Value::ToDecimal() const
{
    switch (Type()) {
    case Kind::NoValue:
        return {};
    case Kind::Null:
        throw RuntimeError(ErrorNumber::InvalidUseOfNull);
    case Kind::Text:
        return NumericTextToDecimal(std::get<std::string>(mData));
    case Kind::Boolean:
        return Decimal(std::get<bool>(mData) ? -1 : 0);
    case Kind::Integer:
        return Decimal(std::get<std::int16_t>(mData));
    case Kind::Long:
        return Decimal(std::get<std::int32_t>(mData));
    case Kind::Double:
        return Decimal::FromDouble(std::get<double>(mData));
    case Kind::Decimal:
        break;
    }
    return std::get<Decimal>(mData);
}

double Value::ToDouble() const
{
    if (const auto *number = std::get_if<double>(&mData))
        return *number;
    return ToDecimal().ToDouble();
}

std::int16_t Value::ToInteger() const
{
    return Narrowed<std::int16_t>(ToWhole(*this));
}

std::int32_t Value::ToLong() const
{
    return Narrowed<std::int32_t>(ToWhole(*this));
}

bool Value::ToBoolean() const
{
    if (const auto *text = std::get_if<std::string>(&mData)) {
        if (EqualsIgnoringCase(*text, "true"))
            return true;
        if (EqualsIgnoringCase(*text, "false"))
            return false;
    }
    if (const auto *number = std::get_if<double>(&mData))
        return *number != 0;
    return !ToDecimal().IsZero();
}

std::string Value::Text() const
{
    switch (Type()) {
    case Kind::Text:
        return std::get<std::string>(mData);
    case Kind::Double:
        return WithSeparator(GeneralText(std::get<double>(mData)), Regional().decimalSeparator);
    case Kind::Decimal:
        return WithSeparator(std::get<Decimal>(mData).Text(), Regional().decimalSeparator);
    default:
        return SqlText();
    }
}

std::string Value::SqlText() const
{
    switch (Type()) {
    case Kind::NoValue:
        return {};
    case Kind::Null:
        throw RuntimeError(ErrorNumber::InvalidUseOfNull);
    case Kind::Text:
        return std::get<std::string>(mData);
    case Kind::Boolean:
        return std::get<bool>(mData) ? "True" : "False";
    case Kind::Integer:
        return std::to_string(std::get<std::int16_t>(mData));
    case Kind::Long:
        return std::to_string(std::get<std::int32_t>(mData));
    case Kind::Double:
        return PlainText(std::get<double>(mData));
    case Kind::Decimal:
        break;
    }
    return std::get<Decimal>(mData).Text();
}

Value operator+(const Value &left, const Value &right)
{
    return Combined(left, right, std::plus<> {});
}

Value operator-(const Value &left, const Value &right)
{
    return Combined(left, right, std::minus<> {});
}

Value operator*(const Value &left, const Value &right)
{
    return Combined(left, right, std::multiplies<> {});
}

Value operator/(const Value &left, const Value &right)
{
    RequireNumber(left);
    RequireNumber(right);
    if (IsEither(Kind::Decimal, left, right))
        return left.ToDecimal() / right.ToDecimal();
    const double divisor = right.ToDouble();
    if (divisor == 0)
        throw RuntimeError(ErrorNumber::DivisionByZero);
    return FiniteDouble(left.ToDouble() / divisor);
}

bool operator==(const Value &left, const Value &right)
{
    if (left.IsNull() || right.IsNull())
        return false;
    if (IsEither(Kind::Text, left, right))
        return left.Type() == right.Type() ? left.mData == right.mData : left.IsAbsent() && right.IsAbsent();
    return CompareNumbers(left, right) == 0;
}

bool operator<(const Value &left, const Value &right)
{
    RequireNumber(left);
    RequireNumber(right);
    return CompareNumbers(left, right) < 0;
}

Value Round(const Value &value, int places)
{
    if (places < 0 || places > Decimal::kMaxScale)
        throw RuntimeError(ErrorNumber::InvalidCall);
    Value number = AsNumber(value);
    if (number.Type() == Kind::Decimal)
        return number.ToDecimal().Round(places);
    if (number.Type() == Kind::Double && std::abs(number.ToDouble()) < kDecimalLimit)
        return number.ToDecimal().Round(places).ToDouble();
    return number;
}

Value RoundIfPresent(const Value &value, int places)
{
    return value.IsAbsent() ? value : Round(value, places);
}

Value BlankIfZero(const Value &value)
{
    return value == Value::Zero() ? Value::EmptyText() : value;
}

bool LiesBetween(const Value &value, std::int32_t low, std::int32_t high)
{
    return value.IsNumber() && value > Value(low) && value < Value(high);
}

bool IsZero(const Value &value)
{
    return value.IsAbsent() || value == Value::Zero();
}

Value ZeroIfAbsent(const Value &value)
{
    return value.IsAbsent() ? Value::Zero() : value;
}

std::string TextOrEmpty(const Value &value)
{
    return value.IsNull() ? std::string() : value.Text();
}

Value Abs(const Value &value)
{
    Value number = AsNumber(value);
    switch (number.Type()) {
    case Kind::Decimal:
        return number.ToDecimal().Abs();
    case Kind::Double:
        return std::abs(number.ToDouble());
    case Kind::Long:
        return Narrowed<std::int32_t>(std::abs(std::int64_t {number.ToLong()}));
    default:
        return Narrowed<std::int16_t>(std::abs(std::int64_t {number.ToLong()}));
    }
}

Value Val2Dec(const Value &value, std::int16_t places, std::int32_t kind)
{
    if (value.IsNull())
        throw RuntimeError(ErrorNumber::InvalidUseOfNull);
    const bool textual = value.Type() == Kind::Text;
    const bool blank = textual ? Trimmed(value.Text()).empty() : value.Type() == Kind::NoValue;
    if (kind == Val2DecKind::Text)
        return blank ? Value::EmptyText() : Value(value.Text());
    if (kind != Val2DecKind::Numeric)
        return {};
    if (blank)
        return std::int16_t {0};
    const Decimal number = value.ToDecimal();
    return places == -1 ? number : number.Round(places);
}
