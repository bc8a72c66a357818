#include "core/numeric/Regional.h"
#include "masters/TextTable.h"
#include "tests/masters/HydrostaticDesk.h"

#include <QLabel>

namespace
{
const char *const kNoNumber = "Invalid value. Only numbers are allowed.";
const char *const kExists = "The values corresponding to this TMD already exists in the Hydrostatic Data Table.\n\n"
                            "Would you like to like to replace the existing one ?";
const char *const kUpdationError
    = "Updation error.\n\nHydrostatic data table already contains a record corresponding to the entered TMD";
const char *const kDeleteRow = "Are you sure to delete the current row ?";
const char *const kArgo = "7.9:4 8:4.1 8.1:4.2";

class HydrostaticTable : public HydrostaticDesk
{
protected:
    void DeleteFirstRow()
    {
        ClickRow(0);
        Ask(kDeleteRow, MsgAnswer::Yes);
        Press(Qt::Key_Delete);
    }
};

TEST(TextTable, KeepsWhatLiesInBothBoundsAndSortsByNumber)
{
    TextTable table;
    table.Redimension(-1, -1, 0, 1);
    EXPECT_EQ(table.UpperRow(), -1);
    EXPECT_TRUE(table.IsEmptyRow(-1));
    table.Redimension(0, 5, 0, 1);
    const std::vector<std::pair<const char *, const char *>> rows {{"10", "a"}, {"9.5", "b"},  {"", "c"},
                                                                   {"-2", "d"}, {"9.50", "e"}, {"1", "spare"}};
    for (std::int32_t row = 0; row < 6; ++row) {
        table.Cell(row, 0, rows[static_cast<std::size_t>(row)].first);
        table.Cell(row, 1, rows[static_cast<std::size_t>(row)].second);
    }
    table.Sort(0, 4, 0);
    const auto order = [&] {
        std::string text;
        for (std::int32_t row = table.LowerRow(); row <= table.UpperRow(); ++row)
            text += table.Cell(row, 1) + ' ';
        return text;
    };
    EXPECT_EQ(order(), "d b e a c spare ");
    EXPECT_EQ(table.Find(0, "9.50"), 2);
    EXPECT_EQ(table.Find(0, "9"), std::nullopt);
    table.DeleteRow(4);
    table.Redimension(0, 5, 0, 2);
    EXPECT_EQ(order(), "d b e a spare  ");
    EXPECT_EQ(table.Cell(1, 2), "");
    table.Redimension(1, 5, 0, 2);
    EXPECT_EQ(order(), "     ");
    EXPECT_THROW(table.Cell(0, 0, "x"), std::out_of_range);
    EXPECT_THROW(table.DeleteRow(6), std::out_of_range);
}

TEST_F(HydrostaticTable, OpensOnTheFirstShip)
{
    Open();
    EXPECT_EQ(Window().ButtonMask(), "110000101");
    EXPECT_EQ(Text("txtPortOfRegistry") + Text("txtCallSign") + Text("txtOfficialNo") + Text("txtFlag")
                  + Text("txtIMONo"),
              "AdenARGO77712Malta9074729");
    EXPECT_EQ(Shown(0), "7.9 8 8.1 ");
    EXPECT_EQ(Shown(7), "4 4.1 4.2 ");
    EXPECT_EQ(Hint(), "You can view Hydrostatic Data for a particular ship from here");
    EXPECT_EQ(Focus(), "txtGridTextbox");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "tdbHDT");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "dcbShipName");
}

TEST_F(HydrostaticTable, TwoHundredRowsAreTypedWithTheKeyboardOnly)
{
    Open();
    PickShip(Qt::Key_Down);
    EXPECT_EQ(Focus(), "txtGridTextbox");
    EXPECT_EQ(Shown(), "");
    for (int row = 200; row > 0; --row)
        TypeRow(QStringLiteral("%1.%2 9 8 7 -6 5 4 3.5").arg(row / 10).arg(row % 10));
    EXPECT_EQ(Grid8().model()->rowCount(), 201);
    SaveWell();
    EXPECT_EQ(TestStore::Ask("SELECT count(DISTINCT TMD) || ' ' || min(TMD) || ' ' || max(TMD) || ' ' || sum(KB)"
                             " FROM HydrostaticDataTable WHERE ShipID = 2")
                  .Text(),
              "200 0.1 20.0 700.0");
    mMessages.ExpectNoneLeft();
}

