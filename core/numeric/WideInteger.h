#pragma once

#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <span>

/// An unsigned whole number of up to 288 bits: room for every exact result between two decimals before it is rounded.
/// Callers keep within that size; the number of significant words is tracked, so small numbers stay cheap.
class WideInteger
{
public:
    static constexpr std::size_t kCapacity = 9;

    constexpr WideInteger() = default;
    constexpr explicit WideInteger(std::uint64_t value)
        : mWords {Low(value), High(value)}
        , mSize(2)
    {
        Trim();
    }
    /// Least significant word first.
    constexpr explicit WideInteger(std::span<const std::uint32_t> words)
        : mSize(words.size())
    {
        for (std::size_t i = 0; i < words.size(); ++i)
            mWords[i] = words[i];
        Trim();
    }

    [[nodiscard]] constexpr bool IsZero() const { return mSize == 0; }
    [[nodiscard]] constexpr bool IsOdd() const { return (mWords[0] & 1U) != 0; }
    [[nodiscard]] constexpr std::uint32_t Word(std::size_t index) const { return mWords[index]; }
    /// Significant words.
    [[nodiscard]] constexpr std::size_t Size() const { return mSize; }
    [[nodiscard]] constexpr int BitLength() const
    {
        return mSize == 0 ? 0 : static_cast<int>(32 * mSize) - std::countl_zero(mWords[mSize - 1]);
    }

    constexpr WideInteger &operator+=(const WideInteger &other)
    {
        std::uint64_t carry = 0;
        const std::size_t size = mSize > other.mSize ? mSize : other.mSize;
        for (std::size_t i = 0; i < size; ++i) {
            carry += std::uint64_t {mWords[i]} + other.mWords[i];
            mWords[i] = Low(carry);
            carry >>= 32;
        }
        mSize = size;
        if (carry != 0)
            mWords[mSize++] = Low(carry);
        return *this;
    }

    /// `other` is not greater than this.
    constexpr WideInteger &operator-=(const WideInteger &other)
    {
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i < mSize; ++i) {
            const std::uint64_t difference = std::uint64_t {mWords[i]} - other.mWords[i] - borrow;
            mWords[i] = Low(difference);
            borrow = difference >> 63;
        }
        Trim();
        return *this;
    }

    [[nodiscard]] friend constexpr WideInteger operator*(const WideInteger &left, const WideInteger &right)
    {
        WideInteger product;
        for (std::size_t i = 0; i < left.mSize; ++i) {
            std::uint64_t carry = 0;
            for (std::size_t j = 0; j < right.mSize; ++j) {
                carry += std::uint64_t {left.mWords[i]} * right.mWords[j] + product.mWords[i + j];
                product.mWords[i + j] = Low(carry);
                carry >>= 32;
            }
            product.mWords[i + right.mSize] = Low(carry);
        }
        product.mSize = left.mSize + right.mSize;
        product.Trim();
        return product;
    }

    [[nodiscard]] friend constexpr std::strong_ordering operator<=>(const WideInteger &left, const WideInteger &right)
    {
        if (left.mSize != right.mSize)
            return left.mSize <=> right.mSize;
        for (std::size_t i = left.mSize; i-- > 0;) {
            if (left.mWords[i] != right.mWords[i])
                return left.mWords[i] <=> right.mWords[i];
        }
        return std::strong_ordering::equal;
    }
    [[nodiscard]] friend constexpr bool operator==(const WideInteger &left, const WideInteger &right) = default;

    /// Divides this by a word other than zero and returns the remainder.
    constexpr std::uint32_t DivideBy(std::uint32_t divisor)
    {
        std::uint64_t remainder = 0;
        for (std::size_t i = mSize; i-- > 0;) {
            const std::uint64_t part = remainder << 32 | mWords[i];
            mWords[i] = static_cast<std::uint32_t>(part / divisor);
            remainder = part % divisor;
        }
        Trim();
        return static_cast<std::uint32_t>(remainder);
    }

    /// Divides this by a number other than zero, leaves the remainder here and returns the quotient.
    constexpr WideInteger DivideToRemainder(const WideInteger &divisor)
    {
        if (*this < divisor)
            return WideInteger {};
        if (divisor.mSize == 1) {
            WideInteger quotient = *this;
            *this = WideInteger {quotient.DivideBy(divisor.mWords[0])};
            return quotient;
        }
        return LongDivision(divisor);
    }

