#include "frame/controls/Colours.h"
#include "survey_discharging/frmDSDispatch.h"
#include "tests/survey/SurveyDesk.h"

#include <QLineEdit>
#include <QTest>

namespace
{
// A survey as a surveyor types it: the figures that the hydrostatic model gives for these marks are its own, so that
// what is stored follows by subtracting the deductions by hand.
class KeyboardOnly : public SurveyDesk
{
public:
    using SurveyDesk::SurveyDesk;

protected:
    // Types texts into the fields from the present one on, with Enter after each.
    void Walk(const QString &texts)
    {
        for (const QString &text : texts.split(' ')) {
            Type(Frame(), text == "-" ? QString() : text);
            Press(Qt::Key_Return);
        }
    }
    void PressTab(Qt::Key towards)
    {
        GoTo("sstDraftSurvey");
        Press(towards);
    }
    // A button pressed by its letter clicks a moment later.
    void PressLetter(Qt::Key letter, const char *field, bool filled)
    {
        PressKey(Frame(), letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Text(field).empty() != filled; })) << letter;
    }

    // From the density on: marks, deductions, a remark, the calculation and the save.
    void EnterDraft(const char *marks, const char *deductions, const char *remark)
    {
        EXPECT_EQ(Focus(), "txtDensity");
        Walk(marks);
        EXPECT_EQ(Focus(), "txtGridTextbox");
        Walk(deductions);
        EXPECT_EQ(Focus(), "txtComments");
        Type(Frame(), remark);
        PressLetter(Qt::Key_C, "txtTrueMeanDraft", true);
        SaveWell();
    }
};

TEST_F(KeyboardOnly, AWholeSurveyIsEnteredSavedAndFoundAgain)
{
    AddShip();
    Open();
    EXPECT_EQ(Focus(), "dcbShip");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Walk("V-1/2024");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "txtCargo");
    Type(Frame(), "Iron ore");
    Press(Qt::Key_Return);
    EnterDraft("1.0150 12032024 0630 7.52 7.48 8.03 7.97 8.61 8.59", "350 120.5 20 100.25 0.5 10 5.12544 1.0625",
               "Calm, no swell");
    EXPECT_EQ(Text("txtConstant"), "204.74723");

    PressTab(Qt::Key_Right);
    EnterDraft("1.015 13032024 1405 8.10 8.10 8.35 8.33 8.60 8.60", "350 120.5 - - - - - -", "First daily");
    EXPECT_EQ(Text("txtTotCargoOnboard"), "1536.05816");
    PressLetter(Qt::Key_N, "txtDensity", false);
    EnterDraft("1.016 14032024 0800 8.2 8.2 8.40 8.42 8.6 8.6", "- 120.5 - - - - - 0", "Second daily");
    PressTab(Qt::Key_Right);
    EnterDraft("1.0195 15032024 2359 8 8.02 8.1 8.1 8.3 8.28", "350 120.5 - - - - - -", "Done");
    EXPECT_EQ(Text("txtTotCargoLoaded"), "671.79448");

    EXPECT_EQ(StoredSurveys(), R"([1,1,"V-1/2024",1,"Iron ore",204.74723,1])");
    EXPECT_EQ(StoredDrafts(), R"([1,1,0,202403120630,1.015,7.52,7.48,8.03,7.97,8.61,8.59,0,22304.74723,"Calm, no swell"]
[2,1,2,202403131405,1.015,8.1,8.1,8.35,8.33,8.6,8.6,0,23840.80539,"First daily"]
[3,1,2,202403140800,1.016,8.2,8.2,8.4,8.42,8.6,8.6,0,24489.91223,"Second daily"]
[4,1,1,202403152359,1.0195,8.0,8.02,8.1,8.1,8.3,8.28,0,22976.54171,"Done"])");
    EXPECT_EQ(StoredDeductions(),
              "1:2=350 1:3=120.5 1:24=20 1:25=100.25 1:26=0.5 1:27=10 1:28=5.1254 1:29=1.0625 "
              "2:2=350 2:3=120.5 3:3=120.5 4:2=350 4:3=120.5");

    const std::string stored = Stored();
    PressClose();
    ASSERT_FALSE(IsOpen());
    Open();
    EXPECT_EQ(Texts({"dcbShip", "dcbVoyageID", "dcbPort", "txtCargo", "txtConstant", "mbxDate", "mbxTime"}),
              "MV Worked V-1/2024 Richards Bay Iron ore 204.74723 12-03-2024 06:30");
    EXPECT_EQ(Cell("fgrdDeduction", 6, 1), "5.1254");
    PressTab(Qt::Key_Right);
    EXPECT_EQ(Texts({"txtComments", "txtTotCargoOnboard"}), "Second daily 2185.165");
    EXPECT_EQ(Items("dcbDate"), (std::vector<std::string> {"13-03-2024", "14-03-2024"}));
    PressTab(Qt::Key_Right);
    EXPECT_EQ(Text("txtFinalNetDisp"), "22976.54171");
    PressClose();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Stored(), stored);
}

