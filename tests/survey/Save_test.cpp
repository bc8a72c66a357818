#include "frame/platform/Settings.h"
#include "tests/survey/SurveyDesk.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

const char *const kNewPrompt = "Save changes to draft/s";
const char *const kDailyPrompt = "Save changes to daily draft";
const char *const kBadConstant = "Invalid constant value.\n\nPlease check your input values.";
const char *const kUncalculated
    = "Incomplete data...!\n\nPlease enter all the details and press calculate before saving.";
const char *const kBadNet = "Invalid Net Displacement value.\n\nPlease check your input values.";

class Save : public SurveyDesk
{
protected:
    static std::string Setting() { return GetSetting("Draft Survey Loading", "RecordID", "none"); }
    static std::string Count(const std::string &drafts)
    {
        return Ask("SELECT COUNT(*) FROM DraftDetails WHERE " + drafts).Text();
    }
    void ClickNewDaily() { Click(The("cmdNewDailyDraft")); }
    void FillMoment(const char *date, const char *time)
    {
        Fill("mbxDate", date);
        Fill("mbxTime", time);
        Click(The("txtDensity"));
    }
};

TEST_F(Save, AFirstSaveMakesTheSurveyAndOpensItsStages)
{
    AddShip();
    Run("INSERT INTO DraftParticulars VALUES (7, 1, 'Earlier', 1, 'Grain', 0, False)");
    Open();
    EnterWorked("V-2");
    EXPECT_FALSE(LaterTabsAreOn());
    SaveWell();
    EXPECT_EQ(StoredSurveys(), "[7,1,\"Earlier\",1,\"Grain\",0.0,0]\n[8,1,\"V-2\",1,\"Coal\",341.68513,1]");
    EXPECT_EQ(Setting() + " " + Window().ButtonMask(), "8 111111111");
    EXPECT_TRUE(LaterTabsAreOn());
    EXPECT_THAT(Items("dcbVoyageID"), ElementsAre("V-2"));
    EXPECT_THAT(Items("cmbDailyDateTime"), ElementsAre("Initial Draft"));
    ExpectTold(kNoChanges, [&] { PressSave(); });

    const std::string drafts = StoredDrafts();
    Fill("txtCargo", "Coke");
    SaveWell();
    EXPECT_EQ(Ask("SELECT Cargo FROM DraftParticulars WHERE RecordID = 8").Text(), "Coke");
    EXPECT_EQ(StoredDrafts(), drafts);
}

TEST_F(Save, WantsACalculationAndValidFigures)
{
    AddShip();
    Open();
    const auto expectRefused = [this](const char *text) { ExpectTold(text, [&] { PressSave(); }); };
    expectRefused(kUncalculated);
    Pick("dcbShip", 0);
    FillMarks(kWorkedMarks);
    FillCell(0, "470.5");
    Calculate();
    expectRefused("Please enter/select Voyage-ID.");
    Fill("dcbVoyageID", "V1");
    expectRefused("Please select port name.");
    Pick("dcbPort", 0);
    expectRefused("Please enter value for cargo.");
    Fill("txtCargo", "Coal");
    for (const auto &[quantity, told] : {std::pair("900", kBadConstant), std::pair("23000", kBadNet)}) {
        FillCell(0, quantity);
        ExpectTold(told, [&] { Calculate(); });
        EXPECT_TRUE(The<Grid>("fgrdFinalResult").IsRed(11, 1));
        expectRefused(kBadConstant);
    }
    EXPECT_EQ(Stored(), "");
}

TEST_F(Save, AFailureMovesToTheDraftThatFails)
{
    StoreSurvey();
    Open();
    const std::string stored = Stored();
    ClickTab("Daily");
    Fill("txtDensity", "1.02");
    const std::pair<const char *, std::function<void()>> ways[]
        = {{nullptr, [&] { PressSave(); }}, {kNewPrompt, [&] { PressNew(); }}, {kClosePrompt, [&] { PressClose(); }}};
    for (const auto &[prompt, way] : ways) {
        ClickTab("Initial");
        if (prompt)
            Prompt(prompt, MsgAnswer::Yes);
        ExpectTold(kBadNet, way);
        EXPECT_EQ(Tab() + Text("txtDensity"), "Daily1.02");
    }
    Prompt(kDailyPrompt, MsgAnswer::Yes);
    ExpectTold(kBadNet, [&] { ClickNewDaily(); });
    EXPECT_EQ(Stored(), stored);
}

