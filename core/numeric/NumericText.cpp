#include "core/numeric/NumericText.h"

#include "core/numeric/RuntimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <system_error>

namespace
{
constexpr std::string_view kNoBreakSpace = "\u00A0";
constexpr std::string_view kThinSpace = "\u2009";
constexpr std::string_view kNarrowNoBreakSpace = "\u202F";
constexpr std::array<std::string_view, 4> kSpaces = {" ", kNoBreakSpace, kThinSpace, kNarrowNoBreakSpace};

std::size_t LeadingSpace(std::string_view text)
{
    const auto found
        = std::ranges::find_if(kSpaces, [text](std::string_view space) { return text.starts_with(space); });
    return found == kSpaces.end() ? 0 : found->size();
}

bool IsControl(char letter)
{
    return letter >= '\t' && letter <= '\r';
}

/// The bytes of the blank that the text begins with, 0 where it begins with none.
std::size_t LeadingBlank(std::string_view text)
{
    return !text.empty() && IsControl(text.front()) ? 1 : LeadingSpace(text);
}

std::size_t TrailingBlank(std::string_view text)
{
    if (!text.empty() && IsControl(text.back()))
        return 1;
    const auto found = std::ranges::find_if(kSpaces, [text](std::string_view space) { return text.ends_with(space); });
    return found == kSpaces.end() ? 0 : found->size();
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Reads a number written in decimal digits and turns it into plain text with a point.
class NumberReader
{
public:
    NumberReader(std::string_view text, const RegionalSettings &regional)
        : mRest(text)
        , mRegional(regional)
    {
    }

    /// Nothing where the text is no number.
    [[nodiscard]] std::optional<std::string> Read()
    {
        while (TakeBlank() || TakeSign() || TakeCurrency() || TakeOpening())
            ;
        if (!TakeDigits())
            return std::nullopt;
        TakeExponent();
        while (TakeBlank() || TakeSign() || TakeCurrency() || TakeClosing())
            ;
        if (!mRest.empty() || mParenthesis == Parenthesis::Open)
            return std::nullopt;
        return mNegative ? "-" + mPlain : mPlain;
    }

private:
    enum class Parenthesis : std::uint8_t { None, Open, Closed };

    bool Take(std::string_view part)
    {
        if (part.empty() || !mRest.starts_with(part))
            return false;
        mRest.remove_prefix(part.size());
        return true;
    }

    bool TakeBlank()
    {
        const std::size_t size = LeadingBlank(mRest);
        mRest.remove_prefix(size);
        return size != 0;
    }

    bool TakeSign()
    {
        if (mSigned)
            return false;
        const bool minus = Take("-");
        mSigned = minus || Take("+");
        mNegative = mNegative || minus;
        return mSigned;
    }

    bool TakeCurrency()
    {
        if (mCurrency)
            return false;
        mCurrency = Take(mRegional.currencySymbol);
        return mCurrency;
    }

    /// Parentheses are a sign of their own, so no other goes with them.
    bool TakeOpening()
    {
        if (mSigned || !Take("("))
            return false;
        mParenthesis = Parenthesis::Open;
        mSigned = true;
        mNegative = true;
        return true;
    }

    bool TakeClosing()
    {
        if (mParenthesis != Parenthesis::Open || !Take(")"))
            return false;
        mParenthesis = Parenthesis::Closed;
        return true;
    }

    bool TakeRun()
    {
        const std::size_t start = mPlain.size();
        while (!mRest.empty() && IsDigit(mRest.front())) {
            mPlain.push_back(mRest.front());
            mRest.remove_prefix(1);
        }
        return mPlain.size() != start;
    }

    bool TakeDigits()
    {
        const bool whole = TakeRun();
        while (whole && TakeGroupSeparator())
            TakeRun();
        if (!Take(mRegional.decimalSeparator))
            return whole;
        mPlain.push_back('.');
        return TakeRun() || whole;
    }

    /// One that stands between two digits. Where a kind of blank separates groups, the keyboard's own does too.
    bool TakeGroupSeparator()
    {
        const std::string_view separator = mRegional.groupSeparator;
        if (separator == mRegional.decimalSeparator)
            return false;
        std::size_t size = mRest.starts_with(separator) ? separator.size() : 0;
        if (size == 0 && LeadingSpace(separator) != 0)
            size = LeadingSpace(mRest);
        if (size == 0 || size == mRest.size() || !IsDigit(mRest[size]))
            return false;
        mRest.remove_prefix(size);
        return true;
    }

    /// An E without digits behind it is left for what follows: a currency sign may begin with one.
    void TakeExponent()
    {
        if (mRest.empty() || (mRest.front() != 'E' && mRest.front() != 'e'))
            return;
        std::size_t digits = 1;
        if (mRest.size() > 1 && (mRest[1] == '+' || mRest[1] == '-'))
            ++digits;
        if (mRest.size() == digits || !IsDigit(mRest[digits]))
            return;
        mPlain.append(mRest.substr(0, digits));
        mRest.remove_prefix(digits);
        TakeRun();
    }

    std::string_view mRest;
    const RegionalSettings &mRegional;
    std::string mPlain;
    bool mSigned = false;
    bool mNegative = false;
    bool mCurrency = false;
    Parenthesis mParenthesis = Parenthesis::None;
};

/// What &H, &O and & stand for. What fits in 16 bits is a signed 16-bit number, so &HFFFF is -1; what fits in 32 bits
/// a signed 32-bit one.
std::optional<std::int64_t> ReadBits(std::string_view text)
{
    if (!text.starts_with('&'))
        return std::nullopt;
    text.remove_prefix(1);
    int base = 8;
    if (text.starts_with('H') || text.starts_with('h'))
        base = 16;
    if (base == 16 || text.starts_with('O') || text.starts_with('o'))
        text.remove_prefix(1);

    std::uint32_t bits = 0;
    const char *const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, bits, base);
    if (error != std::errc {} || end != last)
        return std::nullopt;
    if (bits <= 0xFFFFU)
        return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

/// Whether the number of a plain text is 1 or more, however many digits or how great an exponent it has.
bool IsOneOrMore(std::string_view plain)
{
    const std::size_t mark = std::min(plain.find_first_of("Ee"), plain.size());
    const std::size_t first = plain.find_first_of("123456789");
    if (first >= mark)
        return false;
    double exponent = 0;
    if (mark != plain.size()) {
        const std::size_t start = plain[mark + 1] == '+' ? mark + 2 : mark + 1;
        const auto result = std::from_chars(plain.data() + start, plain.data() + plain.size(), exponent);
        if (result.ec == std::errc::result_out_of_range)
            exponent = plain[start] == '-' ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
    }
    const std::size_t point = std::min(plain.find('.'), mark);
    return static_cast<double>(point) - static_cast<double>(first) + exponent + (first > point ? 1 : 0) > 0;
}

/// Whether a double can hold the number of a plain text; what is too small for one counts as 0.
bool WithinDouble(std::string_view plain)
{
    double number = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    return (result.ec == std::errc {} && std::isfinite(number)) || !IsOneOrMore(plain);
}
} // namespace

bool IsNumericText(std::string_view text, const RegionalSettings &regional)
{
    const std::string_view trimmed = Trimmed(text);
    if (ReadBits(trimmed))
        return true;
    const auto plain = NumberReader(trimmed, regional).Read();
    return plain && WithinDouble(*plain);
}

Decimal NumericTextToDecimal(std::string_view text, const RegionalSettings &regional)
{
    const std::string_view trimmed = Trimmed(text);
    if (const auto bits = ReadBits(trimmed))
        return Decimal(*bits);
    const auto plain = NumberReader(trimmed, regional).Read();
    if (!plain)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return Decimal::Parse(*plain);
}

std::optional<Decimal> TypedNumber(std::string_view text)
{
    try {
        return NumericTextToDecimal(text);
    } catch (const RuntimeError &error) {
        if (error.Number() != ErrorNumber::Overflow)
            throw;
        return std::nullopt;
    }
}

std::string FieldSqlText(std::string_view text, const RegionalSettings &regional)
{
    static_cast<void>(NumericTextToDecimal(text, regional));
    std::string plain(Trimmed(text));
    if (regional.decimalSeparator != ".") {
        if (plain.find('.') != std::string::npos)
            throw RuntimeError(ErrorNumber::TypeMismatch);
        if (const std::size_t at = plain.find(regional.decimalSeparator); at != std::string::npos)
            plain.replace(at, regional.decimalSeparator.size(), ".");
    }
    const char *const last = plain.data() + plain.size();
    double number = 0;
    const auto [end, error] = std::from_chars(plain.data() + (plain.front() == '+' ? 1 : 0), last, number);
    if (error != std::errc {} || end != last)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return plain;
}

std::string_view Trimmed(std::string_view text)
{
    while (const std::size_t size = LeadingBlank(text))
        text.remove_prefix(size);
    while (const std::size_t size = TrailingBlank(text))
        text.remove_suffix(size);
    return text;
}
