#include "core/numeric/Regional.h"
#include "frame/controls/DataCombo.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "frame/store/Connection.h"
#include "masters/frmShipParticulars.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QToolBar>

#include <array>

namespace
{
constexpr std::array kTabOrder {
    "cmbShipName", "txtCallSign",    "dcbPortOfRegistry",   "txtFlag",         "txtOfficialNo",
    "txtIMONo",    "txtSummerDraft", "txtSummerDeadweight", "txtGrossTonnage", "txtNetTonnage",
    "txtLBP",      "txtLOA",         "txtBreadth",          "txtFwdX",         "txtMidX",
    "txtAftX",     "txtLightShip"};
constexpr const char *kUpdate = "Are you sure to update the current record ?";
constexpr const char *kInsert = "Are you sure to save the current record ?";
constexpr const char *kClose = "Save current ship particulars ?";
constexpr const char *kUpdated = "One record has been updated successfully.";
constexpr const char *kSaved = "One record has been saved successfully.";
constexpr const char *kLoaded = "110011";
constexpr const char *kExisting = "110011";
constexpr const char *kNew = "010001";

class ShipParticulars : public TestStore
{
protected:
    ShipParticulars()
    {
        Run("INSERT INTO Port (PortID, PortName) VALUES (7, 'Antwerp'), (8, 'Bergen')");
        ShowActive(Frame());
    }

    ~ShipParticulars() override
    {
        delete frmMDI::Loaded();
        gOpenChildCount = 0;
        EXPECT_EQ(Forms::Count(), 0);
    }

    static void AddShip(const std::string &name, double loa)
    {
        Run("INSERT INTO Ship (ShipName, LBP, LOA, Breadth, FwdX, MidX, AftX, LightShip, CallSign, PortOfRegistry, "
            "OfficialNo, IMONo, Flag, GrossTonnage, NetTonnage, SummerDraft, SummerDeadweight) VALUES ('"
            + name + "', 171.5, " + std::to_string(loa)
            + ", 28.4, -1.15, 0, 0.2501, 7200.5, '9HZZ1', 8, 9990011, 9990012, 'Malta', 20150, 10940, 9.8, 32000)");
    }

    static frmMDI &Frame() { return frmMDI::Global(); }
    static frmShipParticulars &Window()
    {
        return dynamic_cast<frmShipParticulars &>(*LoadedChild(ChildWindow::ShipParticulars));
    }
    static QWidget &The(const char *name) { return *Window().findChild<QWidget *>(name); }
    static void Open()
    {
        OpenChild(ChildWindow::ShipParticulars);
        Settle();
    }
    static void OpenWith(const std::vector<std::string> &ships)
    {
        for (const std::string &ship : ships)
            AddShip(ship, 179.9);
        Open();
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        PressKey(Frame(), key, modifiers);
    }
    static void Save() { Press(Qt::Key_S, Qt::ControlModifier); }
    static void New() { Press(Qt::Key_N, Qt::ControlModifier); }
    static void Close() { Press(Qt::Key_F4, Qt::ControlModifier); }
    static void Delete() { Click(*Frame().findChild<QToolBar *>("tbrMDI")->findChild<QWidget *>("tbrMDI(7)")); }
    static void Fill(const char *name, const QString &text)
    {
        Click(The(name));
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Backspace);
        Type(Frame(), text);
    }
    static void Pick(int rowsDown)
    {
        Click(*Window().findChild<DataCombo *>("cmbShipName")->findChild<QLineEdit *>());
        for (int row = 0; row < rowsDown; ++row)
            Press(Qt::Key_Down);
    }
    static std::string Shown(const char *name)
    {
        if (const auto *combo = qobject_cast<DataCombo *>(&The(name)))
            return combo->Text().toStdString();
        return dynamic_cast<QLineEdit &>(The(name)).text().toStdString();
    }
    static std::string Focus() { return Frame().focusWidget()->objectName().toStdString(); }
    // New, Save, Print, Print Preview, Delete, Close.
    static std::string CommandsOn()
    {
        std::string text;
        for (const int position : {1, 2, 4, 5, 7, 9})
            text += Frame().findChild<QToolBar *>("tbrMDI")->actions().at(position - 1)->isEnabled() ? '1' : '0';
        return text;
    }
    static std::string Stored(const std::string &column, const std::string &ship)
    {
        return Ask("SELECT " + column + " FROM Ship WHERE ShipName = '" + ship + "'").Text();
    }
    static std::int32_t Ships() { return Ask("SELECT COUNT(*) FROM Ship").ToLong(); }

