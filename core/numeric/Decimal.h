#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

/// An exact decimal number: a sign, a 96-bit integer and a power-of-ten scale from 0 to 28.
///
/// Sums, differences and products that need more digits than fit are rounded once, half to even, into what fits;
/// quotients have as many digits as fit, the last one rounded the same way. A magnitude of 2^96 or more is an
/// overflow (RuntimeError 6), never an infinity. There is no negative zero.
class Decimal
{
public:
    static constexpr int kMaxScale = 28;
    struct Exact; ///< the room's own: a result before it is rounded

    constexpr Decimal() = default;
    explicit Decimal(std::int64_t value);

    /// The double to 15 significant digits. Overflow (6) at 2^96 and above, for infinities and for NaN.
    [[nodiscard]] static Decimal FromDouble(double value);

    /// Plain text with a point as separator: sign, digits, an optional exponent; blanks around it are skipped.
    /// Type mismatch (13) for anything else, overflow (6) out of range; digits past what fits are rounded.
    [[nodiscard]] static Decimal Parse(std::string_view text);

    [[nodiscard]] bool IsZero() const noexcept;
    [[nodiscard]] bool IsNegative() const noexcept { return mNegative; }
    [[nodiscard]] int Scale() const noexcept { return mScale; }

    [[nodiscard]] Decimal Abs() const;
    /// Rounded to `places` decimal places (0 to 28), ties to the even digit. Invalid call (5) for other places.
    [[nodiscard]] Decimal Round(int places) const;
    /// Rounded half to even to a whole number; overflow (6) where it does not fit.
    [[nodiscard]] std::int64_t ToInt64() const;
    /// The nearest double.
    [[nodiscard]] double ToDouble() const;
    /// Plain digits with a point, a digit before it, no trailing zeros, no exponent: "-0.5", "22441.68513".
    [[nodiscard]] std::string Text() const;

    [[nodiscard]] Decimal operator-() const;
    friend Decimal operator+(const Decimal &left, const Decimal &right);
    friend Decimal operator-(const Decimal &left, const Decimal &right);
    friend Decimal operator*(const Decimal &left, const Decimal &right);
    /// Division by zero (11).
    friend Decimal operator/(const Decimal &left, const Decimal &right);
    /// By value: 1.50 equals 1.5.
    friend std::strong_ordering operator<=>(const Decimal &left, const Decimal &right);
    friend bool operator==(const Decimal &left, const Decimal &right);

private:
    using Words = std::array<std::uint32_t, 3>;

    constexpr Decimal(const Words &digits, int scale, bool negative) noexcept
        : mDigits(digits)
        , mScale(static_cast<std::uint8_t>(scale))
        , mNegative(negative && digits != Words {})
    {
    }
    [[nodiscard]] Exact ToExact(int scale) const;
    /// Rounded once into what fits.
    [[nodiscard]] static Decimal Fitted(const Exact &exact);
    [[nodiscard]] static std::strong_ordering CompareMagnitudes(const Decimal &left, const Decimal &right);
    [[nodiscard]] bool FitsWord64() const noexcept { return mDigits[2] == 0; }
    [[nodiscard]] std::uint64_t Low64() const noexcept { return std::uint64_t {mDigits[1]} << 32 | mDigits[0]; }
    [[nodiscard]] Decimal WithoutTrailingZeros() const;

    Words mDigits {}; ///< least significant word first
    std::uint8_t mScale = 0;
    bool mNegative = false;
};