TEST_F(HydrostaticTable, EachColumnHasItsBoundsPlacesAndHint)
{
    Open();
    struct Case {
        int column;
        const char *typed;
        const char *message; // or none
        const char *cell;
        const char *hint;
    };
    const Case cases[] = {
        {0, "abc", kNoNumber, "", ""},
        {0, "0", "Value of Hyd. Draft can only be a positive number greater than 0 and less than 100.", "", ""},
        {0, "1e40", "Value of Hyd. Draft can only be a positive number greater than 0 and less than 100.", "", ""},
        {0, "8.12345678", "", "8.1235", "Enter corresponding displacement in Metric Tonnes."},
        {1, "1000000", "Value of Displacement can only be a positive number greater than 0 and less than 1000000.", "",
         ""},
        {1, "1,234.5675", "", "1234.568", "Enter Tonnes per centimeter immersion."},
        {2, "-1", "Value of TPC can only be a positive number  greater than 0 and less than 10000.", "", ""},
        {2, " 64.3 ", "", "64.3", "Enter corresponding MCTC."},
        {3, "100000", "Value of MCTC can only be a positive number  greater than 0 and less than 100000.", "", ""},
        {3, "99999.999", "", "99999.999",
         "Enter Longitudinal center of buoyancy measured from midship. Distances forward of midship are -ve."},
        {4, "-1000", "Value of LCB can only be a positive number  greater than -1000 and less than 1000.", "", ""},
        {4, "-999.5", "", "-999.5",
         "Enter Longitudinal center of floatation measured from midship. Distances forward of midship are -ve."},
        {5, "10000", "Value of LCF can only be a positive number  greater than -10000 and less than 10000.", "", ""},
        {5, "0", "", "0", "Enter corresponding transverse KM."},
        {6, "0", "Value of KM can only be a positive number greater than 0 and less than 1000.", "", ""},
        {6, "1.0005", "", "1", "Enter corresponding KB."},
        {7, "1000", "Value of KB can only be a positive number  greater than 0 and less than 1000.", "", ""},
    };
    for (const Case &test : cases) {
        SCOPED_TRACE(test.typed);
        ASSERT_EQ(EntryColumn(), test.column);
        Type(Frame(), test.typed);
        if (*test.message == '\0') {
            Press(Qt::Key_Return);
            EXPECT_EQ(The<Grid>("fgrdInsertHD").Cell(1, test.column).toStdString(), test.cell);
            EXPECT_EQ(Hint(), test.hint);
            continue;
        }
        TellRow(test.message);
        Press(test.column % 2 ? Qt::Key_Right : Qt::Key_Tab);
        mMessages.ExpectNoneLeft();
        EXPECT_EQ(Box(), "");
        EXPECT_EQ(Focus(), "txtGridTextbox");
    }
    for (int column = 7; column > 0; --column)
        Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    EXPECT_EQ(EntryColumn(), 0);
    EXPECT_EQ(Box(), "8.1235");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Right);
    EXPECT_EQ(Entry(), "1234.568 64.3 99999.999 -999.5 0 1");
    Type(Frame(), "x");
    TellRow(kNoNumber);
    ClickEntry(4);
    EXPECT_EQ(EntryColumn(), 1);
    ClickEntry(4);
    EXPECT_EQ(EntryColumn(), 4);
    EXPECT_EQ(Box(), "-999.5");
}

TEST_F(HydrostaticTable, AHalfFilledRowIsNotSaved)
{
    Open();
    const char *const names[] = {"Hyd. Draft", "Displacement", "TPC", "MCTC", "LCB", "LCF", "KM", "KB"};
    ClickEntry(1);
    Type(Frame(), "5");
    for (int column = 0; column < 8; ++column) {
        if (column == 1)
            continue;
        SCOPED_TRACE(names[column]);
        TellRow(std::string("Value of ") + names[column] + " can't be left blank.");
        PressSave();
        mMessages.ExpectNoneLeft();
        EXPECT_EQ(EntryColumn(), column);
        EXPECT_FALSE(gConnection->InTransaction());
        Type(Frame(), "5");
    }
    EXPECT_EQ(Stored(), kArgo);
    SaveWell();
    EXPECT_EQ(Stored(), "5:5 7.9:4 8:4.1 8.1:4.2");
}

TEST_F(HydrostaticTable, SavesTheRowThatIsStillBeingTyped)
{
    Open();
    Tell("No data to save.");
    PressSave();
    EXPECT_EQ(Window().ButtonMask(), "110000101");
    TypeRow("8.05 47300 64.2 986 -7 -6 13");
    Type(Frame(), "4.15");
    SaveWell();
    EXPECT_EQ(Stored(), "7.9:4 8:4.1 8.05:4.15 8.1:4.2");
    EXPECT_EQ(Entry() + Box(), "");
    EXPECT_EQ(Window().ButtonMask(), "010000101");
    Tell("No data to save.");
    PressSave();
    Type(Frame(), "100");
    TellRow("Value of Hyd. Draft can only be a positive number greater than 0 and less than 100.");
    PressSave();
    EXPECT_FALSE(gConnection->InTransaction());
}