class DischargingByKeyboard : public KeyboardOnly
{
protected:
    DischargingByKeyboard()
        : KeyboardOnly(ChildWindow::Discharging, [] { return new frmDSDispatch; })
    {
    }
};

TEST_F(DischargingByKeyboard, TheBillOfLadingHasItsBounds)
{
    Open();
    const char *const kNoNumber = "Invalid value for Bill of Lading quantity.\n\nPlease enter numeric value.";
    const char *const kOutOfRange = "Invalid value for Invalid value for Bill of Lading quantity.\n\n"
                                    "Please enter value  greater than 0 and less than 1000000.";
    struct Case {
        const char *typed;
        const char *shown;
        const char *refusal;
        const char *assumedConstant;
    };
    for (const Case &one :
         {Case {"0", "0", nullptr, ""}, Case {"-0.00001", "", kOutOfRange, ""}, Case {"0.000001", "0", nullptr, ""},
          Case {"abc", "", kNoNumber, ""}, Case {"999999.999999", "", kOutOfRange, ""},
          Case {"1000000", "", kOutOfRange, ""}, Case {"999999.99999", "999999.99999", nullptr, "-999999.99999"}}) {
        GoTo("txtBLQty");
        if (one.refusal)
            mMessages.Expect({.text = one.refusal, .icon = MsgIcon::Exclamation});
        Walk(one.typed);
        mMessages.ExpectNoneLeft();
        EXPECT_EQ(Text("txtBLQty"), one.shown) << one.typed;
        EXPECT_EQ(Text("txtAssumedConstant"), one.assumedConstant) << one.typed;
        EXPECT_EQ(Focus() == "txtBLQty", one.refusal != nullptr) << one.typed;
    }
}

TEST_F(DischargingByKeyboard, FiguresThatCannotBeAreRedAndTold)
{
    AddShip();
    Open();
    EnterWorked();
    SaveWell();
    ClickTab("Daily");
    FillMarks(kDailyMarks);
    ExpectTold("Invalid value for Total Cargo Discharged.\n\nPlease check your input values.", [this] { Calculate(); });
    EXPECT_EQ(Text("txtTotCargoDischarged"), "-1869.62026");
    EXPECT_TRUE(IsRed(The<QLineEdit>("txtTotCargoDischarged")) && The<Grid>("fgrdFinalResult").IsRed(11, 1));

    // Without a Bill of Lading all that was discharged is too much.
    FillMarks(kWorkedMarks);
    FillCell(0, "500");
    ExpectTold(
        "Current value for Total cargo onboard is invalid.\n\nPlease check that B/L quantity is not zero and that "
        "value of Total cargo discharged is not greater than B/L quantity.",
        [this] { Calculate(); });
    EXPECT_EQ(Texts({"txtTotCargoDischarged", "txtTolCargoOnboard"}), "29.5 -29.5");
    EXPECT_TRUE(IsRed(The<QLineEdit>("txtTolCargoOnboard")));
    EXPECT_FALSE(IsRed(The<QLineEdit>("txtTotCargoDischarged")) || The<Grid>("fgrdFinalResult").IsRed(11, 1));
    SaveWell();

    ClickTab("Final");
    FillMarks(kWorkedMarks);
    FillCell(0, "1000");
    ExpectTold("Current value for Constant is invalid.\n\nPlease check your input values.", [this] { Calculate(); });
    EXPECT_EQ(Texts({"txtFinTotCargoDis", "txtConstant"}), "529.5 -187.81487");
    EXPECT_TRUE(IsRed(The<QLineEdit>("txtConstant")));
    FillMarks(kDailyMarks);
    ExpectTold("Current value for Total cargo discharged is invalid.\n\nPlease check your input values.",
               [this] { Calculate(); });
    EXPECT_TRUE(IsRed(The<QLineEdit>("txtFinTotCargoDis")) && !IsRed(The<QLineEdit>("txtConstant")));
}

TEST_F(DischargingByKeyboard, WhereNothingWasDischargedTheQuantitiesAreHiddenAndKept)
{
    AddShip();
    Open();
    EnterWorked();
    Fill("txtBLQty", "5000");
    SaveWell();
    ClickTab("Daily");
    FillMarks(kWorkedMarks);
    FillCell(0, "350");
    FillCell(1, "120.5");
    const auto quantities = [this] { return Cell("fgrdDeduction", 0, 1) + " " + Cell("fgrdDeduction", 1, 1); };
    ExpectTold(
        "frmDraftSurvey::LoadDraft", [this] { Calculate(); }, MsgIcon::None);
    EXPECT_EQ(quantities(), " ");
    FillCell(1, "150");
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5 2:2=350 2:3=150");
    EXPECT_EQ(Ask("SELECT NetDisplacement FROM DraftDetails WHERE DraftType = 2").Text(), "22412.18513");
    Fill("txtFwdPort", "7.4");
    Calculate();
    EXPECT_EQ(quantities(), "350 150");
}

