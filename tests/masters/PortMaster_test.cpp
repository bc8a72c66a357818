#include "frame/store/Connection.h"
#include "tests/masters/RecordsDesk.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

constexpr const char *kBoxHint = "Type the new Port name and press Enter to save it";
constexpr const char *kOpenHint = "Press Ctrl-O to open the Open file box";
constexpr const char *kWithAll = "Deletion of this port will also delete all the ships and drafts corresponding to "
                                 "it.\n\nAre you sure to delete the selected port ?";

class PortMaster : public RecordsDesk
{
protected:
    PortMaster()
        : RecordsDesk(ChildWindow::Port)
    {
    }

    void OpenWithPorts()
    {
        Run("INSERT INTO Port (PortName, City, Country) VALUES ('Durban', 'Durban', 'South Africa'), "
            "('aalborg', NULL, 'Denmark'), ('Cadiz', 'Cadiz', NULL)");
        Open();
    }

    void AskToDelete(MsgAnswer answer) { RecordsDesk::AskToDelete(kWithAll, MsgAnswer::No, answer); }

    static std::string Stored()
    {
        return Ask("SELECT coalesce(group_concat(Line, ' '), '') FROM (SELECT PortID || ':' || PortName || '/' || "
                   "coalesce(City, '') || '/' || coalesce(Country, '') AS Line FROM Port ORDER BY PortID)")
            .Text();
    }
};

TEST_F(PortMaster, APortIsAddedAndChangedWithTheKeyboardOnly)
{
    Open();
    EXPECT_EQ(CommandsOn(), "010001");
    EXPECT_EQ(Focus(), "txtPortName");
    Type(Frame(), "  O'Higgins  ");
    Press(Qt::Key_Return);
    Type(Frame(), "Sixteen letters!");
    Press(Qt::Key_Enter);
    EXPECT_EQ(Focus(), "txtCountry");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "dlstPortMaster");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    PressSave();
    EXPECT_EQ(Stored(), "1:O'Higgins/Sixteen letters/");
    EXPECT_EQ(Boxes(), "||");
    EXPECT_EQ(Focus(), "txtPortName");

    Type(Frame(), "Aden");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("Aden", "O'Higgins"));
    for (int step = 0; step < 3; ++step)
        Press(Qt::Key_Tab);
    EXPECT_EQ(Boxes(), "||") << "the focus picks nothing";
    Press(Qt::Key_Down);
    EXPECT_EQ(Boxes(), "Aden||");
    EXPECT_EQ(CommandsOn(), "110011");
    Press(Qt::Key_Down);
    EXPECT_EQ(Boxes(), "O'Higgins|Sixteen letters|");
    Fill("txtCountry", "Chile ");
    AskToSave(kChange, MsgAnswer::Yes);
    Tell(kChanged);
    PressSave();
    EXPECT_EQ(Stored(), "1:O'Higgins/Sixteen letters/Chile 2:Aden//");
    EXPECT_EQ(Boxes(), "||");
    EXPECT_EQ(CommandsOn(), "110011") << "the commands stay as the pick left them";

    // A pick followed by New adds a row; the same row can be picked once more.
    ClickRow(0);
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(CommandsOn() + Boxes() + Focus(), "010001||txtPortName");
    ClickRow(0);
    EXPECT_EQ(CommandsOn() + Boxes(), "110011Aden||");
    Press(Qt::Key_N, Qt::ControlModifier);
    Type(Frame(), "Basra");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("Aden", "Basra", "O'Higgins"));
}

TEST_F(PortMaster, NothingIsSavedWithoutANameOrAYes)
{
    OpenWithPorts();
    EXPECT_THAT(Rows(), ElementsAre("aalborg", "Cadiz", "Durban"));
    const std::string stored = Stored();
    ClickRow(1);
    Fill("txtPortName", "   ");
    Tell("Please enter port name");
    PressSave();
    EXPECT_EQ(Focus() + Boxes(), "txtPortName   |Cadiz|");

    // What was a change is a new record from there on.
    Fill("txtPortName", "Cork");
    Click(The("txtCity"));
    AskToSave(kAdd, MsgAnswer::No);
    PressSave();
    EXPECT_EQ(Focus(), "txtCity");
    ClickRow(1);
    AskToSave(kChange, MsgAnswer::No);
    PressSave();
    AskToSave(kChange, MsgAnswer::Cancel);
    PressSave();
    EXPECT_EQ(Focus() + Boxes(), "txtPortNameCadiz|Cadiz|");
    AskToSave(kAdd, MsgAnswer::No);
    PressSave();
    EXPECT_EQ(Stored(), stored);
}