    void Tell(const std::string &text, const std::string &caption = "Keelmark")
    {
        mMessages.Expect({.text = text, .icon = MsgIcon::Exclamation, .caption = caption});
    }
    void Refuse(const std::string &text) { Tell(text, "Ship Particulars"); }
    void Failure(const std::string &text, const std::string &caption)
    {
        Tell(text + "\n\nPlease contact us with the error no. on the titlebar of this dialog box.", caption);
    }
    void SaveFailure() { Failure("A serious error has occured while saving the current record.", "Keelmark-10088"); }
    void Question(const std::string &text, MsgButtons buttons, MsgAnswer answer,
                  MsgAnswer defaultAnswer = MsgAnswer::Yes)
    {
        mMessages.Expect({.text = text, .icon = MsgIcon::Question, .buttons = buttons, .defaultAnswer = defaultAnswer},
                         answer);
    }

    MessageScript mMessages;

private:
    TestSettings mSettings {File().string() + ".ini"};
    ScopedPort<ChildFactory> mFactory {ChildFactoryPort(ChildWindow::ShipParticulars),
                                       [] { return new frmShipParticulars; }};
};

TEST_F(ShipParticulars, TheFirstShipOfAStoreIsTypedByKeyboardAndSavedByClosing)
{
    Open();
    EXPECT_EQ(CommandsOn(), "000000") << "with no ship all commands are off";
    // As much as the fields take of it, each left with Enter.
    const std::array<QString, kTabOrder.size()> typed {
        "Harrow Tide", "9HZZ1678901X", "Ber",      QString(51, u'F'), "99900110000", "9990012",
        "9.87655",     "32000.1236",   "20150.25", "20999.9",         "171.555",     "179.9",
        "28.40009",    "-999.9991",    "0",        ".25005",          "999999.12345"};
    for (std::size_t i = 0; i < kTabOrder.size(); ++i) {
        EXPECT_EQ(Focus(), kTabOrder[i]);
        Type(Frame(), typed[i]);
        Press(Qt::Key_Return);
    }
    Question(kClose, MsgButtons::YesNo, MsgAnswer::Yes);
    Window().Unload();
    Settle();
    EXPECT_EQ(gOpenChildCount, 0);
    Open();
    EXPECT_EQ(CommandsOn(), kLoaded);
    std::vector<std::string> shown;
    for (const char *name : kTabOrder)
        shown.push_back(Shown(name));
    EXPECT_THAT(shown,
                testing::ElementsAre("Harrow Tide", "9HZZ167890", "Bergen", std::string(50, 'F'), "9990011000",
                                     "9990012", "9.8766", "32000.124", "20150.2", "20999.9", "171.55", "179.9", "28.4",
                                     "-999.999", "0", "0.25", "999999.1234"));
}

