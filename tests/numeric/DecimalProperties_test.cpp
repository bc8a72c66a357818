#include "core/numeric/Decimal.h"
#include "tests/numeric/DecimalReference.h"
#include "tests/numeric/RaisedNumber.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <random>

namespace
{
/// Numbers of every length and scale, with the runs of zeros and nines that carries and ties come from.
class Numbers
{
public:
    DecimalReference Next(int mostDigits = 28)
    {
        DecimalReference number;
        const int count = Pick(1, mostDigits);
        const char fill = "059"[Pick(0, 2)];
        const bool random = Pick(0, 3) == 0;
        for (int i = 0; i < count; ++i)
            number.digits += random || i == 0 || Pick(0, 5) == 0 ? static_cast<char>('0' + Pick(0, 9)) : fill;
        number.digits.erase(0, std::min(number.digits.find_first_not_of('0'), number.digits.size()));
        number.scale = Pick(0, 28);
        number.negative = !number.digits.empty() && Pick(0, 1) == 1;
        return number;
    }

    int Pick(int least, int greatest) { return std::uniform_int_distribution<int>(least, greatest)(mEngine); }

private:
    std::mt19937 mEngine {20240607};
};

template<class Act> std::string TextOf(Act act)
{
    std::string text;
    const std::int32_t error = RaisedNumber([&] { return text = act().Text(); });
    return error == ErrorNumber::Overflow ? "overflow" : text;
}
} // namespace

TEST(DecimalProperties, ArithmeticIsTheExactResultRoundedOnce)
{
    Numbers numbers;
    for (int round = 0; round < 3000; ++round) {
        const DecimalReference a = numbers.Next();
        const DecimalReference b = numbers.Next();
        const Decimal left = Decimal::Parse(a.AllDigits());
        const Decimal right = Decimal::Parse(b.AllDigits());
        SCOPED_TRACE(a.AllDigits() + " and " + b.AllDigits());
        ASSERT_EQ(left.Text(), a.FittedText());
        ASSERT_EQ(TextOf([&] { return left + right; }), DecimalReference::Sum(a, b).FittedText());
        ASSERT_EQ(TextOf([&] { return left * right; }), DecimalReference::Product(a, b).FittedText());
        if (right.IsZero())
            continue;
        ASSERT_EQ(TextOf([&] { return left / right; }), DecimalReference::Quotient(a, b).FittedText());
    }
}

TEST(DecimalProperties, OrderIsTheSignOfTheDifference)
{
    Numbers numbers;
    for (int round = 0; round < 3000; ++round) {
        const DecimalReference a = numbers.Next(8);
        DecimalReference b = round % 3 == 0 ? a : numbers.Next(8);
        const Decimal left = Decimal::Parse(a.AllDigits());
        const Decimal right = Decimal::Parse(b.AllDigits() + "000");
        b.negative = !b.negative;
        const DecimalReference difference = DecimalReference::Sum(a, b);
        SCOPED_TRACE(left.Text() + " and " + right.Text());
        ASSERT_EQ(left == right, difference.digits.empty());
        ASSERT_EQ(left < right, difference.negative && !difference.digits.empty());
        ASSERT_EQ(left > right, right < left);
        ASSERT_EQ((left - right).IsZero(), left == right);
    }
}

TEST(DecimalProperties, LongTextsAreRoundedOnceAndRoundingDropsDigitsHalfToEven)
{
    Numbers numbers;
    for (int round = 0; round < 2000; ++round) {
        DecimalReference number = numbers.Next(70);
        const std::string exponent = "e" + std::to_string(numbers.Pick(-20, 20));
        DecimalReference moved = number;
        moved.scale -= std::stoi(exponent.substr(1));
        if (moved.scale < 0 && !moved.digits.empty())
            moved.digits.append(static_cast<std::size_t>(-moved.scale), '0');
        moved.scale = std::max(0, moved.scale);
        SCOPED_TRACE(number.AllDigits() + exponent);
        ASSERT_EQ(TextOf([&] { return Decimal::Parse(number.AllDigits() + exponent); }), moved.FittedText());

        number = numbers.Next();
        const int places = numbers.Pick(0, number.scale);
        DecimalReference shifted = number;
        shifted.scale = 28 + number.scale - places;
        const Decimal rounded = Decimal::Parse(number.AllDigits()).Round(places);
        ASSERT_LE(rounded.Scale(), places);
        ASSERT_EQ(rounded / Decimal::Parse("1e" + std::to_string(28 - places)), Decimal::Parse(shifted.FittedText()));
    }
}

TEST(DecimalProperties, DoublesGiveTheirFifteenDigitsAndComeBackNearest)
{
    std::mt19937_64 engine {7};
    for (int round = 0; round < 4000; ++round) {
        const double whole = std::uniform_real_distribution<double>(-1e6, 1e6)(engine);
        const double value = round % 2 == 0 ? std::ldexp(whole, static_cast<int>(engine() % 60) - 20)
                                            : std::nearbyint(whole * 1000) / (round % 4 == 1 ? 1000 : 1e7);
        char digits[32];
        const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific, 14);
        const Decimal decimal = Decimal::FromDouble(value);
        ASSERT_EQ(decimal.Text(), Decimal::Parse({digits, end.ptr}).Text());

        const std::string text = (decimal / Decimal(7)).Text();
        double nearest = 0;
        std::from_chars(text.data(), text.data() + text.size(), nearest);
        ASSERT_EQ((decimal / Decimal(7)).ToDouble(), nearest);
    }
}
