#include "frame/controls/Colours.h"
#include "frame/platform/Settings.h"
#include "tests/survey/SurveyDesk.h"

#include <gmock/gmock.h>

#include <QLineEdit>

namespace
{
using testing::ElementsAre;

class Lookup : public SurveyDesk
{
protected:
    void Fetch() { Click(The("cmdGetDrafts")); }
    [[nodiscard]] std::string Triple() const { return Texts({"dcbShip", "dcbVoyageID", "dcbPort"}); }
    /// The state of a survey that is none yet.
    void ExpectEmpty()
    {
        EXPECT_EQ(Texts({"txtCargo", "txtDensity", "txtFwdPort", "txtTrueMeanDraft", "txtConstant", "txtComments"}),
                  "     ");
        EXPECT_EQ(Texts({"mbxDate", "mbxTime"}), "14-03-2024 09:26");
        EXPECT_EQ(Tab() + " " + Window().ButtonMask(), "Initial 011111011");
        EXPECT_FALSE(LaterTabsAreOn());
    }
};

TEST_F(Lookup, AShipWithoutTableHoldsTheFocus)
{
    AddShip("twins");
    AddShip();
    Run("DELETE FROM HydrostaticDataTable WHERE ShipID = 1");
    Open();
    Press(Qt::Key_Home);
    for (const auto &way :
         std::initializer_list<std::function<void()>> {[&] { Press(Qt::Key_Tab); }, [&] { Press(Qt::Key_Return); },
                                                       [&] { Click(The("txtFwdPort")); }, [&] { Fetch(); }}) {
        ExpectTold("No Hydrostatic Data exists corresponding to the selected ship.\n\n"
                   "Please provide Hydrostatic data for this ship and try again.",
                   way);
        EXPECT_EQ(Focus() + " " + Text("dcbShip"), "dcbShip MV Twins");
    }
    Press(Qt::Key_Down);
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus() + " " + Text("dcbShip"), "dcbVoyageID MV Worked");
    Prompt(kClosePrompt, MsgAnswer::No);
    PressClose();
    EXPECT_FALSE(IsOpen());
}

TEST_F(Lookup, FetchWantsShipVoyageAndPort)
{
    AddShip();
    Open();
    ExpectTold("Ship name has not been provided.\n\nPlease select a ship and try again.", [&] { Fetch(); });
    Pick("dcbShip", 0);
    ExpectTold("Voyage-ID has left empty.\n\nPlease select a Voyage-ID and try again.", [&] { Fetch(); });
    Fill("dcbVoyageID", "V1");
    ExpectTold("No port has been specified for draft.\n\nPlease select a port and try again.", [&] { Fetch(); });
}

TEST_F(Lookup, FetchFindsASurveyOrLeavesItsTripleForANewOne)
{
    StoreSurvey();
    Run("INSERT INTO DraftParticulars VALUES (9, 1, 'V9', 1, 'Grain', 0, False)");
    Open();
    EXPECT_THAT(Items("dcbVoyageID"), ElementsAre("V1"));
    for (const char *voyage : {"V2", "V9"}) {
        Fill("dcbVoyageID", voyage);
        Fill("txtFwdPort", "7.6");
        ExpectTold(
            "No draft exists corresponding to provided ShipID, VoyageID, & PortID", [&] { Fetch(); }, MsgIcon::None);
        EXPECT_EQ(Triple(), "MV Worked " + std::string(voyage) + " Richards Bay");
        ExpectEmpty();
    }
    Fill("dcbVoyageID", "V1");
    Fetch();
    EXPECT_EQ(Texts({"txtCargo", "txtFwdPort", "txtConstant", "mbxDate", "mbxTime"}),
              "Coal 7.52 341.68513 12-03-2024 06:30");
    EXPECT_TRUE(LaterTabsAreOn());
    EXPECT_EQ(Window().ButtonMask(), "111111111");
    Fill("dcbVoyageID", "V's");
    ExpectTold(
        "frmDraftSurvey::GetDraft", [&] { Fetch(); }, MsgIcon::None);
    EXPECT_EQ(Text("txtFwdPort"), "7.52");
}

TEST_F(Lookup, DatesAreListedAsTextsAndBringUpTheirDrafts)
{
    StoreSurvey();
    for (const char *moment : {"202403021000", "202401151830", "202401150800"})
        StoreDraft(2, moment);
    Run("UPDATE DraftDetails SET Comments = DateTime WHERE DraftType = 2");
    Open();
    ClickTab("Daily");
    EXPECT_EQ(Text("txtComments"), "202403021000");
    EXPECT_THAT(Items("dcbDate"), ElementsAre("02-03-2024", "15-01-2024"));
    Pick("dcbDate", 1);
    EXPECT_EQ(Text("mbxDate"), "15-01-2024");
    ASSERT_EQ(Items("cmbTime").size(), 2U);
    for (const int row : {1, 0}) {
        Pick("cmbTime", row);
        EXPECT_EQ(Text("mbxTime"), Items("cmbTime")[static_cast<std::size_t>(row)]);
        Fetch();
        EXPECT_EQ(Text("txtComments"), Text("mbxTime") == "18:30" ? "202401151830" : "202401150800");
        EXPECT_EQ(Texts({"txtFwdPort", "txtTotCargoOnboard"}), "8.1 1399.12026");
        EXPECT_TRUE(IsOn("cmdNewDailyDraft"));
    }
    Fill("mbxTime", "0801");
    ExpectTold("No draft exists corresponding to provided RecordID, Date and Time.", [&] { Fetch(); });
    EXPECT_EQ(Texts({"txtFwdPort", "txtComments", "mbxDate"}), "  14-03-2024");
    EXPECT_FALSE(IsOn("cmdNewDailyDraft"));
    PressClose();
    EXPECT_FALSE(IsOpen());
}

