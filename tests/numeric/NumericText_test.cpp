#include "core/numeric/NumericText.h"

#include "tests/numeric/RaisedNumber.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
const RegionalSettings kPoint;
const RegionalSettings kComma {",", ".", "€"};
const RegionalSettings kSpaced {",", "\u202F", "kr"};
const RegionalSettings kBare {".", "", ""};

struct Taken {
    const char *typed;
    const char *number;
};

void ExpectTaken(const RegionalSettings &regional, const std::vector<Taken> &cases)
{
    for (const auto &[typed, number] : cases) {
        EXPECT_TRUE(IsNumericText(typed, regional)) << typed;
        std::string text;
        EXPECT_EQ(RaisedNumber([&] { return text = NumericTextToDecimal(typed, regional).Text(); }), 0) << typed;
        EXPECT_EQ(text, number) << typed;
    }
}

void ExpectRefused(const RegionalSettings &regional, const std::vector<const char *> &cases)
{
    for (const char *typed : cases) {
        EXPECT_FALSE(IsNumericText(typed, regional)) << typed;
        EXPECT_EQ(RaisedNumber([&] { return NumericTextToDecimal(typed, regional); }), ErrorNumber::TypeMismatch)
            << typed;
    }
}
} // namespace

TEST(NumericText, TakesWhatAFieldMayHold)
{
    ExpectTaken(kPoint,
                {{"7.52", "7.52"},
                 {" 7.52\t", "7.52"},
                 {"-7", "-7"},
                 {"7-", "-7"},
                 {"+7", "7"},
                 {"7 +", "7"},
                 {"- 7", "-7"},
                 {".5", "0.5"},
                 {"5.", "5"},
                 {"1,5", "15"},
                 {"12,34,5.25", "12345.25"},
                 {"1e3", "1000"},
                 {"1.5E-2", "0.015"},
                 {"2E+2-", "-200"},
                 {"(7)", "-7"},
                 {"( 7.5 )", "-7.5"},
                 {"$5", "5"},
                 {"5 $", "5"},
                 {"-$5", "-5"},
                 {"$-5", "-5"},
                 {"($5)", "-5"},
                 {"$(5)", "-5"},
                 {"(5)$", "-5"},
                 {"-0", "0"},
                 {"\u00A05\u00A0", "5"},
                 {"1e-400", "0"},
                 {"007", "7"}});
    ExpectRefused(kPoint, {"",    "  ",   "x",   ".",   "-",   "$",    "()",    "(5",    "5)",    "-(5)", "(-5)",
                           "+-5", "-5-",  "$5$", ",5",  "5,",  "1,,5", "1.5.2", "1.2,3", "1e",    "1e+",  "e5",
                           "1 5", "1e5.", "5%",  "nan", "inf", "1d5",  "0x10",  "5€",    "((5))", "5 x",  "١٢"});
}

TEST(NumericText, FollowsTheRegionalSettings)
{
    ExpectTaken(kComma, {{"7,52", "7.52"}, {"1.5", "15"}, {"1.234,5", "1234.5"}, {"5 €", "5"}, {",5", "0.5"}});
    ExpectRefused(kComma, {"1,5,2", "1,234.5", "$5"});
    ExpectTaken(kSpaced, {{"1\u202F234,5", "1234.5"}, {"1\u00A0234,5 kr", "1234.5"}, {"1 234", "1234"}});
    ExpectRefused(kSpaced, {"1.5", "1  234", "7\t234", "1 ,5"});
    ExpectTaken(kBare, {{"7.5", "7.5"}});
    ExpectRefused(kBare, {"1,5", "$5", ""});
}

TEST(NumericText, HexadecimalAndOctalAreSignedBits)
{
    ExpectTaken(kPoint,
                {{"&HFF", "255"},
                 {"&h7fff", "32767"},
                 {" &HFFFF ", "-1"},
                 {"&H8000", "-32768"},
                 {"&H10000", "65536"},
                 {"&HFFFFFFFF", "-1"},
                 {"&H80000000", "-2147483648"},
                 {"&O17", "15"},
                 {"&o177777", "-1"},
                 {"&17", "15"},
                 {"&200000", "65536"},
                 {"&O37777777777", "-1"}});
    ExpectRefused(kPoint,
                  {"&", "&H", "&O", "&HG", "&8", "-&H1", "&H-1", "&H1FFFFFFFF", "&O40000000000", "&H1.5", "H1"});
}

TEST(NumericText, FormMayPassWhereTheNumberIsOutOfRange)
{
    const std::string manyDigits(400, '9');
    const struct {
        std::string typed;
        bool numeric;
    } cases[] = {{"79228162514264337593543950336", true},
                 {"1e300", true},
                 {"-1e300", true},
                 {"1e309", false},
                 {"0.001e312", false},
                 {"1e99999999999999999999", false},
                 {manyDigits, false}};
    for (const auto &[typed, numeric] : cases) {
        EXPECT_EQ(IsNumericText(typed, kPoint), numeric) << typed;
        EXPECT_EQ(RaisedNumber([&] { return NumericTextToDecimal(typed, kPoint); }), ErrorNumber::Overflow) << typed;
    }
    ExpectTaken(kPoint, {{"0e400", "0"}, {"1e-99999999999999999999", "0"}});
    EXPECT_TRUE(IsNumericText(manyDigits + "e-390", kPoint));
    EXPECT_TRUE(IsNumericText("7e-" + std::string(400, '4'), kPoint));
    EXPECT_FALSE(IsNumericText("7e" + std::string(400, '4'), kPoint));
    EXPECT_TRUE(IsNumericText("0." + std::string(400, '0') + "1", kPoint));
}

TEST(NumericText, AFieldsNumberGoesIntoAStatementAsItStands)
{
    const struct {
        const RegionalSettings &regional;
        std::string typed;
        std::string sql;
    } taken[] = {{kPoint, "171.50", "171.50"},
                 {kPoint, " -0.5 ", "-0.5"},
                 {kPoint, "+.5", "+.5"},
                 {kPoint, "1e3", "1e3"},
                 {kComma, "171,50", "171.50"}};
    for (const auto &[regional, typed, sql] : taken)
        EXPECT_EQ(FieldSqlText(typed, regional), sql);
    // A dollar sign would name a parameter, parentheses hide a sign, separators make two values of one.
    for (const std::string typed :
         {"", " ", "abc", "$5", "(5)", "1,234", "&H10", "5-", "- 5", "1; DROP", "5 --", "0x10", "inf", "nan"})
        EXPECT_EQ(RaisedNumber([&] { return FieldSqlText(typed, kPoint); }), ErrorNumber::TypeMismatch) << typed;
    for (const std::string typed : {"1.234", "1.234,5", "1,2,3"})
        EXPECT_EQ(RaisedNumber([&] { return FieldSqlText(typed, kComma); }), ErrorNumber::TypeMismatch) << typed;
    EXPECT_EQ(RaisedNumber([] { return FieldSqlText("1e30", kPoint); }), ErrorNumber::Overflow);
}