TEST_F(PortMaster, APortTakesItsShipsAndSurveysAlongOnAYesOnly)
{
    Run("INSERT INTO Port (PortName) VALUES ('Aden'), ('Basra')");
    Run("INSERT INTO Ship (ShipName, PortOfRegistry) VALUES ('Gone', 1), ('Kept', 2)");
    Run("INSERT INTO HydrostaticDataTable (ShipID, TMD) VALUES (1, 5), (2, 5)");
    Run("INSERT INTO DraftParticulars VALUES (1, 1, 'V', 2, '', 0, 1), (2, 2, 'V', 1, '', 0, 1), (3, 2, 'V', 2, '', 0, "
        "1)");
    Run("INSERT INTO DraftDetails (DraftID, RecordID, DraftType, DateTime) SELECT RecordID, RecordID, 0, 202403120630 "
        "FROM DraftParticulars");
    Run("INSERT INTO DeductionTrans SELECT DraftID, 2, 1 FROM DraftDetails");
    const auto counts = [] {
        return Ask("SELECT (SELECT COUNT(*) FROM Port) || (SELECT COUNT(*) FROM Ship) || (SELECT COUNT(*) FROM "
                   "HydrostaticDataTable) || (SELECT COUNT(*) FROM DraftParticulars) || (SELECT COUNT(*) FROM "
                   "DraftDetails) || (SELECT COUNT(*) FROM DeductionTrans)")
            .Text();
    };
    Open();
    ClickRow(0);
    AskToDelete(MsgAnswer::No);
    PressDeleteButton();
    EXPECT_EQ(counts() + Boxes(), "222333Aden||");
    AskToDelete(MsgAnswer::Yes);
    Tell(kDeleted);
    PressDeleteButton();
    EXPECT_EQ(counts(), "111111");
    EXPECT_THAT(Rows(), ElementsAre("Basra"));
    EXPECT_EQ(CommandsOn() + Boxes(), "010001||");
}

TEST_F(PortMaster, DelWithNoRowPickedDeletesTheFirstRow)
{
    OpenWithPorts();
    List().setFocus();
    for (const char *left : {"1:Durban/Durban/South Africa 3:Cadiz/Cadiz/", "1:Durban/Durban/South Africa", ""}) {
        AskToDelete(MsgAnswer::Yes);
        Tell(kDeleted);
        Press(Qt::Key_Delete);
        EXPECT_EQ(Stored(), left);
    }
    AskToDelete(MsgAnswer::Yes);
    TellNotDeleted();
    Press(Qt::Key_Delete);
}