private:
    using Shifted = std::array<std::uint32_t, kCapacity + 1>;

    [[nodiscard]] static constexpr std::uint32_t Low(std::uint64_t value) { return static_cast<std::uint32_t>(value); }
    [[nodiscard]] static constexpr std::uint32_t High(std::uint64_t value)
    {
        return static_cast<std::uint32_t>(value >> 32);
    }

    constexpr void Trim()
    {
        while (mSize > 0 && mWords[mSize - 1] == 0)
            --mSize;
    }

    [[nodiscard]] constexpr Shifted ShiftedLeft(int bits) const
    {
        Shifted shifted {};
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < mSize; ++i) {
            carry |= std::uint64_t {mWords[i]} << bits;
            shifted[i] = Low(carry);
            carry >>= 32;
        }
        shifted[mSize] = Low(carry);
        return shifted;
    }

    /// Schoolbook division in base 2^32 (Knuth, algorithm D) by a divisor of two words or more.
    constexpr WideInteger LongDivision(const WideInteger &divisor)
    {
        const std::size_t size = divisor.mSize;
        const int shift = std::countl_zero(divisor.mWords[size - 1]);
        const Shifted lower = divisor.ShiftedLeft(shift);
        Shifted upper = ShiftedLeft(shift);

        WideInteger quotient;
        quotient.mSize = mSize - size + 1;
        for (std::size_t at = quotient.mSize; at-- > 0;) {
            std::uint32_t digit = EstimatedDigit(upper, at + size, lower, size);
            if (SubtractMultiple(upper, at, lower, size, digit)) {
                --digit;
                AddBack(upper, at, lower, size);
            }
            quotient.mWords[at] = digit;
        }
        quotient.Trim();

        for (std::size_t i = 0; i < mSize; ++i) {
            const std::uint64_t pair = std::uint64_t {upper[i + 1]} << 32 | upper[i];
            mWords[i] = i < size ? Low(pair >> shift) : 0;
        }
        mSize = size;
        Trim();
        return quotient;
    }

    /// The quotient digit from the leading words; it may be one too great, never too small.
    [[nodiscard]] static constexpr std::uint32_t EstimatedDigit(const Shifted &upper, std::size_t top,
                                                                const Shifted &lower, std::size_t size)
    {
        const std::uint64_t leading = std::uint64_t {upper[top]} << 32 | upper[top - 1];
        std::uint64_t digit = leading / lower[size - 1];
        std::uint64_t rest = leading % lower[size - 1];
        while (High(rest) == 0 && (High(digit) != 0 || digit * lower[size - 2] > (rest << 32 | upper[top - 2]))) {
            --digit;
            rest += lower[size - 1];
        }
        return Low(digit);
    }

    /// Returns whether the result went below zero.
    static constexpr bool SubtractMultiple(Shifted &upper, std::size_t at, const Shifted &lower, std::size_t size,
                                           std::uint32_t factor)
    {
        std::uint64_t carry = 0;
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i <= size; ++i) {
            carry += i < size ? std::uint64_t {factor} * lower[i] : 0;
            const std::uint64_t difference = std::uint64_t {upper[at + i]} - Low(carry) - borrow;
            upper[at + i] = Low(difference);
            borrow = difference >> 63;
            carry >>= 32;
        }
        return borrow != 0;
    }

    static constexpr void AddBack(Shifted &upper, std::size_t at, const Shifted &lower, std::size_t size)
    {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i <= size; ++i) {
            carry += std::uint64_t {upper[at + i]} + (i < size ? lower[i] : 0);
            upper[at + i] = Low(carry);
            carry >>= 32;
        }
    }

    std::array<std::uint32_t, kCapacity> mWords {};
    std::size_t mSize = 0;
};

/// 10^exponent, up to 10^57: the widest step between the scales of two decimals, and one place more.
[[nodiscard]] inline const WideInteger &PowerOfTen(std::int64_t exponent)
{
    static constexpr auto powers = [] {
        std::array<WideInteger, 58> made;
        made[0] = WideInteger {1};
        for (std::size_t i = 1; i < made.size(); ++i)
            made[i] = made[i - 1] * WideInteger {10};
        return made;
    }();
    return powers[static_cast<std::size_t>(exponent)];
}
