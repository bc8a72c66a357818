#include "core/numeric/Decimal.h"

#include "tests/numeric/RaisedNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
constexpr const char *kGreatest = "79228162514264337593543950335";

Decimal D(const char *text)
{
    return Decimal::Parse(text);
}
} // namespace

TEST(Decimal, TextIsPlainAndShort)
{
    const struct {
        const char *typed;
        const char *text;
    } cases[] = {
        {"0", "0"},
        {"-0.000", "0"},
        {"1.5000", "1.5"},
        {"-.5", "-0.5"},
        {"5.", "5"},
        {"+007.125", "7.125"},
        {" \t100 ", "100"},
        {"22441.68513", "22441.68513"},
        {"1e28", "10000000000000000000000000000"},
        {"1E-28", "0.0000000000000000000000000001"},
        {"0.5e-28", "0"},
        {"0.51e-28", "0.0000000000000000000000000001"},
        {"1.5e-28", "0.0000000000000000000000000002"},
        {"1e-999999999999999999999", "0"},
        {"0e999999999999999999999", "0"},
        {"7.9228162514264337593543950335", "7.9228162514264337593543950335"},
        {"7.92281625142643375935439503365", "7.922816251426433759354395034"},
        {"0.00000000000000000000000000000000000000000000000001e50", "1"},
        {kGreatest, kGreatest},
        {"79228162514264337593543950335.4999", kGreatest},
    };
    for (const auto &[typed, text] : cases)
        EXPECT_EQ(D(typed).Text(), text) << typed;

    for (const char *text :
         {"", " ", ".", "-", "+-1", "1-", "1,5", "1e", "1e+", "e5", "0x1", "nan", "inf", "1 2", "1.2."})
        EXPECT_EQ(RaisedNumber([&] { return D(text); }), ErrorNumber::TypeMismatch) << text;
}

TEST(Decimal, RoundsTiesToTheEvenDigit)
{
    const struct {
        const char *number;
        int places;
        const char *rounded;
    } cases[] = {{"7.125", 2, "7.12"},     {"7.135", 2, "7.14"},
                 {"-7.125", 2, "-7.12"},   {"7.1250001", 2, "7.13"},
                 {"0.5", 0, "0"},          {"1.5", 0, "2"},
                 {"-0.5", 0, "0"},         {"999.9995", 3, "1000"},
                 {"1.025", 28, "1.025"},   {"12.5", 1, "12.5"},
                 {"0.0000000005", 9, "0"}, {"7922816251426433759354395033.5", 0, "7922816251426433759354395034"}};
    for (const auto &[number, places, rounded] : cases) {
        EXPECT_EQ(D(number).Round(places).Text(), rounded) << number;
        EXPECT_EQ(D(number).Round(places).IsNegative(), *rounded == '-') << number;
    }
    for (const int places : {-1, 29})
        EXPECT_EQ(RaisedNumber([&] { return D("1").Round(places); }), ErrorNumber::InvalidCall);
}

TEST(Decimal, QuotientsHaveAsManyDigitsAsFitAndExactOnesStayShort)
{
    const struct {
        const char *left;
        const char *right;
        const char *quotient;
    } cases[] = {{"1", "3", "0.3333333333333333333333333333"},
                 {"2", "3", "0.6666666666666666666666666667"},
                 {"200", "3", "66.666666666666666666666666667"},
                 {"-1.2", "174.20", "-0.0068886337543053960964408726"},
                 {kGreatest, "2", "39614081257132168796771975168"},
                 {"0.0000000000000000000000000001", "2", "0"},
                 {"0.0000000000000000000000000003", "2", "0.0000000000000000000000000002"},
                 {"1", kGreatest, "0"},
                 {"0", "-5", "0"}};
    for (const auto &[left, right, quotient] : cases)
        EXPECT_EQ((D(left) / D(right)).Text(), quotient) << left << " / " << right;
    EXPECT_EQ((D("15.00") / D("2")).Scale(), 1);
    EXPECT_EQ((D("1000000000000000000") / D("0.001")).Scale(), 0);
}

TEST(Decimal, OutOfRangeIsAnErrorAndNeverAnInfinity)
{
    const Decimal greatest = D(kGreatest);
    EXPECT_EQ((-greatest).Text(), std::string("-") + kGreatest);
    EXPECT_EQ(greatest + D("0.4999"), greatest);

    EXPECT_EQ(RaisedNumber([&] { return D("79228162514264337593543950336"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return D("79228162514264337593543950335.5"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return D("1e999999999999999999999"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return greatest + D("0.5"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return -greatest - D("1"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return greatest * D("1.0000000000000000000000000001"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return greatest / D("0.5"); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return greatest / Decimal(); }), ErrorNumber::DivisionByZero);
    for (const double number : {0x1p96, -0x1p96, 1e300, std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_EQ(RaisedNumber([&] { return Decimal::FromDouble(number); }), ErrorNumber::Overflow) << number;
    EXPECT_EQ(Decimal::FromDouble(std::nextafter(0x1p96, 0)).Text(), "79228162514264300000000000000");
    EXPECT_EQ(Decimal::FromDouble(1e-300).Text(), "0");
    EXPECT_FALSE(Decimal::FromDouble(-0.0).IsNegative());
    EXPECT_EQ(Decimal::FromDouble(0.1 + 0.2).Text(), "0.3");
}

TEST(Decimal, WholeNumbersAreTakenToTheirLimits)
{
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t greatest = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t number : {least, greatest, std::int64_t {-1}, std::int64_t {0}}) {
        EXPECT_EQ(Decimal(number).ToInt64(), number);
        EXPECT_EQ(Decimal(number).Text(), std::to_string(number));
    }
    EXPECT_EQ(D("2.5").ToInt64(), 2);
    EXPECT_EQ(D("-9223372036854775808.5").ToInt64(), least);
    EXPECT_EQ(RaisedNumber([&] { return D("9223372036854775807.5").ToInt64(); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([&] { return D(kGreatest).ToInt64(); }), ErrorNumber::Overflow);
}