TEST_F(HydrostaticTable, AReplaceWritesOverTheFirstRow)
{
    Open();
    TypeRow("8.1 1 2 3 4 5 6");
    Type(Frame(), "7");
    Ask(kExists, MsgAnswer::No, MsgButtons::YesNoCancel);
    Press(Qt::Key_Return);
    EXPECT_EQ(Entry(), "8.1 1 2 3 4 5 6 7");
    EXPECT_EQ(EntryColumn(), 0);
    EXPECT_EQ(Box(), "8.1");
    ClickEntry(7);
    Ask(kExists, MsgAnswer::Yes, MsgButtons::YesNoCancel);
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(0), "8 8.1 8.1 ");
    EXPECT_EQ(Shown(7), "4.1 7 4.2 ");
    TypeRow("8 1 2 3 4 5 6");
    Type(Frame(), "7");
    Ask(kExists, MsgAnswer::Cancel, MsgButtons::YesNoCancel);
    Press(Qt::Key_Return);
    EXPECT_EQ(Entry() + Box(), "");
    EXPECT_EQ(Stored(), kArgo);
    SaveWell();
    EXPECT_EQ(Stored(), "8:4.1 8.1:7 8.1:4.2");
}

TEST_F(HydrostaticTable, APickedRowIsRefusedUnderItsOwnDraft)
{
    Open();
    PressNew();
    EXPECT_EQ(Window().ButtonMask(), "010000101");
    ClickRow(1);
    EXPECT_EQ(Entry(), "8 47039 64.26 985.7 -7 -6.11 13.4 4.1");
    EXPECT_EQ(Box(), "8");
    EXPECT_EQ(Window().ButtonMask(), "110000101");
    ClickEntry(7);
    Tell(kUpdationError);
    Press(Qt::Key_Return);
    EXPECT_EQ(Entry(), "8 47039 64.26 985.7 -7 -6.11 13.4 4.1");
    ClickEntry(0);
    TypeRow("8.3 47039 64.26 985.7 -7 -6.11 13.4 4.1");
    EXPECT_EQ(Shown(), "7.9 8.1 8.3 ");
    EXPECT_EQ(Entry() + Focus(), "txtGridTextbox");
    // The empty row cannot be picked; the next row typed is a new one.
    ClickRow(3);
    EXPECT_EQ(Entry(), "");
    ClickEntry(0);
    TypeRow("8.3 1 2 3 4 5 6");
    Ask(kExists, MsgAnswer::Cancel, MsgButtons::YesNoCancel);
    Type(Frame(), "7");
    Press(Qt::Key_Return);
}

TEST_F(HydrostaticTable, ARowAddedAfterADeleteLeavesAnEmptyOneThatTheStoreRefuses)
{
    Open();
    ClickRow(0);
    Ask(kDeleteRow, MsgAnswer::No);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Shown(), "7.9 8 8.1 ");
    PressNew();
    DeleteFirstRow();
    EXPECT_EQ(Shown(), "8 8.1 ");
    EXPECT_EQ(Entry() + Box(), "") << "the deleted row is not to be saved over the next one";
    EXPECT_EQ(Focus(), "tdbHDT");
    SaveWell();
    EXPECT_EQ(Stored(), "8:4.1 8.1:4.2");
    ClickEntry(0);
    TypeRow("9 1 2 3 4 5 6 7");
    EXPECT_EQ(Shown(), "8 8.1 9  ");
    Tell("near \",\": syntax error", "Keelmark", MsgIcon::None);
    PressSave();
    mMessages.ExpectNoneLeft();
    EXPECT_FALSE(gConnection->InTransaction());
    EXPECT_EQ(Stored(), "8:4.1 8.1:4.2");
    EXPECT_EQ(Shown(), "8 8.1 9  ");
}

TEST_F(HydrostaticTable, ADeletionIsSavedAfterAVisitToTheEntryRow)
{
    Open();
    ClickRow(0);
    ClickEntry(0);
    DeleteFirstRow();
    SaveWell();
    EXPECT_EQ(Stored(), "8:4.1 8.1:4.2");
}

TEST_F(HydrostaticTable, TheLastRowTakesTheDeleteCommandWithIt)
{
    Open();
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(Window().ButtonMask(), "110000101");
        DeleteFirstRow();
    }
    EXPECT_EQ(Window().ButtonMask(), "110000001");
    Press(Qt::Key_Delete);
    SaveWell();
    EXPECT_EQ(Stored(), "");
    EXPECT_EQ(Window().ButtonMask(), "010000001");
}