TEST_F(ShipParticulars, FiguresOutOfBoundsAreRefusedAndHoldTheFocus)
{
    OpenWith({"Alpha"});
    const std::string x = "-X can be  greater than -1000 and less than 1000.";
    const std::string number = " can only be a number  greater than 0 and less than 10000000000.";
    const std::string positive = " can only be a positive number greater than 0 and less than ";
    const std::string gross = "Gross Tonnage can only be a positive number  greater than 0 and less than 1000000.";
    const struct {
        const char *field;
        QString low;
        QString high;
        QString good;
        std::string shown;
        std::string message;
    } cases[] = {
        {"txtFwdX", "-1000", "1000", "-999.99", "-999.99", "Invalid value.\n\nValue of Fwd" + x},
        {"txtMidX", "-1E3", "1E3", ".00005", "0", "Invalid value.\n\nValue of Mid" + x},
        {"txtAftX", "-1000", "1000", "0.00015", "0.0002", "Invalid value.\n\nValue of Aft" + x},
        {"txtOfficialNo", "0", "1E10", "9999999999", "9999999999", "Official No." + number},
        {"txtIMONo", "-1", "1E30", "0.4", "0", "IMO No." + number},
        {"txtLOA", "0.005", "1000", "999.99", "999.99", "LOA" + positive + "1000."},
        {"txtLBP", "0", "1000", "0.015", "0.02", "LBP" + positive + "1000."},
        {"txtBreadth", "0", "1000", "999.999", "999.999", "Breadth" + positive + "1000."},
        {"txtLightShip", "0", "1000000", "1", "1", "Value of Light Ship" + positive + "1000000."},
        {"txtGrossTonnage", "0", "1000000", "0.15", "0.2", gross},
        {"txtNetTonnage", "0", "1E6", "999999.9", "999999.9", "Net Tonnage" + positive + "1000000."},
        {"txtSummerDeadweight", "0", "1000000", "0.0015", "0.002", "Summer Deadweight" + positive + "1000000."},
        {"txtSummerDraft", "0", "100", "99.9999", "99.9999", "Summer Draft" + positive + "100."},
    };
    for (const auto &[field, low, high, good, shown, message] : cases) {
        for (const QString &bad : {low, high, QString("1x")}) {
            Fill(field, bad);
            Refuse(bad == "1x" ? "Invalid value. Only numbers are allowed." : message);
            Press(Qt::Key_Tab);
            mMessages.ExpectNoneLeft();
            EXPECT_EQ(Focus(), field) << bad.toStdString();
            EXPECT_EQ(Shown(field), "");
        }
        Fill(field, good);
        Press(Qt::Key_Tab);
        EXPECT_EQ(Shown(field), shown) << field;
    }
    // A save checks them first, in an order of its own: what was rounded down to 0 comes before what was not left yet.
    Fill("txtLightShip", "-1");
    Refuse("IMO No." + number);
    Save();
    EXPECT_EQ(Shown("txtIMONo"), "");
    Refuse("Value of Light Ship" + positive + "1000000.");
    Save();
    EXPECT_EQ(Shown("txtLightShip"), "");
}

TEST_F(ShipParticulars, EveryFieldMustBeFilledBeforeASave)
{
    OpenWith({"Alpha"});
    const std::array<std::pair<const char *, const char *>, 15> fields {{
        {"txtOfficialNo", "Please enter the Official No."},
        {"txtSummerDraft", "Please enter the Summer Draft."},
        {"txtSummerDeadweight", "Please enter the Summer Dead Weight."},
        {"txtCallSign", "Please enter the Call Sign."},
        {"txtFlag", "Please enter the Flag."},
        {"txtIMONo", "Please enter the IMO No."},
        {"txtGrossTonnage", "Please enter the Gross Tonnage."},
        {"txtNetTonnage", "Please enter the Net Tonnage."},
        {"txtLBP", "Please enter the LBP."},
        {"txtLOA", "Please enter the LOA."},
        {"txtBreadth", "Please enter the Breadth."},
        {"txtFwdX", "Please enter the Fwd-X."},
        {"txtMidX", "Please enter the Mid-X."},
        {"txtAftX", "Please enter the Aft-X."},
        {"txtLightShip", "Please enter the Light Ship."},
    }};
    // Emptied from the last to the first, each empty field is told of before those behind it.
    for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
        Fill(field->first, "");
        Click(The("cmbShipName"));
        Tell(field->second);
        Save();
        mMessages.ExpectNoneLeft();
        EXPECT_EQ(Focus(), field->first);
    }
    Tell(fields.front().second);
    New();
    Fill("txtFlag", "Malta");
    Tell("Please enter ship name.");
    Save();
    EXPECT_EQ(Focus(), "cmbShipName");
    Type(Frame(), " Beta");
    Tell("Please choose the Port of Registry");
    Save();
    EXPECT_EQ(Focus(), "dcbPortOfRegistry");
    EXPECT_EQ(Ships(), 1);
}

