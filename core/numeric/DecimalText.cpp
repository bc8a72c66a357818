#include "core/numeric/Decimal.h"
#include "core/numeric/Exact.h"
#include "core/numeric/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace
{
constexpr int kSignificant = 15;
constexpr double kEndOfSignificant = 1e15;
constexpr double kMagnitudeLimit = 0x1p96;
/// The places that most stored figures have.
constexpr int kUsualPlaces = 5;
/// The greatest power of ten that a double holds exactly is 10^22, the greatest run of whole numbers ends at 2^53.
constexpr int kExactPower = 22;
constexpr std::uint64_t kExactWhole = std::uint64_t {1} << 53;

constexpr std::array<double, kExactPower + 1> kDoublePowers
    = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
       1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Takes plain number text apart from the left. Of very many digits the leading ones are kept, of the rest only
/// whether there are any besides zeros.
class DigitReader
{
public:
    explicit DigitReader(std::string_view text)
        : mText(text)
    {
    }

    /// Nothing where the text is no number.
    [[nodiscard]] std::optional<Decimal::Exact> Read()
    {
        SkipBlanks();
        if (!Take('+'))
            mExact.negative = Take('-');
        const bool whole = ReadDigits(0);
        const bool fraction = Take('.') && ReadDigits(1);
        if (!whole && !fraction)
            return std::nullopt;
        if ((Take('E') || Take('e')) && !ReadExponent())
            return std::nullopt;
        SkipBlanks();
        Flush();
        return mAt == mText.size() ? std::optional(mExact) : std::nullopt;
    }

private:
    static constexpr int kMostKept = 36;
    static constexpr int kMostPending = 18;
    static constexpr std::int64_t kEndlessExponent = 1'000'000'000'000;

    void SkipBlanks()
    {
        while (mAt < mText.size() && (mText[mAt] == ' ' || (mText[mAt] >= '\t' && mText[mAt] <= '\r')))
            ++mAt;
    }

    bool Take(char letter)
    {
        const bool found = mAt < mText.size() && mText[mAt] == letter;
        mAt += found ? 1 : 0;
        return found;
    }

    std::optional<unsigned> TakeDigit()
    {
        if (mAt == mText.size() || mText[mAt] < '0' || mText[mAt] > '9')
            return std::nullopt;
        return static_cast<unsigned>(mText[mAt++] - '0');
    }

    /// Each digit raises the scale by `places`. Returns whether there was any.
    bool ReadDigits(int places)
    {
        const std::size_t start = mAt;
        while (const auto digit = TakeDigit()) {
            if (mKept == kMostKept) {
                mExact.more = mExact.more || *digit != 0;
                mExact.scale += places - 1;
            } else {
                Keep(*digit);
                mExact.scale += places;
            }
        }
        return mAt != start;
    }

    void Keep(unsigned digit)
    {
        if (digit == 0 && mKept == 0)
            return;
        mPending = mPending * 10 + digit;
        ++mKept;
        if (++mPendingCount == kMostPending)
            Flush();
    }

    void Flush()
    {
        mExact.digits *= PowerOfTen(mPendingCount);
        mExact.digits += mPending;
        mPending = 0;
        mPendingCount = 0;
    }

    bool ReadExponent()
    {
        const bool negative = !Take('+') && Take('-');
        const std::size_t start = mAt;
        std::int64_t exponent = 0;
        while (const auto digit = TakeDigit())
            exponent = std::min(exponent * 10 + *digit, kEndlessExponent);
        mExact.scale += negative ? exponent : -exponent;
        return mAt != start;
    }

    std::string_view mText;
    std::size_t mAt = 0;
    Decimal::Exact mExact;
    std::uint64_t mPending = 0;
    int mPendingCount = 0;
    int mKept = 0;
};

/// The whole number n where magnitude is the double nearest to n / 10^places and n has at most 15 digits: then those
/// are the 15 significant digits of the double, for every decimal of 15 digits survives the way there and back.
std::optional<std::uint64_t> ExactDigits(double magnitude, int places)
{
    const double power = kDoublePowers[static_cast<std::size_t>(places)];
    const double digits = std::nearbyint(magnitude * power);
    if (digits >= kEndOfSignificant || digits / power != magnitude)
        return std::nullopt;
    return static_cast<std::uint64_t>(digits);
}
} // namespace

Decimal Decimal::FromDouble(double value)
{
    const double magnitude = std::abs(value);
    if (!(magnitude < kMagnitudeLimit))
        throw RuntimeError(ErrorNumber::Overflow);
    const bool negative = std::signbit(value);
    for (int places : {0, kUsualPlaces}) {
        auto digits = ExactDigits(magnitude, places);
        if (!digits)
            continue;
        for (; places > 0 && *digits % 10 == 0; --places)
            *digits /= 10;
        return Fitted({.digits = *digits, .scale = places, .negative = negative});
    }

    std::array<char, 32> text {};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific,
                                   kSignificant - 1);
    Exact exact = *DigitReader({text.data(), static_cast<std::size_t>(end.ptr - text.data())}).Read();
    exact.negative = negative;
    return Fitted(exact).WithoutTrailingZeros();
}

Decimal Decimal::Parse(std::string_view text)
{
    const std::optional<Exact> exact = DigitReader(text).Read();
    if (!exact)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return Fitted(*exact);
}

double Decimal::ToDouble() const
{
    if (FitsWord64() && Low64() <= kExactWhole && mScale <= kExactPower) {
        const double magnitude = static_cast<double>(Low64()) / kDoublePowers[mScale];
        return mNegative ? -magnitude : magnitude;
    }
    const std::string text = Text();
    double nearest = 0;
    std::from_chars(text.data(), text.data() + text.size(), nearest);
    return nearest;
}

std::string Decimal::Text() const
{
    std::string text = FitsWord64() ? std::to_string(Low64()) : ToExact(0).digits.str();
    if (mScale != 0) {
        const std::size_t places = mScale;
        text.insert(0, text.size() <= places ? places + 1 - text.size() : 0, '0');
        text.insert(text.size() - places, 1, '.');
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    return mNegative ? '-' + text : text;
}