TEST_F(Save, NewAsksWhereADraftHasChanged)
{
    StoreSurvey();
    Open();
    const std::string stored = Stored();
    const auto expectAnswered = [&](MsgAnswer answer, const char *mark) {
        Fill("txtAftStbd", mark);
        Prompt(kNewPrompt, answer);
        PressNew();
        mMessages.ExpectNoneLeft();
        EXPECT_EQ(Stored() == stored, answer != MsgAnswer::Yes);
        EXPECT_EQ(Texts({"dcbShip", "txtFwdPort"}), answer == MsgAnswer::Cancel ? "MV Worked 7.52" : " ");
    };
    expectAnswered(MsgAnswer::Cancel, "8.58");
    expectAnswered(MsgAnswer::No, "8.57");
    EXPECT_EQ(Focus() + " " + Window().ButtonMask(), "dcbShip 011111011");
    FillHeader();
    Click(The("cmdGetDrafts"));
    Fill("txtCargo", "Coke");
    PressNew();
    EXPECT_EQ(Text("txtCargo"), "") << "a change of the cargo alone is not asked for";
    FillHeader();
    Click(The("cmdGetDrafts"));
    ClickTab("Final");
    ClickTab("Initial");
    expectAnswered(MsgAnswer::Yes, "8.56");
    EXPECT_EQ(Count("AftStbdDraft = 8.56"), "1");
}

TEST_F(Save, NewDailyAsksForAllDraftsAndClosingForTheHeaderToo)
{
    StoreSurvey();
    StoreDraft(2, "202403131405");
    Open();
    ClickTab("Daily");
    Fill("txtComments", "One");
    Prompt(kDailyPrompt, MsgAnswer::Cancel);
    ClickNewDaily();
    EXPECT_EQ(Text("txtComments"), "One");
    Prompt(kDailyPrompt, MsgAnswer::Yes);
    ClickNewDaily();
    EXPECT_EQ(Count("Comments = 'One'"), "1");
    EXPECT_EQ(Texts({"txtComments", "txtFwdPort", "mbxDate", "txtCargo"}), "  14-03-2024 Coal");
    FillMarks(kDailyMarks);
    Prompt(kDailyPrompt, MsgAnswer::No);
    ClickNewDaily();
    EXPECT_EQ(Text("txtFwdPort") + Count("True"), "2");

    ClickTab("Initial");
    Fill("txtCargo", "Coke");
    Prompt(kClosePrompt, MsgAnswer::Cancel);
    PressClose();
    ASSERT_TRUE(IsOpen());
    Fill("dcbVoyageID", "");
    Prompt(kClosePrompt, MsgAnswer::Yes);
    ExpectTold("Voyage-ID has left empty.\n\nPlease select a Voyage-ID and try again.", [&] { PressClose(); });
    ASSERT_TRUE(IsOpen());
    Fill("dcbVoyageID", "V2");
    Prompt(kClosePrompt, MsgAnswer::Yes);
    PressClose();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(StoredSurveys(), R"([1,1,"V2",1,"Coke",341.68513,1])");
}

