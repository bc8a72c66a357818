#include "core/DateTimeStamp.h"
#include "core/ReturnCode.h"
#include "tests/core/SurveyTest.h"

using ShipAndDraft = SurveyTest;

TEST_F(ShipAndDraft, ThereIsNoShipUntilOneIsSet)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    const Value none = std::int16_t {0};
    clsShip ship;
    const auto readLength = [&ship] { static_cast<void>(ship.LBP()); };
    EXPECT_EQ(ship.GetDistBetDraftMarks(), none);
    EXPECT_EQ(ErrorOf(readLength), ErrorNumber::NoObject);
    EXPECT_EQ(ship.SetShip(shipID + 1), ReturnCode::Success) << "no such ship";
    EXPECT_EQ(ship.GetDistBetDraftMarks(), none);
    EXPECT_EQ(ErrorOf(readLength), StoreError::NoCurrentRow);

    ASSERT_EQ(ship.SetShip(shipID), ReturnCode::Success);
    EXPECT_EQ(ship.GetDistBetDraftMarks().Text(), "174.2");
    EXPECT_EQ(ship.ShipName(), "MV Try");
    EXPECT_EQ(ship.PortOfRegistry(), Ask("SELECT PortID FROM Port"));

    Run("DROP TABLE Ship");
    mMessages.Expect({.text = "An internal error has occured.Please contact us with the error code on the titlebar of "
                              "this dialog box.",
                      .icon = MsgIcon::Critical,
                      .caption = "Keelmark-10105"});
    EXPECT_EQ(ship.SetShip(shipID), ReturnCode::ShipNotSet);
    EXPECT_EQ(ship.GetDistBetDraftMarks().Text(), "174.2") << "she stays";
}

TEST_F(ShipAndDraft, SettersMarkWhatDiffersAsText)
{
    const struct {
        std::string typed, held;
        Value::Kind kind;
        bool toSave;
    } steps[] = {{"", "", Value::Kind::Text, false},
                 {"  ", "0", Value::Kind::Integer, true},
                 {"0", "0", Value::Kind::Integer, false},
                 {"10.50", "10.5", Value::Kind::Decimal, true},
                 {"10.5", "10.5", Value::Kind::Decimal, false},
                 {"10.50", "10.5", Value::Kind::Decimal, true},
                 {" 7.125 ", "7.125", Value::Kind::Decimal, true},
                 {"", "0", Value::Kind::Integer, true}};
    clsDraft draft;
    for (const auto &[typed, held, kind, toSave] : steps) {
        SCOPED_TRACE("typed: \"" + typed + "\"");
        draft.ToSave(false);
        draft.FwdPort(typed);
        EXPECT_EQ(draft.FwdPort().Text(), held);
        EXPECT_EQ(draft.FwdPort().Type(), kind);
        EXPECT_EQ(draft.ToSave(), toSave);
    }
    draft.ToSave(false);
    EXPECT_EQ(ErrorOf([&] { draft.FwdPort("7.1x"); }), ErrorNumber::TypeMismatch);
    draft.TotDeductibles("12");
    draft.DraftMode(std::int32_t {1});
    EXPECT_FALSE(draft.ToSave());
    EXPECT_EQ(ErrorOf([&] { draft.DraftMode(std::int32_t {70000}); }), ErrorNumber::Overflow);

    for (const auto set : {+[](clsDraft &to) { to.SpecificGravity("1.02"); }, +[](clsDraft &to) { to.Comments("a"); },
                           +[](clsDraft &to) { to.DSDate("15-03-2024"); }, +[](clsDraft &to) { to.DSTime("14:30"); },
                           +[](clsDraft &to) { to.ListCorrected(true); }})
        for (const bool differs : {true, false}) {
            draft.ToSave(false);
            set(draft);
            EXPECT_EQ(draft.ToSave(), differs);
        }
}

TEST_F(ShipAndDraft, NewDraftIsBlankButKeepsTypeShipAndTotal)
{
    clsDraft draft = WorkedDraft(AddShip(kWorkedShip), DraftTypeCode::Daily);
    draft.ListCorrected(true);
    draft.Comments("Calm");
    draft.HasRecord(true);
    draft.DraftMode(std::int16_t {1});
    ASSERT_EQ(draft.Calculate(0), ReturnCode::Calculated);

    const ScopedPort clock(ClockPort(), [] { return ClockTime {2024, 3, 5, 4, 7, 59}; });
    draft.NewDraft();
    EXPECT_EQ(draft.DSDate() + " " + draft.DSTime(), "05-03-2024 04:07");
    for (const auto &[name, value] : Figures(draft))
        EXPECT_TRUE(value.IsEmptyText()) << name;
    EXPECT_TRUE(draft.SpecificGravity().IsEmptyText() && draft.AftStbd().IsEmptyText() && draft.Comments().empty());
    EXPECT_FALSE(draft.ListCorrected() || draft.ToSave() || draft.HasRecord());
    EXPECT_EQ(draft.DraftMode().ToInteger(), 0);
    EXPECT_EQ(draft.DraftType(), DraftTypeCode::Daily);
    EXPECT_EQ(draft.TotDeductibles().Text(), "470.5");

    Type(draft, kWorkedReadings);
    EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    EXPECT_EQ(draft.NetDisplacement().Text(), "22912.18513") << "the ship is still hers, the deductions are gone";
}

TEST(DateTimeStamp, TakesTheTextApartByPosition)
{
    const Value stamp = DateTimeToStamp("15-03-2024 14:30");
    EXPECT_EQ(stamp.Text(), "202403151430");
    EXPECT_EQ(StampToDate(stamp) + " " + StampToTime(stamp), "15-03-2024 14:30");
    EXPECT_EQ(DateTimeToStamp("99-99-2024 99:99").Text(), "202499999999") << "no check that it is a date";
    for (const std::string text : {"", " ", "__-__-____ __:__", "15-Mar-24 14:30"})
        EXPECT_EQ(ErrorOf([&text] { static_cast<void>(DateTimeToStamp(text)); }), ErrorNumber::TypeMismatch) << text;
}
