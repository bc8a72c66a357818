#include "core/numeric/Value.h"

#include "core/numeric/Regional.h"
#include "tests/numeric/RaisedNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using Kind = Value::Kind;

Value I(int number)
{
    return static_cast<std::int16_t>(number);
}

Value L(std::int32_t number)
{
    return number;
}

Value Dec(const char *text)
{
    return Decimal::Parse(text);
}
} // namespace

TEST(Value, ArithmeticPromotesItsKinds)
{
    const Value none;
    const struct {
        Value result;
        Kind kind;
        const char *text;
    } cases[] = {
        {I(2) + I(3), Kind::Integer, "5"},
        {I(32767) + I(1), Kind::Long, "32768"},
        {I(-32768) * I(-32768), Kind::Long, "1073741824"},
        {I(2) - L(3), Kind::Long, "-1"},
        {L(2147483647) + I(1), Kind::Double, "2147483648"},
        {L(2147483647) * L(2147483647), Kind::Double, "4.61168601413242E+18"},
        {I(6) / I(3), Kind::Double, "2"},
        {L(1) / I(8), Kind::Double, "0.125"},
        {I(1) + Value(0.5), Kind::Double, "1.5"},
        {Value(true) + I(1), Kind::Integer, "0"},
        {none + I(7), Kind::Integer, "7"},
        {none + none, Kind::Integer, "0"},
        {none - Dec("1.5"), Kind::Decimal, "-1.5"},
        {Value(true) * Dec("1.5"), Kind::Decimal, "-1.5"},
        {Dec("6") / I(4), Kind::Decimal, "1.5"},
        {Dec("1.025") / Value(1.025), Kind::Decimal, "1"},
        {Value(0.1 + 0.2) + Dec("0"), Kind::Decimal, "0.3"},
        {Value(0.5) * Dec("22441.68513"), Kind::Decimal, "11220.842565"},
        {I(1) / Dec("3"), Kind::Decimal, "0.3333333333333333333333333333"},
    };
    for (const auto &[result, kind, text] : cases) {
        EXPECT_EQ(result.Type(), kind) << text;
        EXPECT_EQ(result.Text(), text);
    }
}