TEST_F(Save, ANetDisplacementInTheStoreBelongsToTheMarksBesideIt)
{
    const auto stored = [](int type) {
        return Ask("SELECT NetDisplacement FROM DraftDetails WHERE DraftType = " + std::to_string(type)).Text();
    };
    StoreSurvey();
    StoreDraft(2, "202403131405");
    Open();
    Fill("txtDensity", "1.02");
    SaveWell();
    const std::string net = Cell("fgrdFinalResult", 9, 1);
    EXPECT_EQ(stored(0), net);
    EXPECT_GT(std::stod(net), 22441.68513);
    Calculate();
    EXPECT_EQ(Cell("fgrdFinalResult", 9, 1), net);
    ExpectTold(kNoChanges, [&] { PressSave(); });

    // From another tab, and with a cargo changed in the same breath.
    ClickTab("Daily");
    FillCell(0, "400");
    ClickTab("Initial");
    Fill("txtCargo", "Coke");
    SaveWell();
    EXPECT_EQ(Tab() + " " + stored(2), "Initial 23911.30539");
    EXPECT_EQ(Text("txtCargo") + Ask("SELECT Cargo FROM DraftParticulars").Text(), "CokeCoke");

    // What cannot be calculated keeps its figures, and a draft that never was is refused.
    Fill("txtAftPort", "30");
    SaveWell();
    EXPECT_EQ(stored(0) + " " + Cell("fgrdFinalResult", 9, 1), net + " " + net);
    Fill("txtAftPort", "8.61");
    ClickTab("Final");
    FillMarks(kDailyMarks);
    ClickTab("Initial");
    ExpectTold(kBadNet, [&] { PressSave(); });
    EXPECT_EQ(Tab(), "Final");
    EXPECT_EQ(Ask("SELECT AftPortDraft FROM DraftDetails WHERE DraftType = 0").Text(), "30");
}

TEST_F(Save, AShipIsChangedInTheHeaderAndInTheDraftsThatWereTouched)
{
    StoreSurvey();
    StoreDraft(2, "202403131405");
    AddShip();
    Run("UPDATE Ship SET ShipName = 'MV Zebra' WHERE ShipID = 2");
    Run("UPDATE HydrostaticDataTable SET Displacement = Displacement + 102.5 WHERE ShipID = 2");
    Open();
    const auto stored = [] {
        return Ask("SELECT ShipID || ' ' || group_concat(NetDisplacement, ' ') FROM DraftParticulars NATURAL JOIN "
                   "DraftDetails")
            .Text();
    };
    Pick("dcbShip", 1);
    SaveWell();
    EXPECT_EQ(stored(), "2 22441.68513 23840.80539");
    Fill("txtComments", "Another ship");
    SaveWell();
    EXPECT_EQ(stored() + " " + Text("txtConstant"), "2 22543.18513 23840.80539 443.18513");
    // Her constant too, from whichever tab it is saved.
    Run("UPDATE Ship SET LightShip = LightShip + 100 WHERE ShipID = 1");
    Pick("dcbShip", 0);
    Fill("txtComments", "The first ship again");
    ClickTab("Daily");
    Calculate();
    SaveWell();
    EXPECT_EQ(Ask("SELECT Constant FROM DraftParticulars").Text(), "241.68513");
}

TEST_F(Save, ABlankReadingIsNotWorkedOut)
{
    StoreSurvey();
    Open();
    const std::string shown = Text("txtConstant") + Cell("fgrdFinalResult", 9, 1);
    Fill("txtFwdPort", "");
    SaveWell();
    EXPECT_EQ(Text("txtConstant") + Cell("fgrdFinalResult", 9, 1), shown);
    EXPECT_EQ(Ask("SELECT NetDisplacement FROM DraftDetails").Text(), "22441.68513");
}

TEST_F(Save, ARefusedQuantityIsNeitherReadNorCleared)
{
    const char *const refusal = "Invalid quantity.\n\nPlease enter numeric value only.";
    StoreSurvey();
    Open();
    FillCell(0, "abc");
    Tell(refusal);
    ExpectTold(kNoChanges, [&] { PressSave(); });
    EXPECT_EQ(Text("txtGridTextbox"), "");
    ExpectTold(kNoChanges, [&] { PressSave(); });
    EXPECT_EQ(Text("txtGridTextbox") + " " + Cell("fgrdDeduction", 0, 1), "350 350");
    Fill("txtComments", "Swell");
    FillCell(1, "x");
    Tell(refusal);
    SaveWell();
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5");
    Fill("txtComments", "Calm");
    FillCell(0, "");
    FillCell(1, "200000");
    Tell("Invalid value.\n\nValue of deduction can be  greater than 0 and less than 100000.");
    Prompt(kClosePrompt, MsgAnswer::Yes);
    PressClose();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(StoredDeductions() + Ask("SELECT NetDisplacement FROM DraftDetails").Text(), "1:3=120.522791.68513");
}