TEST_F(ShipParticulars, ASaveAsksAndWritesTheShipOnShow)
{
    OpenWith({"Alpha", "Beta"});
    Pick(1);
    Fill("cmbShipName", "Gamma");
    Tell("No changes to save..!", "Bowmark");
    Save();

    Fill("txtLOA", "200.5");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Cancel);
    Save();
    EXPECT_EQ(Shown("txtLOA"), "200.5");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    Tell(kUpdated);
    Save();
    EXPECT_EQ(Stored("LOA", "Gamma"), "200.5");
    EXPECT_EQ(Stored("LOA", "Alpha"), "179.9");
    EXPECT_EQ(CommandsOn(), kExisting);
    // The same ship stays current under her new name.
    Fill("txtLOA", "201");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    Tell(kUpdated);
    Save();
    EXPECT_EQ(Stored("LOA", "Gamma"), "201");

    Fill("txtFlag", "Panama");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::No);
    Save();
    EXPECT_EQ(Shown("cmbShipName"), "Alpha") << "a refused save shows the first ship, not the one being edited";
    EXPECT_EQ(Shown("txtFlag"), "Malta");
    EXPECT_EQ(Ask("SELECT COUNT(*) FROM Ship WHERE Flag = 'Panama'").ToLong(), 0);
}

