#include "frame/store/Criterion.h"

#include "core/numeric/NumericText.h"
#include "frame/store/Connection.h"

#include <cmath>

namespace
{
[[noreturn]] void RefuseCriterion()
{
    throw RuntimeError(StoreError::BadArgument, "The criterion cannot be understood.");
}

std::size_t DigitsAt(std::string_view text, std::size_t at)
{
    const std::size_t end = text.find_first_not_of("0123456789", at);
    return (end == std::string_view::npos ? text.size() : end) - at;
}

std::size_t SignAt(std::string_view text, std::size_t at)
{
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? 1 : 0;
}

/// A number as statements write it, with a point.
bool IsPlainNumber(std::string_view text)
{
    std::size_t at = SignAt(text, 0);
    std::size_t digits = DigitsAt(text, at);
    at += digits;
    if (at < text.size() && text[at] == '.') {
        const std::size_t places = DigitsAt(text, at + 1);
        at += 1 + places;
        digits += places;
    }
    if (digits != 0 && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        at += 1 + SignAt(text, at + 1);
        digits = DigitsAt(text, at);
        at += digits;
    }
    return digits != 0 && at == text.size();
}

std::string_view WithoutLeadingBlanks(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}
} // namespace

std::string_view TakeColumnName(std::string_view &text)
{
    text = WithoutLeadingBlanks(text);
    const bool bracketed = text.starts_with('[');
    const std::size_t end = bracketed ? text.find(']') : text.find_first_of(" =<>");
    if (bracketed && end == std::string_view::npos)
        return {};
    const std::string_view name = bracketed ? text.substr(1, end - 1) : text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(bracketed ? end + 1 : end);
    return name;
}

Criterion::Criterion(std::string_view text, const RowTable &table, BareText bareText)
{
    const std::string_view name = TakeColumnName(text);
    if (name.empty())
        RefuseCriterion();
    mColumn = table.RequireColumn(name);
    ReadOperator(text);
    if (text.empty())
        RefuseCriterion();
    const bool quoted = text.front() == '\'';
    if (quoted)
        ReadQuoted(text);
    else
        mText = text;
    if (const std::string_view bare = Trimmed(mText); IsPlainNumber(bare))
        ReadNumber(bare, quoted);
    else if (!quoted && bareText == BareText::Refused)
        RefuseCriterion();
}

void Criterion::ReadOperator(std::string_view &rest)
{
    rest = WithoutLeadingBlanks(rest);
    if (rest.starts_with("="))
        mOperator = Operator::Equal;
    else if (rest.starts_with("<="))
        mOperator = Operator::AtMost;
    else if (rest.starts_with(">="))
        mOperator = Operator::AtLeast;
    else
        RefuseCriterion();
    rest = WithoutLeadingBlanks(rest.substr(mOperator == Operator::Equal ? 1 : 2));
}

void Criterion::ReadQuoted(std::string_view quoted)
{
    for (std::size_t at = 1;;) {
        const std::size_t quote = quoted.find('\'', at);
        if (quote == std::string_view::npos)
            RefuseCriterion();
        mText += quoted.substr(at, quote - at);
        at = quote + 1;
        // A quote that stands inside the text is written twice.
        if (!quoted.substr(at).starts_with('\'')) {
            if (!WithoutLeadingBlanks(quoted.substr(at)).empty())
                RefuseCriterion();
            return;
        }
        mText += '\'';
        ++at;
    }
}

void Criterion::ReadNumber(std::string_view text, bool quoted)
try {
    // Far wider than what 15 digits can be off, far narrower than the steps of any table.
    constexpr double kRelative = 1e-9;
    constexpr double kLeast = 1e-20;
    mNumber = Decimal::Parse(text);
    const double number = mNumber->ToDouble();
    const double margin = std::abs(number) * kRelative + kLeast;
    mBelow = number - margin;
    mAbove = number + margin;
} catch (const RuntimeError &) {
    // Out of range, it can still be the text of a name.
    if (!quoted)
        throw;
}

int Criterion::CompareClose(const Cell &cell) const
{
    const Decimal number = cell.kind == Cell::Kind::Real ? Decimal::FromDouble(cell.real) : Decimal(cell.whole);
    const auto order = number <=> *mNumber;
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}