TEST_F(Save, AHeaderAloneIsStoredAndCompletedLater)
{
    AddShip();
    Open();
    Pick("dcbShip", 0);
    Prompt(kClosePrompt, MsgAnswer::Yes);
    ExpectTold("Voyage-ID has left empty.\n\nPlease select a Voyage-ID and try again.", [&] { PressClose(); });
    for (const bool fetched : {false, true}) {
        const QString voyage = fetched ? "V2" : "V1";
        PressNew();
        FillHeader(voyage);
        Prompt(kClosePrompt, MsgAnswer::Yes);
        PressClose();
        ASSERT_FALSE(IsOpen());
        Open();
        if (fetched) {
            PressNew();
            FillHeader(voyage);
            Click(The("cmdGetDrafts"));
        }
        EXPECT_EQ(Texts({"dcbShip", "dcbVoyageID", "txtCargo", "txtFwdPort"}),
                  "MV Worked " + voyage.toStdString() + " Coal ");
        EXPECT_TRUE(LaterTabsAreOn());
        FillMarks(kWorkedMarks);
        FillCell(0, "470.5");
        Calculate();
        SaveWell();
    }
    EXPECT_EQ(Ask("SELECT group_concat(RecordID || ' ' || NetDisplacement, ' ') FROM DraftDetails").Text(),
              "1 22441.68513 2 22441.68513");
}

TEST_F(Save, OnTheFinalTabItLeavesTheDailyFiguresAlone)
{
    StoreSurvey();
    StoreDraft(2, "202403131405");
    StoreDraft(1, "202403150800");
    Open();
    ClickTab("Daily");
    const QStringList figures {"txtPrevLoadedCargo", "txtLastLoadedCargo", "txtTotCargoOnboard"};
    const std::string before = Texts(figures);
    EXPECT_EQ(before, "0 1399.12026 1399.12026");
    ClickTab("Final");
    Fill("txtAftPort", "8.7");
    SaveWell();
    ClickTab("Daily");
    Pick("cmbDailyDateTime", 1);
    Pick("cmbDailyDateTime", 0);
    EXPECT_EQ(Texts(figures), before);
    // Her constant follows an Initial draft that a save works out anew behind another tab.
    ClickTab("Initial");
    FillCell(0, "400");
    ClickTab("Daily");
    SaveWell();
    EXPECT_EQ(Texts(figures), "0 1449.12026 1449.12026");
    EXPECT_EQ(Cell("fgrdFinalResult", 11, 1), "291.68513");
}

TEST_F(Save, ASurveyStandsInTheStoreOnce)
{
    const char *const aborted = "Save aborted.\n\nYou already have a draft with specified Ship, VoyageID, and Port.";
    StoreSurvey();
    SaveSetting("Draft Survey Loading", "RecordID", "-1");
    const std::string stored = Stored();
    Open();
    EnterWorked("V1");
    ExpectTold(aborted, [&] { PressSave(); });
    Prompt(kClosePrompt, MsgAnswer::Yes);
    ExpectTold(aborted, [&] { PressClose(); });
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Stored() + Setting(), stored + "-1");
    EXPECT_FALSE(LaterTabsAreOn());
    Fill("dcbVoyageID", "V2");
    SaveWell();
    EXPECT_EQ(Setting(), "2");
}

TEST_F(Save, TwoDailyDraftsOfOneMomentAreToldAtSaveAndEndTheProgramElsewhere)
{
    StoreSurvey();
    StoreDraft(2, "202403131405");
    Open();
    ClickTab("Daily");
    ClickNewDaily();
    FillMarks(kDailyMarks);
    FillMoment("13032024", "1405");
    Calculate();
    ExpectTold("You are trying to update two or more drafts with same Date & Time.\n\n"
               "Please correct it and try again.",
               [&] { PressSave(); });
    FillMoment("13032024", "1406");
    SaveWell();
    EXPECT_THAT(Items("cmbTime"), testing::UnorderedElementsAre("14:05", "14:06"));

    const std::string stored = Stored();
    FillMoment("13032024", "1405");
    FatalRecorder fatal;
    Prompt(kDailyPrompt, MsgAnswer::Yes);
    ClickNewDaily();
    Prompt(kClosePrompt, MsgAnswer::Yes);
    PressClose();
    EXPECT_THAT(fatal.Numbers(), ElementsAre(ErrorNumber::Overflow, ErrorNumber::Overflow));
    EXPECT_EQ(Stored(), stored);
}