TEST_F(DischargingByKeyboard, TheCloseKeyIgnoresErrorsAndKeepsTheWindow)
{
    AddShip();
    Open();
    EnterWorked();
    Fill("txtAftPort", "x");
    PressClose();
    EXPECT_EQ(Text("txtAftPort"), "x");
    EXPECT_EQ(Stored(), "");
    Fill("txtAftPort", "8.61");
    Prompt(kClosePrompt, MsgAnswer::Yes);
    PressClose();
    EXPECT_FALSE(IsOpen());
    EXPECT_NE(Stored(), "");
}

TEST_F(DischargingByKeyboard, WhatWasNotCopiedDoesNotCountAtClosing)
{
    AddShip();
    Open();
    FillHeader();
    Prompt(kClosePrompt, MsgAnswer::Yes);
    PressClose();
    ASSERT_FALSE(IsOpen());
    Open();
    EXPECT_EQ(Text("dcbVoyageID"), "V1") << "a survey without a draft";
    FillMarks(kWorkedMarks);
    FillCell(0, "470.5");
    Calculate();
    SaveWell();
    Fill("txtDensity", "1.02");
    PressClose();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Ask("SELECT Cargo || SpecificGravity || ' ' || NetDisplacement FROM DraftParticulars NATURAL JOIN "
                  "DraftDetails")
                  .Text(),
              "Coal1.015 22441.68513");
}

TEST_F(DischargingByKeyboard, ANewDailyDraftIsCheckedBeforeTheAnswerCounts)
{
    AddShip();
    Open();
    EnterWorked();
    SaveWell();
    const std::string stored = Stored();
    for (const MsgAnswer answer : {MsgAnswer::Cancel, MsgAnswer::Yes}) {
        ClickTab("Daily");
        FillMarks(kDailyMarks);
        Prompt("Save changes to daily draft", answer);
        ExpectTold("Invalid value for Net Displacement..!.", [this] { Click(The("cmdNewDailyDraft")); });
        EXPECT_EQ(Tab() + Text("txtFwdPort"), "Daily");
    }
    EXPECT_EQ(Stored(), stored);
}

TEST_F(DischargingByKeyboard, AWholeSurveyIsEnteredAndSaved)
{
    AddShip();
    Open();
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Walk("V-2");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Type(Frame(), "Iron ore");
    Press(Qt::Key_Return);
    EnterDraft("1.015 12032024 0630 8.10 8.10 8.35 8.33 8.60 8.60", "350 120.5 20 100.25 0.5 10 5.12544 1.0625",
               "Calm");
    EXPECT_EQ(Cell("fgrdFinalResult", 11, 1), "1603.86749");
    GoTo("txtBLQty");
    Walk("1400");
    EXPECT_EQ(Text("txtAssumedConstant"), "203.86749");

    PressTab(Qt::Key_Right);
    EnterDraft("1.0195 13032024 1405 8 8.02 8.1 8.1 8.3 8.28", "- 120.5 - - - - - -", "First daily");
    EXPECT_EQ(Texts({"txtTotCargoDischarged", "txtTolCargoOnboard"}), "377.32578 1022.67422");
    PressLetter(Qt::Key_N, "txtDensity", false);
    EnterDraft("1.0195 14032024 0800 8 8.02 8.1 8.1 8.3 8.28", "350 120.5 - - - - - -", "Second daily");
    EXPECT_EQ(Texts({"txtTotCargoDischarged", "txtTolCargoOnboard"}), "727.32578 672.67422");
    PressTab(Qt::Key_Right);
    EnterDraft("1.0150 15032024 2359 7.52 7.48 8.03 7.97 8.61 8.59", "350 120.5 - - - - - -", "Done");
    EXPECT_EQ(Texts({"txtFinTotCargoDis", "txtConstant"}), "1262.18236 341.68513");

    EXPECT_EQ(StoredSurveys(), R"([1,1,"V-2",1,"Iron ore",99999.9999,0])");
    EXPECT_EQ(StoredDrafts(), R"([1,1,0,202403120630,1.015,8.1,8.1,8.35,8.33,8.6,8.6,0,23703.86749,"Calm"]
[2,1,2,202403131405,1.0195,8.0,8.02,8.1,8.1,8.3,8.28,0,23326.54171,"First daily"]
[3,1,2,202403140800,1.0195,8.0,8.02,8.1,8.1,8.3,8.28,0,22976.54171,"Second daily"]
[4,1,1,202403152359,1.015,7.52,7.48,8.03,7.97,8.61,8.59,0,22441.68513,"Done"])");
}
} // namespace