TEST_F(HydrostaticTable, AnotherShipAsksAboutTheRows)
{
    Open();
    TypeRow("9 1 2 3 4 5 6 7");
    AskToSave(MsgAnswer::Yes);
    PickShip(Qt::Key_Down);
    EXPECT_EQ(Stored(), "7.9:4 8:4.1 8.1:4.2 9:7");
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(Window().ButtonMask(), "010000101") << "a ship without rows leaves it as it was";
    EXPECT_EQ(Text("txtPortOfRegistry") + Text("txtCallSign"), "");
    TypeRow("3 1 2 3 4 5 6 7");
    EXPECT_EQ(Shown(), "3 ");
    AskToSave(MsgAnswer::No);
    PickShip(Qt::Key_Up);
    EXPECT_EQ(Shown(), "7.9 8 8.1 9 ");
    EXPECT_EQ(Stored(2), "");
    ClickRow(0);
    AskToSave(MsgAnswer::No);
    PickShip(Qt::Key_Down);
    EXPECT_EQ(Entry() + Box(), "") << "a picked row goes with its ship";
    EXPECT_EQ(Focus(), "tdbHDT");
    EXPECT_EQ(Shown(), "");
    SaveWell();
    ClickEntry(0);
    TypeRow("3 1 2 3 4 5 6 7");
    AskToSave(MsgAnswer::No);
    Window().RClose();
    mMessages.ExpectNoneLeft();
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(IsOpen()) << "closing asks nothing";
    EXPECT_EQ(Stored(2), "");
}

TEST_F(HydrostaticTable, TheWholeTableIsDeletedAtOnce)
{
    const char *const question = "This action will permanently remove the Hydrostatic data table for the current ship."
                                 "\n\nAre you sure to continue ?";
    Open();
    ClickRow(0);
    Ask(question, MsgAnswer::No);
    PressDeleteButton();
    EXPECT_EQ(Stored(), kArgo);
    Run("CREATE TRIGGER Kept BEFORE DELETE ON HydrostaticDataTable BEGIN SELECT RAISE(ABORT, 'kept'); END");
    Ask(question, MsgAnswer::Yes);
    Tell("An internal error has occured while deleting the Hydrostatic data for the current ship.\n\n"
         "Please contact us with the error no. on the titlebar of this dialog box.",
         "Keelmark-10019");
    PressDeleteButton();
    EXPECT_EQ(Shown(), "7.9 8 8.1 ");
    Run("DROP TRIGGER Kept");
    Ask(question, MsgAnswer::Yes);
    PressDeleteButton();
    mMessages.ExpectNoneLeft();
    EXPECT_EQ(Stored() + Shown() + Entry() + Box(), "");
    EXPECT_EQ(Window().ButtonMask(), "110000001");
    // The row was picked when its table went: what is typed now must not be lost in the empty one at the end.
    TypeRow("9 1 2 3 4 5 6 7");
    PressNew();
    EXPECT_EQ(Window().ButtonMask(), "010000001");
    SaveWell();
    EXPECT_EQ(Stored(), "9:7");
}

TEST_F(HydrostaticTable, ARefusedSaveLeavesStoreAndWindowAsTheyWere)
{
    Open();
    TypeRow("9 1 2 3 4 5 6 7");
    Run("CREATE TRIGGER Full BEFORE INSERT ON HydrostaticDataTable WHEN NEW.TMD > 8.5"
        " BEGIN SELECT RAISE(ABORT, 'no room'); END");
    for (int attempt = 0; attempt < 2; ++attempt) {
        Tell("no room", "Keelmark", MsgIcon::None);
        PressSave();
        EXPECT_FALSE(gConnection->InTransaction());
        EXPECT_EQ(Stored(), kArgo);
        EXPECT_EQ(Shown(), "7.9 8 8.1 9 ");
    }
    Run("DROP TRIGGER Full");
    SaveWell();
    EXPECT_EQ(Stored(), "7.9:4 8:4.1 8.1:4.2 9:7");
}

TEST_F(HydrostaticTable, WritesAPointWhereTheScreenHasAComma)
{
    const ScopedPort inForce(RegionalPort(), {.decimalSeparator = ",", .groupSeparator = "."});
    Open();
    EXPECT_EQ(Shown(), "7,9 8 8,1 ");
    TypeRow("8,05 1 2 3 -4,5 5 6 7,25");
    EXPECT_EQ(Shown(), "7,9 8 8,05 8,1 ");
    SaveWell();
    EXPECT_EQ(Stored(), "7.9:4 8:4.1 8.05:7.25 8.1:4.2");
}

TEST_F(HydrostaticTable, WithoutShipsNothingCanBeSaved)
{
    Run("DELETE FROM Ship");
    Open();
    EXPECT_EQ(Window().ButtonMask() + Focus(), "110000001dcbShipName");
    Tell("No data to save.");
    PressSave();
    The("txtGridTextbox").setFocus();
    TypeRow("9 1 2 3 4 5 6 7");
    Tell("FOREIGN KEY constraint failed", "Keelmark", MsgIcon::None);
    PressSave();
    The("dcbShipName").setFocus();
    Frame().SetMDIToolbar("");
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(IsOpen());
}
} // namespace
