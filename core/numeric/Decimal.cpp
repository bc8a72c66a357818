#include "core/numeric/Decimal.h"

#include "core/numeric/RuntimeError.h"
#include "core/numeric/WideInteger.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace
{
constexpr int kWordCount = 3;
constexpr int kDigitBits = 32 * kWordCount;
/// 10^29 is above 2^96.
constexpr int kDigitsThatOverflow = 29;
/// Scales beyond those of a product come from read text alone, which keeps at most this many digits: of a number whose
/// scale is that far past kMaxScale nothing is left.
constexpr int kMostDigitsRead = 36;

/// floor(bits * log10(2)) for the sizes that occur here.
constexpr int DigitsInBits(int bits)
{
    return bits * 1233 >> 12;
}

/// Half to even; `more` says that `number` itself was cut short.
WideInteger RoundedQuotient(const WideInteger &number, const WideInteger &divisor, bool more = false)
{
    WideInteger remainder = number;
    WideInteger quotient = remainder.DivideToRemainder(divisor);
    remainder += remainder;
    const auto half = remainder <=> divisor;
    if (half > 0 || (half == 0 && (more || quotient.IsOdd())))
        quotient += WideInteger {1};
    return quotient;
}

std::array<std::uint32_t, kWordCount> LowWords(const WideInteger &number)
{
    return {number.Word(0), number.Word(1), number.Word(2)};
}
} // namespace

Decimal::Decimal(std::int64_t value)
    : mNegative(value < 0)
{
    const auto bits = static_cast<std::uint64_t>(value);
    const std::uint64_t magnitude = value < 0 ? 0 - bits : bits;
    mDigits = {static_cast<std::uint32_t>(magnitude), static_cast<std::uint32_t>(magnitude >> 32), 0};
}

Decimal Decimal::Fitted(const WideInteger &digits, std::int64_t scale, bool negative, bool more)
{
    if (digits.IsZero() || scale > kMaxScale + kMostDigitsRead)
        return {};
    if (scale < 0) {
        if (scale < -kDigitsThatOverflow)
            throw RuntimeError(ErrorNumber::Overflow);
        return Fitted(digits * PowerOfTen(-scale), 0, negative, more);
    }

    std::int64_t dropped = std::max<std::int64_t>(0, scale - kMaxScale);
    const int excess = digits.BitLength() - kDigitBits;
    if (excess > 0)
        dropped = std::max<std::int64_t>(dropped, DigitsInBits(excess - 1) + 1);
    if (dropped == 0)
        return {LowWords(digits), static_cast<int>(scale), negative};

    for (; dropped <= scale; ++dropped) {
        const WideInteger rounded = RoundedQuotient(digits, PowerOfTen(dropped), more);
        if (rounded.Size() <= kWordCount)
            return {LowWords(rounded), static_cast<int>(scale - dropped), negative};
    }
    throw RuntimeError(ErrorNumber::Overflow);
}

Decimal Decimal::WithoutTrailingZeros() const
{
    Decimal shorter = *this;
    for (const int places : {8, 4, 2, 1}) {
        const auto power = PowerOfTen(places).Word(0);
        while (shorter.mScale >= places && (shorter.mDigits[0] & ((1U << places) - 1)) == 0) {
            WideInteger digits {shorter.mDigits};
            if (digits.DivideBy(power) != 0)
                break;
            shorter = {LowWords(digits), shorter.mScale - places, mNegative};
        }
    }
    return shorter;
}

bool Decimal::IsZero() const noexcept
{
    return mDigits == Words {};
}

Decimal Decimal::Abs() const
{
    return {mDigits, mScale, false};
}

Decimal Decimal::operator-() const
{
    return {mDigits, mScale, !mNegative};
}

Decimal Decimal::Round(int places) const
{
    if (places < 0 || places > kMaxScale)
        throw RuntimeError(ErrorNumber::InvalidCall);
    if (mScale <= places)
        return *this;
    const WideInteger rounded = RoundedQuotient(WideInteger {mDigits}, PowerOfTen(mScale - places));
    return {LowWords(rounded), places, mNegative};
}

std::int64_t Decimal::ToInt64() const
{
    const Decimal whole = Round(0);
    const std::uint64_t limit = std::uint64_t {1} << 63;
    const std::uint64_t magnitude = whole.Low64();
    if (!whole.FitsWord64() || magnitude > limit || (magnitude == limit && !whole.mNegative))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<std::int64_t>(whole.mNegative ? 0 - magnitude : magnitude);
}

Decimal operator+(const Decimal &left, const Decimal &right)
{
    const int scale = std::max(left.mScale, right.mScale);
    WideInteger larger = WideInteger {left.mDigits} * PowerOfTen(scale - left.mScale);
    WideInteger smaller = WideInteger {right.mDigits} * PowerOfTen(scale - right.mScale);
    if (left.mNegative == right.mNegative) {
        larger += smaller;
        return Decimal::Fitted(larger, scale, left.mNegative);
    }
    bool negative = left.mNegative;
    if (larger < smaller) {
        std::swap(larger, smaller);
        negative = right.mNegative;
    }
    larger -= smaller;
    return Decimal::Fitted(larger, scale, negative);
}

Decimal operator-(const Decimal &left, const Decimal &right)
{
    return left + -right;
}

Decimal operator*(const Decimal &left, const Decimal &right)
{
    return Decimal::Fitted(WideInteger {left.mDigits} * WideInteger {right.mDigits}, left.mScale + right.mScale,
                           left.mNegative != right.mNegative);
}

Decimal operator/(const Decimal &left, const Decimal &right)
{
    if (right.IsZero())
        throw RuntimeError(ErrorNumber::DivisionByZero);
    if (left.IsZero())
        return {};

    // One digit more than fits, so that the last one is rounded from the exact quotient.
    const WideInteger divisor {right.mDigits};
    WideInteger remainder {left.mDigits};
    const int bitsMissing = kDigitBits + 1 + divisor.BitLength() - remainder.BitLength();
    const int scale = left.mScale - right.mScale;
    const int power = std::min(DigitsInBits(bitsMissing) + 1, Decimal::kMaxScale + 1 - scale);
    remainder = remainder * PowerOfTen(power);
    const WideInteger quotient = remainder.DivideToRemainder(divisor);

    const bool exact = remainder.IsZero();
    const Decimal result = Decimal::Fitted(quotient, scale + power, left.mNegative != right.mNegative, !exact);
    return exact ? result.WithoutTrailingZeros() : result;
}

std::strong_ordering Decimal::CompareMagnitudes(const Decimal &left, const Decimal &right)
{
    if (left.mScale == right.mScale) {
        if (left.mDigits[2] != right.mDigits[2])
            return left.mDigits[2] <=> right.mDigits[2];
        return left.Low64() <=> right.Low64();
    }
    const int scale = std::max(left.mScale, right.mScale);
    return WideInteger {left.mDigits} * PowerOfTen(scale - left.mScale)
        <=> WideInteger {right.mDigits} * PowerOfTen(scale - right.mScale);
}

std::strong_ordering operator<=>(const Decimal &left, const Decimal &right)
{
    if (left.mNegative != right.mNegative)
        return right.mNegative <=> left.mNegative;
    return left.mNegative ? Decimal::CompareMagnitudes(right, left) : Decimal::CompareMagnitudes(left, right);
}

bool operator==(const Decimal &left, const Decimal &right)
{
    return left.mNegative == right.mNegative && Decimal::CompareMagnitudes(left, right) == 0;
}
