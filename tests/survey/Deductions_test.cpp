#include "core/MsgBox.h"
#include "tests/survey/SurveyDesk.h"

namespace
{
const char *const kNoNumber = "Invalid quantity.\n\nPlease enter numeric value only.";
const char *const kOutOfRange = "Invalid value.\n\nValue of deduction can be  greater than 0 and less than 100000.";

class DeductionsGrid : public SurveyDesk
{
protected:
    [[nodiscard]] int Row() const { return Deductions().CurrentRow(); }
    [[nodiscard]] std::string Quantity(int row) const { return Cell("fgrdDeduction", row, 1); }
};

TEST_F(DeductionsGrid, AQuantityIsRoundedAndKeptInItsBounds)
{
    Open();
    for (const auto &[typed, shown] :
         {std::pair("12.34567", "12.3457"), std::pair("0", "0"), std::pair("7.00005", "7"), std::pair(" 1e3", "1000"),
          std::pair("99999.9999", "99999.9999"), std::pair("0.123449999", "0.1234")}) {
        FillCell(0, typed);
        Press(Qt::Key_Return);
        EXPECT_EQ(Quantity(0), shown) << typed;
    }
    FillCell(2, "");
    for (const auto &[typed, message] : {std::pair("abc", kNoNumber), std::pair("1 2", kNoNumber),
                                         std::pair("-1", kOutOfRange), std::pair("100000", kOutOfRange)})
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Up, Qt::Key_Tab}) {
            SCOPED_TRACE(std::string(typed) + " " + std::to_string(key));
            Type(Frame(), typed);
            ExpectTold(message, [&, pressed = key] { Press(pressed); });
            EXPECT_EQ(Row(), 2);
            EXPECT_EQ(Focus() + Text("txtGridTextbox") + Quantity(2), "txtGridTextbox");
        }
}

TEST_F(DeductionsGrid, ARefusalKeepsTheCellAndTheRow)
{
    StoreSurvey();
    Open();
    FillCell(0, "x");
    const QRect third = Deductions().visualRect(Deductions().model()->index(2, 1));
    ExpectTold(kNoNumber, [&] { Click(*Deductions().viewport(), third.center()); });
    Type(Frame(), "y");
    ExpectTold(kNoNumber, [&] { Calculate(); });
    EXPECT_EQ(Row(), 0);
    EXPECT_EQ(Focus() + Quantity(0), "txtGridTextbox350");
    Type(Frame(), "350");
    ExpectTold(kNoChanges, [&] { PressSave(); });
    // A command that asks for another field moves there by way of the check.
    Fill("txtDensity", "");
    FillCell(0, "z");
    Tell("Incomplete data.\n\nPlease enter value for Density.");
    ExpectTold(kNoNumber, [&] { PressKey(Frame(), Qt::Key_P, Qt::ControlModifier); });
    Click(*Deductions().viewport(), third.center());
    EXPECT_EQ(Row(), 2);
    EXPECT_EQ(Quantity(0), "350");
}

TEST_F(DeductionsGrid, ItemsThatCannotBeReadLeaveNoCellToTypeIn)
{
    AddShip();
    Run("ALTER TABLE DeductionMaster RENAME TO Gone");
    const UnsaidMessages quiet;
    Open();
    EXPECT_FALSE(The("txtGridTextbox").isVisible());
    EnterWorked();
    Press(Qt::Key_Return);
    EXPECT_FALSE(The("txtGridTextbox").isVisible());
}

TEST_F(DeductionsGrid, ARefusalAtASaveLeavesTheOtherQuantitiesAsTyped)
{
    StoreSurvey();
    Open();
    FillCell(0, "400");
    Press(Qt::Key_Return);
    FillCell(0, "x");
    Tell(kNoNumber);
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5");
    EXPECT_EQ(Quantity(0) + " " + Quantity(1), "400 120.5");
    Fill("txtComments", "Heavy");
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=400 1:3=120.5");
    // What is typed after a save goes on where it was typed.
    Type(Frame(), " swell");
    EXPECT_EQ(Text("txtComments"), "Heavy swell");
}

TEST_F(DeductionsGrid, TheArrowsMoveBetweenFirstAndLastRow)
{
    StoreSurvey();
    Open();
    FillCell(0, "351");
    Press(Qt::Key_Up);
    EXPECT_EQ(Row(), 0);
    Press(Qt::Key_Down);
    EXPECT_EQ(Quantity(0) + " " + Text("txtGridTextbox"), "351 120.5");
    Press(Qt::Key_Up);
    EXPECT_EQ(Text("txtGridTextbox"), "351");
    for (int step = 0; step < 9; ++step)
        Press(Qt::Key_Down);
    EXPECT_EQ(Row(), 7);
    EXPECT_EQ(Focus(), "txtGridTextbox");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtComments");
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=351 1:3=120.5");
}

TEST_F(DeductionsGrid, AClearedCellAloneIsNoChange)
{
    StoreSurvey();
    Open();
    FillCell(0, "");
    Press(Qt::Key_Return);
    ExpectTold(kNoChanges, [&] { PressSave(); });
    Calculate();
    EXPECT_EQ(Cell("fgrdFinalResult", 8, 1), "120.5");
    ExpectTold(kNoChanges, [&] { PressSave(); });
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5");
    Fill("txtComments", "Bunkers landed");
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:3=120.5");
}

TEST_F(DeductionsGrid, FollowsTheMasterAtItsNextRebuild)
{
    StoreSurvey();
    Open();
    Run("INSERT INTO DeductionMaster VALUES (50, 'Sludge')");
    Calculate();
    ASSERT_EQ(Deductions().rowCount(), 9);
    FillCell(8, "20");
    Calculate();
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5 1:50=20");
    PressClose();
    Run("DELETE FROM DeductionMaster WHERE ItemID = 3");
    Open();
    EXPECT_EQ(Cell("fgrdDeduction", 7, 0) + Quantity(0) + Quantity(1) + Quantity(7), "Sludge35020");
    EXPECT_EQ(Text("txtConstant"), "442.18513");
    PressClose();
    Run("DELETE FROM DeductionMaster");
    Open();
    EXPECT_FALSE(Deductions().isVisible() || The("txtGridTextbox").isVisible());
    Click(The("txtAftStbd"));
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "txtComments");
}
} // namespace