TEST_F(ShipParticulars, ANewShipIsInsertedAndTheFirstOneIsCurrentAfterwards)
{
    OpenWith({"Alpha"});
    Fill("txtFlag", "Panama");
    Question(kUpdate, MsgButtons::YesNo, MsgAnswer::Yes);
    New();
    EXPECT_EQ(Stored("Flag", "Alpha"), "Panama");
    EXPECT_EQ(CommandsOn(), kNew);
    for (const char *name : kTabOrder)
        EXPECT_EQ(Shown(name), "") << name;

    // Picking a ship turns the new record into a change of that one; what was typed is dropped without a question.
    Fill("txtCallSign", "X");
    Pick(1);
    EXPECT_EQ(CommandsOn(), kExisting);
    EXPECT_EQ(Shown("txtCallSign"), "9HZZ1");

    Fill("txtFlag", "");
    Tell("Please enter the Flag.");
    New();
    EXPECT_EQ(CommandsOn(), kNew) << "what cannot be saved is given up";
    Fill("cmbShipName", "Beta");
    for (const char *name : kTabOrder) {
        if (std::string_view(name).starts_with("txt"))
            Fill(name, "5");
    }
    Click(The("txtFlag"));
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Type(Frame(), "A");
    Question(kInsert, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    Tell(kSaved);
    Save();
    EXPECT_EQ(Stored("LOA", "Beta"), "5");
    EXPECT_EQ(Stored("PortOfRegistry", "Beta"), "7");
    EXPECT_EQ(Shown("cmbShipName"), "Beta");

    Fill("txtLOA", "6");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    Tell(kUpdated);
    Save();
    EXPECT_EQ(Ask("SELECT group_concat(ShipName || LOA) FROM (SELECT * FROM Ship ORDER BY ShipID)").Text(),
              "Beta6.0,Beta5.0")
        << "the second save in a row writes over the first ship";
}

TEST_F(ShipParticulars, ADeletionTakesTheShipWithHerTable)
{
    OpenWith({"Alpha", "Beta"});
    Run("INSERT INTO HydrostaticDataTable (ShipID, TMD) SELECT ShipID, 5 FROM Ship");
    const std::string question = "Deletion of this ship will also delete all the drafts and Hydrostatic Data "
                                 "corresponding to it.\n\nAre you sure to delete the current ship ?";
    Pick(1);
    Question(question, MsgButtons::YesNo, MsgAnswer::No, MsgAnswer::No);
    Delete();
    EXPECT_EQ(Ships(), 2);
    for (const char *left : {"Alpha", ""}) {
        Question(question, MsgButtons::YesNo, MsgAnswer::Yes, MsgAnswer::No);
        Tell("One record has been deleted successfully.");
        Delete();
        EXPECT_EQ(Shown("cmbShipName"), left);
        EXPECT_EQ(Shown("txtFlag"), *left ? "Malta" : "");
        EXPECT_EQ(CommandsOn(), kLoaded);
    }
    EXPECT_EQ(Ask("SELECT COUNT(*) FROM HydrostaticDataTable").ToLong(), 0);
    Question(question, MsgButtons::YesNo, MsgAnswer::Yes, MsgAnswer::No);
    Failure("A serious error has occured while deleting the current record.", "Keelmark-10008");
    Delete();
}

TEST_F(ShipParticulars, AFailedSaveKeepsWhatWasTyped)
{
    OpenWith({"Alpha"});
    const std::pair<const char *, const char *> faults[] {
        {"txtCallSign", "9'HZ"}, {"txtFlag", "'; DELETE FROM Ship; --"}, {"txtLOA", " "}, {"cmbShipName", "O'Hara"}};
    for (const auto &[field, text] : faults) {
        const std::string before = Shown(field);
        Fill(field, text);
        Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
        SaveFailure();
        Save();
        EXPECT_EQ(Shown(field), text);
        Question(kUpdate, MsgButtons::YesNo, MsgAnswer::Yes);
        SaveFailure();
        New();
        EXPECT_EQ(Shown(field), text);
        Fill(field, QString::fromStdString(before));
    }
    EXPECT_EQ(Stored("CallSign || Flag || LOA", "Alpha"), "9HZZ1Malta179.9");
    // A row that is gone is not reported as saved.
    Run("DELETE FROM Port");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    SaveFailure();
    Save();
}

TEST_F(ShipParticulars, PickingANameWithAnApostropheEndsTheProgram)
{
    FatalRecorder fatal;
    Run("INSERT INTO Ship (ShipName) VALUES ('O''Hara')");
    OpenWith({"Alpha"});
    Pick(1);
    EXPECT_THAT(fatal.Numbers(), testing::ElementsAre(StoreError::BadArgument));
}

TEST_F(ShipParticulars, ClosingAsksAndMayBeRefused)
{
    OpenWith({"Alpha"});
    Fill("txtFlag", "");
    Question(kClose, MsgButtons::YesNo, MsgAnswer::Yes);
    Tell("Please enter the Flag.");
    Close();
    EXPECT_EQ(Focus(), "txtFlag");
    EXPECT_EQ(gOpenChildCount, 1);
    Question(kClose, MsgButtons::YesNo, MsgAnswer::No);
    Close();
    EXPECT_EQ(gOpenChildCount, 0);
    EXPECT_EQ(CommandsOn(), "000000");
    EXPECT_EQ(Stored("Flag", "Alpha"), "Malta");

    // The field that has the focus was not checked yet. What is no plain number does not get into the store.
    for (const char *text : {"$5", "(5)", "1E40", "1,5"}) {
        const std::int16_t before = gOpenChildCount;
        Open();
        Fill("txtLBP", text);
        Question(kClose, MsgButtons::YesNo, MsgAnswer::Yes);
        SaveFailure();
        Close();
        EXPECT_FALSE(LoadedChild(ChildWindow::ShipParticulars));
        EXPECT_EQ(gOpenChildCount, before + 1) << "a window that could not save goes without being counted out";
    }
    EXPECT_EQ(Stored("LBP", "Alpha"), "171.5");
}

TEST_F(ShipParticulars, FiguresFollowTheRegionalSettingsAndKeepAllTheirDigits)
{
    const ScopedPort inForce(RegionalPort(), {.decimalSeparator = ",", .groupSeparator = "."});
    OpenWith({"Alpha"});
    EXPECT_EQ(Shown("txtLBP"), "171,5");
    Fill("txtLOA", "180,25");
    Question(kUpdate, MsgButtons::YesNoCancel, MsgAnswer::Yes);
    Tell(kUpdated);
    Save();
    EXPECT_EQ(Ask("SELECT COUNT(*) FROM Ship WHERE LOA = 180.25 AND LBP = 171.5").ToLong(), 1);
    Close();
    // More digits than can be typed.
    Run("UPDATE Ship SET OfficialNo = 123456789012");
    Open();
    EXPECT_EQ(Shown("txtOfficialNo"), "123456789012");
    Fill("txtOfficialNo", "210987654321");
    EXPECT_EQ(Shown("txtOfficialNo").size(), dynamic_cast<QLineEdit &>(The("txtOfficialNo")).maxLength());
    EXPECT_LT(Shown("txtOfficialNo").size(), 12);
}
} // namespace
