#include "core/numeric/Decimal.h"

#include "core/numeric/Exact.h"
#include "core/numeric/RuntimeError.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace
{
constexpr unsigned kDigitBits = 96;
/// 10^29 is above 2^96.
constexpr int kDigitsThatOverflow = 29;
/// Scales beyond those of a product come from read text alone, which keeps at most this many digits: of a number whose
/// scale is that far past kMaxScale nothing is left.
constexpr int kMostDigitsRead = 36;

int BitLength(const WideInteger &number)
{
    return number.is_zero() ? 0 : static_cast<int>(msb(number)) + 1;
}

/// floor(bits * log10(2)) for the sizes that occur here.
constexpr int DigitsInBits(int bits)
{
    return bits * 1233 >> 12;
}

/// Half to even; `more` says that `number` itself was cut short.
WideInteger RoundedQuotient(const WideInteger &number, const WideInteger &divisor, bool more = false)
{
    WideInteger quotient;
    WideInteger remainder;
    divide_qr(number, divisor, quotient, remainder);
    const int half = (remainder << 1).compare(divisor);
    if (half > 0 || (half == 0 && (more || bit_test(quotient, 0))))
        ++quotient;
    return quotient;
}

std::array<std::uint32_t, 3> LowWords(const WideInteger &number)
{
    constexpr std::uint32_t all = 0xFFFFFFFF;
    return {static_cast<std::uint32_t>(number & all), static_cast<std::uint32_t>((number >> 32) & all),
            static_cast<std::uint32_t>((number >> 64) & all)};
}
} // namespace

const WideInteger &PowerOfTen(std::int64_t exponent)
{
    static const auto powers = [] {
        std::array<WideInteger, 58> made {1};
        for (std::size_t i = 1; i < made.size(); ++i)
            made[i] = made[i - 1] * 10U;
        return made;
    }();
    return powers[static_cast<std::size_t>(exponent)];
}

Decimal::Decimal(std::int64_t value)
    : mNegative(value < 0)
{
    const auto bits = static_cast<std::uint64_t>(value);
    const std::uint64_t magnitude = value < 0 ? 0 - bits : bits;
    mDigits = {static_cast<std::uint32_t>(magnitude), static_cast<std::uint32_t>(magnitude >> 32), 0};
}

Decimal::Exact Decimal::ToExact(int scale) const
{
    WideInteger digits = Low64();
    if (!FitsWord64())
        digits |= WideInteger {mDigits[2]} << 64;
    if (scale > mScale)
        digits *= PowerOfTen(scale - mScale);
    return {.digits = digits, .scale = scale, .negative = mNegative};
}

Decimal Decimal::Fitted(const Exact &exact)
{
    const auto &[digits, scale, negative, more] = exact;
    if (digits.is_zero() || scale > kMaxScale + kMostDigitsRead)
        return {};
    if (scale < 0) {
        if (scale < -kDigitsThatOverflow)
            throw RuntimeError(ErrorNumber::Overflow);
        return Fitted({.digits = digits * PowerOfTen(-scale), .negative = negative, .more = more});
    }

    std::int64_t dropped = std::max<std::int64_t>(0, scale - kMaxScale);
    const int excess = BitLength(digits) - static_cast<int>(kDigitBits);
    if (excess > 0)
        dropped = std::max<std::int64_t>(dropped, DigitsInBits(excess - 1) + 1);
    if (dropped == 0)
        return {LowWords(digits), static_cast<int>(scale), negative};

    for (; dropped <= scale; ++dropped) {
        const WideInteger rounded = RoundedQuotient(digits, PowerOfTen(dropped), more);
        if (BitLength(rounded) <= static_cast<int>(kDigitBits))
            return {LowWords(rounded), static_cast<int>(scale - dropped), negative};
    }
    throw RuntimeError(ErrorNumber::Overflow);
}

Decimal Decimal::WithoutTrailingZeros() const
{
    Decimal shorter = *this;
    for (const int places : {8, 4, 2, 1}) {
        while (shorter.mScale >= places && (shorter.mDigits[0] & ((1U << places) - 1)) == 0) {
            WideInteger quotient;
            WideInteger remainder;
            divide_qr(shorter.ToExact(0).digits, PowerOfTen(places), quotient, remainder);
            if (!remainder.is_zero())
                break;
            shorter = {LowWords(quotient), shorter.mScale - places, mNegative};
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
    const WideInteger rounded = RoundedQuotient(ToExact(0).digits, PowerOfTen(mScale - places));
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
    Decimal::Exact larger = left.ToExact(scale);
    Decimal::Exact smaller = right.ToExact(scale);
    if (left.mNegative == right.mNegative) {
        larger.digits += smaller.digits;
    } else {
        if (larger.digits < smaller.digits)
            std::swap(larger, smaller);
        larger.digits -= smaller.digits;
    }
    return Decimal::Fitted(larger);
}

Decimal operator-(const Decimal &left, const Decimal &right)
{
    return left + -right;
}

Decimal operator*(const Decimal &left, const Decimal &right)
{
    return Decimal::Fitted({.digits = left.ToExact(0).digits * right.ToExact(0).digits,
                            .scale = left.mScale + right.mScale,
                            .negative = left.mNegative != right.mNegative});
}

Decimal operator/(const Decimal &left, const Decimal &right)
{
    if (right.IsZero())
        throw RuntimeError(ErrorNumber::DivisionByZero);
    if (left.IsZero())
        return {};

    // One digit more than fits, so that the last one is rounded from the exact quotient.
    const WideInteger divisor = right.ToExact(0).digits;
    const WideInteger dividend = left.ToExact(0).digits;
    const int bitsMissing = static_cast<int>(kDigitBits) + 1 + BitLength(divisor) - BitLength(dividend);
    const int scale = left.mScale - right.mScale;
    const int power = std::min(DigitsInBits(bitsMissing) + 1, Decimal::kMaxScale + 1 - scale);
    Decimal::Exact quotient;
    quotient.scale = scale + power;
    quotient.negative = left.mNegative != right.mNegative;
    WideInteger remainder;
    divide_qr(WideInteger(dividend * PowerOfTen(power)), divisor, quotient.digits, remainder);
    quotient.more = !remainder.is_zero();
    const Decimal result = Decimal::Fitted(quotient);
    return quotient.more ? result : result.WithoutTrailingZeros();
}

std::strong_ordering Decimal::CompareMagnitudes(const Decimal &left, const Decimal &right)
{
    if (left.mScale == right.mScale) {
        if (left.mDigits[2] != right.mDigits[2])
            return left.mDigits[2] <=> right.mDigits[2];
        return left.Low64() <=> right.Low64();
    }
    const int scale = std::max(left.mScale, right.mScale);
    return left.ToExact(scale).digits.compare(right.ToExact(scale).digits) <=> 0;
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
