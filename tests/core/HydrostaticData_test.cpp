#include "core/ReturnCode.h"
#include "tests/core/SurveyTest.h"

namespace
{
using HydrostaticData = SurveyTest;

std::string Join(std::initializer_list<Value> values)
{
    std::string text;
    for (const Value &value : values)
        text += (text.empty() ? "" : " ") + value.Text();
    return text;
}

std::string Row(const clsHydrostaticData &table)
{
    return Join({table.TMD(), table.Displacement(), table.TPC(), table.LCF(), table.MCTCPlus50(), table.MCTCMinus50()});
}

std::string Interpolation(const clsHydrostaticData &table)
{
    return Join({table.IpFactor(), table.IpDisplacement(), table.IpTPC(), table.IpLCF(), table.IpMCTCPlus50(),
                 table.IfMCTCPlus50(), table.IpMCTCMinus50(), table.IfMCTCMinus50()});
}
} // namespace

TEST_F(HydrostaticData, BoundsAreInclusiveAndReachHalfAMetre)
{
    clsHydrostaticData table;
    ASSERT_EQ(table.InitHDT(AddShip(kUnevenShip)), ReturnCode::Success);
    Run("DROP TABLE HydrostaticDataTable"); // it was read once and for all
    const auto bound = [&table](const char *draft, std::int16_t selector) {
        const std::int32_t code = table.getBound(Decimal::Parse(draft), selector);
        return code == ReturnCode::Success ? Row(table) : std::to_string(code);
    };
    // Of the two rows at 8 the later one counts from below, the first one from above.
    EXPECT_EQ(bound("8.2", 0), "8 23110 42.6 -1.4 440 414");
    EXPECT_EQ(table.IfMCTCPlus50().Text(), "0") << "no interpolation has been made yet";
    EXPECT_EQ(bound("8.2", 5), "8 23110 42.6 -1.4 440 414");
    EXPECT_EQ(bound("8.2", 1), "8.5 25225 43 -1 456 430");
    EXPECT_EQ(bound("7.8", 1), "8 23100 42.5 -1.5 440 430");
    EXPECT_EQ(bound("8", 0), "8 23110 42.6 -1.4 440 414");
    EXPECT_EQ(bound("8", 1), "8 23110 42.6 -1.4 440 430");
    EXPECT_EQ(bound("8.000000000000000000000001", 1), "8.5 25225 43 -1 456 430");
    EXPECT_EQ(bound("8.8", 0), "8.5 25225 43 -1 456 432");
    for (const char *draft : {"8.81", "9.3"})
        EXPECT_EQ(bound(draft, 0), "10091");
    EXPECT_EQ(bound("7.49", 1), "10092");
    EXPECT_EQ(bound("9.31", 0), "10012");
    EXPECT_EQ(bound("6.99", 1), "10013");
    EXPECT_EQ(table.GetMaxTMD().Text(), "9.3");
    EXPECT_EQ(table.InitHDT(1), ReturnCode::InitHDTFailed);
}

TEST_F(HydrostaticData, InterpolatesBetweenRowsAndTakesARowThatIsHit)
{
    const std::int32_t shipID = AddShip(kUnevenShip);
    clsHydrostaticData table;
    EXPECT_EQ(table.InitHDT(shipID + 1), ReturnCode::NoHydrostaticData);
    EXPECT_EQ(table.GetMaxTMD().Text(), "10009");
    ASSERT_EQ(table.InitHDT(shipID), ReturnCode::Success);
    const auto query = [&table](const char *draft) { return table.getResultantVals(Decimal::Parse(draft)); };

    ASSERT_EQ(query("8.2"), ReturnCode::Success);
    EXPECT_EQ(Row(table), "23956 42.76 -1.24 444 424") << "no row was taken, so there is no table draft yet";
    EXPECT_EQ(Interpolation(table), "0.4 846 0.16 0.16 4 0.25 10 0.625");
    ASSERT_EQ(query("8"), ReturnCode::Success);
    EXPECT_EQ(Row(table), "8 23100 42.5 -1.5 440 420") << "the first of the two rows at 8";
    EXPECT_EQ(Interpolation(table), "0 0 0 0 0 0 6 0.375");

    // The bounds carry the factor of the last interpolation along, which was the one half a metre below.
    ASSERT_EQ(table.getBound(Decimal::Parse("8.1"), 0), ReturnCode::Success);
    EXPECT_EQ(Interpolation(table), "0 0 0 0 0 0.375 6 0.375");

    // Out of the table nothing changes; where only the half metre is out of it, a code stands for the moment.
    const std::string before = Row(table) + Interpolation(table);
    EXPECT_EQ(query("9.31"), ReturnCode::DraftAboveTable);
    EXPECT_EQ(query("6.99"), ReturnCode::DraftBelowTable);
    EXPECT_EQ(Row(table) + Interpolation(table), before);
    EXPECT_EQ(query("9.3"), ReturnCode::Success);
    EXPECT_EQ(Row(table), "9.3 28700 43.8 -0.2 10012 446");
    EXPECT_EQ(query("7"), ReturnCode::Success);
    EXPECT_EQ(table.MCTCMinus50().Text(), "10013");
}
