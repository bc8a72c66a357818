#include "tests/numeric/DecimalReference.h"

#include <algorithm>

namespace
{
constexpr const char *kGreatest = "79228162514264337593543950335";

std::string Trimmed(const std::string &digits)
{
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

bool Less(const std::string &left, const std::string &right)
{
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

int DigitAt(const std::string &digits, std::size_t place)
{
    return place < digits.size() ? digits[digits.size() - 1 - place] - '0' : 0;
}

/// left + sign * right, which is not below zero.
std::string Combined(const std::string &left, const std::string &right, int sign)
{
    std::string result;
    int carry = 0;
    for (std::size_t place = 0; place < std::max(left.size(), right.size()) + 1; ++place) {
        const int digit = DigitAt(left, place) + sign * DigitAt(right, place) + carry;
        carry = digit < 0 ? -1 : digit / 10;
        result.insert(result.begin(), static_cast<char>('0' + (digit + 10) % 10));
    }
    return Trimmed(result);
}
} // namespace

DecimalReference DecimalReference::Sum(const DecimalReference &left, const DecimalReference &right)
{
    const int scale = std::max(left.scale, right.scale);
    const std::string a = Trimmed(left.digits + std::string(static_cast<std::size_t>(scale - left.scale), '0'));
    const std::string b = Trimmed(right.digits + std::string(static_cast<std::size_t>(scale - right.scale), '0'));
    if (left.negative == right.negative)
        return {Combined(a, b, 1), scale, left.negative};
    return Less(a, b) ? DecimalReference {Combined(b, a, -1), scale, right.negative}
                      : DecimalReference {Combined(a, b, -1), scale, left.negative};
}

DecimalReference DecimalReference::Product(const DecimalReference &left, const DecimalReference &right)
{
    std::string product;
    for (const char digit : left.digits) {
        product = Trimmed(product + '0');
        for (char count = '0'; count < digit; ++count)
            product = Combined(product, right.digits, 1);
    }
    return {product, left.scale + right.scale, left.negative != right.negative};
}

DecimalReference DecimalReference::Quotient(const DecimalReference &left, const DecimalReference &right)
{
    const int places = 60;
    const auto zeros = static_cast<std::size_t>(places + right.scale - left.scale);
    std::string quotient;
    std::string remainder;
    for (const char digit : left.digits + std::string(zeros, '0')) {
        remainder = Trimmed(remainder + digit);
        quotient += '0';
        for (; !Less(remainder, right.digits); ++quotient.back())
            remainder = Combined(remainder, right.digits, -1);
    }
    quotient += remainder.empty() ? '0' : '1';
    return {Trimmed(quotient), places + 1, left.negative != right.negative};
}

std::string DecimalReference::AllDigits() const
{
    std::string text = digits;
    const auto places = static_cast<std::size_t>(scale);
    if (text.size() <= places)
        text.insert(0, places + 1 - text.size(), '0');
    text.insert(text.size() - places, ".");
    return (negative ? "-" : "") + text;
}

std::string DecimalReference::FittedText() const
{
    for (int dropped = std::max(0, scale - 28); dropped <= scale; ++dropped) {
        const std::size_t kept = digits.size() - std::min(digits.size(), static_cast<std::size_t>(dropped));
        std::string rounded = digits.substr(0, kept);
        const std::string cut
            = std::string(static_cast<std::size_t>(dropped) - (digits.size() - kept), '0') + digits.substr(kept);
        const std::string half = cut.empty() ? "" : '5' + std::string(cut.size() - 1, '0');
        const bool odd = !rounded.empty() && (rounded.back() - '0') % 2 == 1;
        if (cut > half || (!cut.empty() && cut == half && odd))
            rounded = Combined(rounded, "1", 1);
        if (Less(kGreatest, rounded))
            continue;
        std::string text = DecimalReference {rounded, scale - dropped, negative && !rounded.empty()}.AllDigits();
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
        return text;
    }
    return "overflow";
}
