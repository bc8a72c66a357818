#include "tests/masters/RecordsDesk.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

constexpr const char *kNewHint = "Type the new Item name and press Enter to save it";
constexpr const char *kChangeHint = "You can update the Item name and press Enter to store it";

class DeductionMaster : public RecordsDesk
{
protected:
    DeductionMaster()
        : RecordsDesk(ChildWindow::DeductionMaster)
    {
        Run("DELETE FROM DeductionMaster");
        Run("INSERT INTO DeductionMaster VALUES (1, 'Slops'), (2, 'Fuel Oil'), (3, 'Ballast')");
    }

    void AskToDelete(MsgAnswer answer)
    {
        RecordsDesk::AskToDelete("Are you sure to delete the current record ?", MsgAnswer::Yes, answer);
    }
};

TEST_F(DeductionMaster, EnterInTheBoxSavesAndLeavesTheFocus)
{
    Open();
    EXPECT_EQ(CommandsOn(), "011101");
    EXPECT_EQ(Hint(), kNewHint);
    EXPECT_THAT(Rows(), ElementsAre("Slops", "Fuel Oil", "Ballast"));
    Tell("Please enter item name");
    Press(Qt::Key_Return);
    Type(Frame(), " Stores ");
    AskToSave(kAdd, MsgAnswer::Yes);
    Tell(kAdded);
    Press(Qt::Key_Return);
    EXPECT_THAT(Rows(), ElementsAre("Slops", "Fuel Oil", "Ballast", "Stores"));
    EXPECT_EQ(Focus() + Boxes(), "txtItemName");

    ClickRow(1);
    EXPECT_EQ(Hint(), kListHint);
    EXPECT_EQ(CommandsOn() + Boxes(), "111111Fuel Oil");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "dlstItemMaster") << "Enter is nothing there";
    Press(Qt::Key_Backtab);
    EXPECT_EQ(Hint(), kChangeHint);
    Fill("txtItemName", "Gas Oil");
    List().setFocus();
    AskToSave(kChange, MsgAnswer::Yes);
    Tell(kChanged);
    PressSave();
    EXPECT_EQ(Focus(), "dlstItemMaster");
    EXPECT_THAT(Rows(), ElementsAre("Slops", "Gas Oil", "Ballast", "Stores"));

    // Cancel and a missing name make it a new record, No does not.
    ClickRow(0);
    AskToSave(kChange, MsgAnswer::No);
    PressSave();
    AskToSave(kChange, MsgAnswer::Cancel);
    PressSave();
    EXPECT_EQ(Focus(), "dlstItemMaster");
    AskToSave(kAdd, MsgAnswer::No);
    PressSave();
    Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(CommandsOn() + Boxes() + Focus(), "011101txtItemName");
}

TEST_F(DeductionMaster, DelAsksOnceInTheListInTheBoxAndOnTheForm)
{
    Run("INSERT INTO Port (PortName) VALUES ('Aden')");
    Run("INSERT INTO Ship (ShipName, PortOfRegistry) VALUES ('Any', 1)");
    Run("INSERT INTO DraftParticulars VALUES (1, 1, 'V', 1, '', 0, 1)");
    Run("INSERT INTO DraftDetails (DraftID, RecordID, DraftType, DateTime) VALUES (1, 1, 0, 202403120630)");
    Run("INSERT INTO DeductionTrans VALUES (1, 1, 10), (1, 2, 20), (1, 3, 30)");
    Open();
    AskToDelete(MsgAnswer::No);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Rows().size(), 3);
    AskToDelete(MsgAnswer::Yes);
    Tell(kDeleted);
    Press(Qt::Key_Delete);
    EXPECT_THAT(Rows(), ElementsAre("Ballast", "Fuel Oil")) << "the current row went, the others are sorted now";
    EXPECT_EQ(Ask("SELECT SUM(Quantity) FROM DeductionTrans").ToLong(), 50);

    ClickRow(1);
    AskToDelete(MsgAnswer::Yes);
    Tell(kDeleted);
    Press(Qt::Key_Delete);
    EXPECT_THAT(Rows(), ElementsAre("Ballast"));
    EXPECT_EQ(CommandsOn() + Boxes(), "011101");
    Window().setFocus();
    AskToDelete(MsgAnswer::Yes);
    Tell(kDeleted);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Rows().size(), 0);
    AskToDelete(MsgAnswer::Yes);
    TellNotDeleted();
    Press(Qt::Key_Delete);
}

TEST_F(DeductionMaster, RefusalsAreReported)
{
    Run("CREATE TRIGGER NoRow BEFORE INSERT ON DeductionMaster BEGIN SELECT RAISE(ABORT, 'no'); END");
    Open();
    Type(Frame(), "Stores");
    AskToSave(kAdd, MsgAnswer::Yes);
    TellNotSaved();
    Press(Qt::Key_Return);
    EXPECT_EQ(Boxes(), "Stores");
    Window().Unload();

    Run("DROP TABLE DeductionMaster");
    Open();
    EXPECT_EQ(CommandsOn(), "000000") << "a window without its rows says nothing of it";
}

TEST_F(DeductionMaster, PrintEndsTheProgramAndClosingKeepsTheMask)
{
    Open();
    {
        FatalRecorder ended;
        Press(Qt::Key_P, Qt::ControlModifier);
        EXPECT_THAT(ended.Numbers(), ElementsAre(ErrorNumber::NoSuchOperation));
    }
    ClickRow(0);
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(CommandsOn(), "111111");
    EXPECT_EQ(Hint(), "Press Ctrl-O to open the Open file box");
    EXPECT_EQ(gOpenChildCount, 0);
}

} // namespace