TEST_F(PortMaster, ARefusedPortIsStillThereToBeMendedOrGivenUp)
{
    OpenWithPorts();
    for (const char *act : {"INSERT ON Port WHEN NEW.PortName = 'Bad'", "UPDATE ON Port WHEN NEW.PortName = 'Bad'",
                            "DELETE ON Port WHEN OLD.PortName = 'Cadiz'"})
        Run("CREATE TRIGGER No" + std::string(act, 6) + " BEFORE " + act + " BEGIN SELECT RAISE(ABORT, 'no'); END");
    ClickRow(0);
    Fill("txtPortName", "Bad");
    AskToSave(kChange, MsgAnswer::Yes);
    TellNotSaved();
    PressSave();
    EXPECT_EQ(Boxes(), "Bad||Denmark");
    Fill("txtPortName", "Aarhus");
    AskToSave(kChange, MsgAnswer::Yes);
    Tell(kChanged);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("Aarhus", "Cadiz", "Durban"));

    // A refused new row is the one that the next save writes, also after New; Del only gives it up.
    const auto refuse = [this](const char *question) {
        Fill("txtPortName", "Bad");
        AskToSave(question, MsgAnswer::Yes);
        TellNotSaved();
        PressSave();
    };
    refuse(kAdd);
    Press(Qt::Key_N, Qt::ControlModifier);
    Fill("txtPortName", "Good");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("Aarhus", "Cadiz", "Durban", "Good"));
    refuse(kAdd);
    AskToDelete(MsgAnswer::Yes);
    Tell(kDeleted);
    List().setFocus();
    Press(Qt::Key_Delete);
    EXPECT_THAT(Rows(), ElementsAre("Aarhus", "Cadiz", "Durban", "Good"));

    ClickRow(1);
    AskToDelete(MsgAnswer::Yes);
    TellNotDeleted();
    PressDeleteButton();
    EXPECT_EQ(CommandsOn() + Boxes(), "110011Cadiz|Cadiz|");
    refuse(kChange);
    ClickRow(0);
    EXPECT_EQ(Boxes(), "Aarhus||Denmark") << "a pick gives up what was refused";
    // A refused change is not made of the next new port.
    refuse(kChange);
    Press(Qt::Key_N, Qt::ControlModifier);
    Fill("txtPortName", "New");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("Aarhus", "Cadiz", "Durban", "Good", "New"));
}

TEST_F(PortMaster, ALockedStoreEndsNothingAndStoresNothingTwice)
{
    OpenWithPorts();
    Run("PRAGMA busy_timeout = 0");
    Connection other;
    other.Open(File());
    other.Execute("BEGIN EXCLUSIVE");
    Fill("txtPortName", "Oban");
    AskToSave(kAdd, MsgAnswer::Yes);
    TellNotSaved();
    PressSave();
    ClickRow(2);
    EXPECT_EQ(Boxes(), "Durban|Durban|South Africa");
    Fill("txtPortName", "Richards Bay");
    AskToSave(kChange, MsgAnswer::Yes);
    TellNotSaved();
    PressSave();
    other.Execute("ROLLBACK");
    AskToSave(kChange, MsgAnswer::Yes);
    Tell(kChanged);
    PressSave();
    EXPECT_THAT(Rows(), ElementsAre("aalborg", "Cadiz", "Richards Bay"));
}

TEST_F(PortMaster, ATextLongerThanItsBoxComesBackWhole)
{
    Run("INSERT INTO Port (PortName, Country) VALUES ('Aden', 'The Republic of Yemen')");
    Open();
    ClickRow(0);
    EXPECT_EQ(Boxes(), "Aden||The Republic of Yemen");
    Fill("txtCity", "Aden");
    AskToSave(kChange, MsgAnswer::Yes);
    Tell(kChanged);
    PressSave();
    EXPECT_EQ(Stored(), "1:Aden/Aden/The Republic of Yemen");
}

TEST_F(PortMaster, HintsFollowTheFocusAndTheLastWindowLeavesTheOpenHint)
{
    OpenWithPorts();
    EXPECT_EQ(Hint(), kBoxHint);
    ClickRow(2);
    EXPECT_EQ(Hint(), kListHint);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);
    Frame().SetHint("another's");
    Type(Frame(), "x");
    EXPECT_EQ(Hint(), kBoxHint);
    OpenChild(ChildWindow::DeductionMaster);
    Settle();
    OpenChild(ChildWindow::Port);
    EXPECT_EQ(CommandsOn(), "110011");
    EXPECT_EQ(Hint(), kBoxHint);

    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_NE(Hint(), kOpenHint);
    LoadedChild(ChildWindow::DeductionMaster)->Unload();
    Open();
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(Hint(), kOpenHint);
    EXPECT_EQ(CommandsOn(), "000000");
}

TEST_F(PortMaster, WithoutItsRowsTheWindowOpensWithAllCommandsOff)
{
    Run("DROP TABLE Port");
    Tell("A serious internal error has occured.\n\n"
         "Please contact us with the error no. on the titlebar of this dialog box.",
         "Keelmark-10014");
    Open();
    EXPECT_EQ(CommandsOn(), "000000");
    List().setFocus();
    AskToDelete(MsgAnswer::Yes);
    TellNotDeleted();
    Press(Qt::Key_Delete);
}

} // namespace