TEST_F(Lookup, ADraftThatCannotBeCalculatedHasNoFiguresOfTheOneBefore)
{
    StoreSurvey();
    StoreDraft(2, "202403021000");
    StoreDraft(2, "202401151830");
    Run("UPDATE DraftDetails SET AftPortDraft = 30 WHERE DateTime = 202401151830");
    Open();
    ClickTab("Daily");
    Fill("mbxDate", "15012024");
    Fill("mbxTime", "1830");
    ExpectTold(
        "Value of TMD > calculated TMD does not exists in Hydrostatic data for the current ship.\n\n"
        "Please check your input values.",
        [&] { Fetch(); }, MsgIcon::Critical);
    EXPECT_EQ(Text("txtAftPort"), "30");
    EXPECT_EQ(Cell("fgrdFinalResult", 0, 1) + Cell("fgrdFinalResult", 9, 1), "");
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5 2:2=470.5 3:2=470.5");
}

TEST_F(Lookup, TheBaselineIsPickedFromTheDraftsInTimesOrder)
{
    StoreSurvey();
    StoreDraft(2, "202403140800", "24139.91223");
    StoreDraft(2, "202403131405");
    StoreDraft(1, "202403150800");
    Open();
    ClickTab("Daily");
    EXPECT_THAT(Items("cmbDailyDateTime"), ElementsAre("Initial Draft", "13-03-2024 14:05", "14-03-2024 08:00"));
    EXPECT_EQ(Text("txtTotCargoOnboard"), "1399.12026");
    const char *const picks[] = {"0 1399.12026", "1399.12026 0", "1698.2271 -299.10684"};
    for (const int row : {2, 1, 0}) {
        Pick("cmbDailyDateTime", row);
        EXPECT_EQ(Texts({"txtPrevLoadedCargo", "txtLastLoadedCargo"}), picks[row]);
        EXPECT_EQ(IsRed(The<QLineEdit>("txtLastLoadedCargo")), row == 2);
    }
}

TEST_F(Lookup, ANumberOfNoSurveyOpensAnEmptyWindowQuietly)
{
    AddShip();
    Run("INSERT INTO DraftParticulars VALUES (3, 1, 'V3', 1, 'Grain', 0, False)");
    for (const char *setting : {"77", "3", "-1", "", "abc", "1 OR 1"}) {
        SCOPED_TRACE(setting);
        SaveSetting("Draft Survey Loading", "RecordID", setting);
        Open();
        EXPECT_EQ(Triple(), "  ");
        ExpectEmpty();
        PressClose();
        EXPECT_FALSE(IsOpen());
    }
}

TEST_F(Lookup, EachStageHasItsControls)
{
    const char *const stages[][3]
        = {{"Daily", "111101011",
            "+dcbDate +cmbTime chkDailyListCorrection fmeDailyDraftResult cmdGetDrafts cmdNewDailyDraft "},
           {"Final", "111111011", "chkFinalListCorrection fmeFinalNetDisp fgrdResult "},
           {"Initial", "111111111",
            "+dcbShip +dcbVoyageID +dcbPort +txtCargo chkInitListCorrection fmeInitNetDisp fgrdResult cmdGetDrafts "}};
    StoreSurvey();
    Open();
    for (const auto &[stage, mask, controls] : stages) {
        ClickTab(stage);
        EXPECT_EQ(Tab() + " " + Window().ButtonMask() + " " + Focus(), std::string(stage) + " " + mask + " txtDensity");
        std::string found;
        for (const char *name : {"dcbDate", "cmbTime", "dcbShip", "dcbVoyageID", "dcbPort", "txtCargo"})
            found += IsOn(name) ? std::string("+") + name + " " : "";
        for (const char *name :
             {"chkInitListCorrection", "chkDailyListCorrection", "chkFinalListCorrection", "fmeInitNetDisp",
              "fmeDailyDraftResult", "fmeFinalNetDisp", "fgrdResult", "cmdGetDrafts", "cmdNewDailyDraft"})
            found += The(name).isVisible() ? std::string(name) + " " : "";
        EXPECT_EQ(found, controls);
    }
}
} // namespace