TEST(Value, ArithmeticRaisesTheErrorOfItsOperand)
{
    const struct {
        Value left;
        Value right;
        std::int32_t error;
    } cases[] = {{Value::EmptyText(), Dec("1"), ErrorNumber::TypeMismatch},
                 {I(1), "5", ErrorNumber::TypeMismatch},
                 {Value::Null(), I(1), ErrorNumber::InvalidUseOfNull},
                 {Value(), Value::Null(), ErrorNumber::InvalidUseOfNull},
                 {Value(1e300), Dec("1"), ErrorNumber::Overflow}};
    for (const auto &[left, right, error] : cases) {
        EXPECT_EQ(RaisedNumber([&, l = left, r = right] { return l + r; }), error);
        EXPECT_EQ(RaisedNumber([&, l = left, r = right] { return l - r; }), error);
        EXPECT_EQ(RaisedNumber([&, l = left, r = right] { return l * r; }), error);
        EXPECT_EQ(RaisedNumber([&, l = left, r = right] { return l / r; }), error);
    }
    for (const Value &zero : {I(0), L(0), Value(0.0), Dec("0.00"), Value(), Value(false)}) {
        EXPECT_EQ(RaisedNumber([&] { return I(1) / zero; }), ErrorNumber::DivisionByZero);
        EXPECT_EQ(RaisedNumber([&] { return Dec("0") / zero; }), ErrorNumber::DivisionByZero);
    }
    EXPECT_EQ(RaisedNumber([] { return Value(1e308) * Value(10.0); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([] { return Value(1e308) / Value(0.1); }), ErrorNumber::Overflow);
}

TEST(Value, ComparesNumbersByValueAndNeverWithText)
{
    const Value one[] = {I(1), L(1), Value(1.0), Dec("1.000")};
    for (const Value &left : one) {
        for (const Value &right : one) {
            EXPECT_EQ(left, right);
            EXPECT_TRUE(left <= right && left >= right && !(left < right) && !(left > right));
        }
        EXPECT_NE(left, "1");
        EXPECT_LT(Value(), left);
        EXPECT_GT(left, Dec("0.9999999999999999999999999999"));
    }
    EXPECT_EQ(Value(0.1 + 0.2), Dec("0.3"));
    EXPECT_NE(Value(0.1 + 0.2), Value(0.3));
    EXPECT_EQ(Value(), Value());
    EXPECT_EQ(Value(), Value::EmptyText());
    EXPECT_EQ(Value(), I(0));
    EXPECT_EQ(Value(true), I(-1));
    EXPECT_EQ(Value::EmptyText(), "");
    EXPECT_NE(Value("a"), "A");
    EXPECT_NE(I(0), "");
    EXPECT_NE(Value::Null(), Value::Null());
    EXPECT_NE(Value::Null(), Value());

    EXPECT_LT(Dec("1"), Value(1e300));
    EXPECT_GT(Dec("1"), Value(-std::numeric_limits<double>::infinity()));
    EXPECT_NE(Value(1e300), Dec("1"));
    EXPECT_EQ(RaisedNumber([] { return Value("1") < I(2); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(RaisedNumber([] { return I(1) >= Value::EmptyText(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(RaisedNumber([] { return I(1) > Value::Null(); }), ErrorNumber::InvalidUseOfNull);
}

TEST(Value, DefaultTextFollowsTheMachineAndStatementTextDoesNot)
{
    const ScopedPort commas(RegionalPort(), {",", ".", "€"});
    const struct {
        Value value;
        const char *text;
        const char *statement;
    } cases[] = {{Dec("1.5000"), "1,5", "1.5"},
                 {Dec("-22441.68513"), "-22441,68513", "-22441.68513"},
                 {Value(0.1), "0,1", "0.1"},
                 {Value(0.1 + 0.2), "0,3", "0.3"},
                 {Value(-0.0), "0", "0"},
                 {Value(1.0 / 3), "0,333333333333333", "0.333333333333333"},
                 {Value(123456789012345.0), "123456789012345", "123456789012345"},
                 {Value(1e15), "1E+15", "1000000000000000"},
                 {Value(-1.25e-7), "-1,25E-07", "-0.000000125"},
                 {Value(1e30), "1E+30", "1000000000000000019884624838656"},
                 {I(-5), "-5", "-5"},
                 {L(70000), "70000", "70000"},
                 {Value(true), "True", "True"},
                 {Value(false), "False", "False"},
                 {Value("1.5"), "1.5", "1.5"},
                 {Value(), "", ""}};
    for (const auto &[value, text, statement] : cases) {
        EXPECT_EQ(value.Text(), text);
        EXPECT_EQ(value.SqlText(), statement);
    }
    EXPECT_EQ(RaisedNumber([] { return Value::Null().Text(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(RaisedNumber([] { return Value::Null().SqlText(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(Val2Dec("7,125", 2).Text(), "7,12");
    EXPECT_EQ(Value("1.5").ToDouble(), 15);
}

TEST(Value, ConvertsWithinRange)
{
    EXPECT_EQ(Value("32766.5").ToInteger(), 32766);
    EXPECT_EQ(Value(-2.5).ToLong(), -2);
    EXPECT_EQ(Dec("-2147483648.5").ToLong(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Value().ToInteger(), 0);
    EXPECT_EQ(Value(true).ToLong(), -1);
    for (const Value &value : {Dec("32767.5"), Value(-32769.0), L(32768), Value(1e300), Value("99999")})
        EXPECT_EQ(RaisedNumber([&] { return value.ToInteger(); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([] { return Value(2147483647.5).ToLong(); }), ErrorNumber::Overflow);

    for (const Value &value : {Value("tRue"), Value(1e-300), Dec("-0.1"), Value("2"), Value(true)})
        EXPECT_TRUE(value.ToBoolean());
    for (const Value &value : {Value("FALSE"), Value(0.0), Dec("0.0"), Value("0"), Value()})
        EXPECT_FALSE(value.ToBoolean());
    EXPECT_EQ(RaisedNumber([] { return Value("yes").ToBoolean(); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(RaisedNumber([] { return Value::Null().ToBoolean(); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(RaisedNumber([] { return Value::EmptyText().ToDouble(); }), ErrorNumber::TypeMismatch);
}

TEST(Value, RoundAndAbsKeepTheKind)
{
    const struct {
        Value value;
        Kind kind;
        const char *rounded;
        const char *magnitude;
    } cases[] = {{Dec("-7.12505"), Kind::Decimal, "-7.125", "7.12505"},
                 {Value(-2.0005), Kind::Double, "-2", "2.0005"},
                 {Value(-2.0015), Kind::Double, "-2.002", "2.0015"},
                 {Value(-1e300), Kind::Double, "-1E+300", "1E+300"},
                 {I(-7), Kind::Integer, "-7", "7"},
                 {L(-70000), Kind::Long, "-70000", "70000"},
                 {Value("-1.23456"), Kind::Decimal, "-1.235", "1.23456"},
                 {Value(), Kind::Integer, "0", "0"}};
    for (const auto &[value, kind, rounded, magnitude] : cases) {
        EXPECT_EQ(Round(value, 3).Type(), kind) << rounded;
        EXPECT_EQ(Round(value, 3).Text(), rounded);
        EXPECT_EQ(Abs(value).Type(), kind) << rounded;
        EXPECT_EQ(Abs(value).Text(), magnitude);
    }
    EXPECT_EQ(RaisedNumber([] { return Round(I(1), -1); }), ErrorNumber::InvalidCall);
    EXPECT_EQ(RaisedNumber([] { return Round("", 2); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(RaisedNumber([] { return Round(Value::Null(), 2); }), ErrorNumber::InvalidUseOfNull);
    EXPECT_EQ(RaisedNumber([] { return Abs(I(-32768)); }), ErrorNumber::Overflow);
    EXPECT_EQ(RaisedNumber([] { return Abs(L(std::numeric_limits<std::int32_t>::min())); }), ErrorNumber::Overflow);
}

TEST(Value, EntriesBecomeDecimals)
{
    const struct {
        Value entry;
        std::int16_t places;
        std::int32_t kind;
        Kind resultKind;
        const char *text;
    } cases[] = {{" ", -1, 0, Kind::Integer, "0"},       {"", 2, 0, Kind::Integer, "0"},
                 {Value(), -1, 0, Kind::Integer, "0"},   {" 7.125 ", 2, 0, Kind::Decimal, "7.12"},
                 {"7.135", 2, 0, Kind::Decimal, "7.14"}, {"7.50", -1, 0, Kind::Decimal, "7.5"},
                 {I(3), -1, 0, Kind::Decimal, "3"},      {Value(0.1 + 0.2), -1, 0, Kind::Decimal, "0.3"},
                 {"  ", -1, 1, Kind::Text, ""},          {Value(), -1, 1, Kind::Text, ""},
                 {" V12 ", -1, 1, Kind::Text, " V12 "},  {Dec("1.50"), -1, 1, Kind::Text, "1.5"},
                 {"", -1, 2, Kind::NoValue, ""},         {"7", -1, 2, Kind::NoValue, ""}};
    for (const auto &[entry, places, kind, resultKind, text] : cases) {
        const Value result = Val2Dec(entry, places, kind);
        EXPECT_EQ(result.Type(), resultKind) << entry.Text();
        EXPECT_EQ(result.Text(), text);
    }
    EXPECT_EQ(RaisedNumber([] { return Val2Dec("7.5x"); }), ErrorNumber::TypeMismatch);
    for (const std::int32_t kind : {0, 1, 2})
        EXPECT_EQ(RaisedNumber([&] { return Val2Dec(Value::Null(), -1, kind); }), ErrorNumber::InvalidUseOfNull);
}

TEST(RuntimeError, CarriesTheDescriptionThatUsersKnow)
{
    EXPECT_EQ(RuntimeError(ErrorNumber::TypeMismatch).Description(), "Type mismatch");
    EXPECT_EQ(RuntimeError(ErrorNumber::InvalidUseOfNull).Description(), "Invalid use of Null");
    EXPECT_EQ(RuntimeError(ErrorNumber::StoreRefusal).Description(), "Application-defined error");
    EXPECT_EQ(RuntimeError(1, "own words").Description(), "own words");
}