TEST_F(Save, DeletingAsksAndTakesWhatItNames)
{
    const std::tuple<const char *, const char *, const char *, const char *> stages[]
        = {{"Daily", "Are you sure to delete the daily draft ?", "One record has been deleted successfully.", "3"},
           {"Final", "Are you sure to delete the final draft ?", "One record has been deleted successfully.", "2"},
           {"Initial",
            "Deletion of Initial draft will also delete Final and all Daily drafts.\n\nAre you sure to continue ?",
            "Drafts deleted successfully.", "0"}};
    const auto answer = [this](const char *prompt, MsgAnswer given) { Prompt(prompt, given, MsgButtons::YesNo); };
    StoreSurvey();
    StoreDraft(2, "202403131405");
    StoreDraft(2, "202403140800", "24139.91223");
    StoreDraft(1, "202403150800");
    Open();
    Run("PRAGMA query_only = ON");
    const std::string stored = Stored();
    for (const auto &[stage, prompt, told, drafts] : stages) {
        ClickTab(stage);
        answer(prompt, MsgAnswer::No);
        PressDelete();
        answer(prompt, MsgAnswer::Yes);
        const std::string what = *drafts == '0' ? "draft/s" : "the current draft";
        ExpectTold(
            "An internal error has occured while deleting " + what
                + "\n\nPlease contact us with the error no. on the titlebar of this dialog box.",
            [&] { PressDelete(); }, MsgIcon::Critical, *drafts == '2' ? "Keelmark10000" : "Keelmark-10000");
        EXPECT_EQ(Stored() + Text("txtFwdPort"), stored + (*drafts == '0' ? "7.52" : "8.1"));
    }
    Run("PRAGMA query_only = OFF");
    for (const auto &[stage, prompt, told, drafts] : stages) {
        ClickTab(stage);
        answer(prompt, MsgAnswer::Yes);
        ExpectTold(
            told, [&] { PressDelete(); }, MsgIcon::Information);
        EXPECT_EQ(Count("True") + Texts({"txtFwdPort", "txtTrueMeanDraft"}), std::string(drafts) + " ") << stage;
        EXPECT_EQ(Window().ButtonMask(), *drafts == '0' ? "011111011" : "111111011");
        EXPECT_EQ(Count("DateTime = 202403140800"), "0") << "the latest Daily draft was on show";
    }
    EXPECT_EQ(Stored() + Setting(), "0");
    EXPECT_FALSE(LaterTabsAreOn());
    PressClose();
    EXPECT_FALSE(IsOpen());
}

TEST_F(Save, AFinalDraftOfAVeryLargeCargoIsSavedFromTheInitialTab)
{
    AddShip();
    Run("UPDATE HydrostaticDataTable SET Displacement = Displacement * 10");
    Run("UPDATE Ship SET LightShip = 90000");
    Open();
    FillHeader();
    FillMarks(kWorkedMarks);
    FillCell(0, "99999");
    FillCell(1, "38000");
    Calculate();
    SaveWell();
    ClickTab("Final");
    FillMarks(kDailyMarks);
    const char *const refusal = "Invalid constant value.\n\nPlease check your input values.";
    ExpectTold(refusal, [this] { Calculate(); });
    const std::string cargo = Text("txtTotCargoLoaded");
    ExpectTold(refusal, [this] { PressSave(); });
    ClickTab("Initial");
    Calculate();
    SaveWell();
    ClickTab("Final");
    EXPECT_EQ(Text("txtTotCargoLoaded"), cargo);
    EXPECT_GT(std::stod(cargo), 100000);
    PressClose();
    EXPECT_FALSE(IsOpen());
}
} // namespace
