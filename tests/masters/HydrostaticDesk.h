#pragma once

#include "frame/controls/Grid.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "masters/RowGrid.h"
#include "masters/frmHDT.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QLineEdit>

#include <string>
#include <vector>

/// The user before the main window with the editor of hydrostatic tables. Ship 1, "Argo", has three rows; ship 2,
/// "Borealis", has none.
class HydrostaticDesk : public TestStore
{
protected:
    HydrostaticDesk();
    ~HydrostaticDesk() override;

    void Open();
    [[nodiscard]] static frmMDI &Frame() { return frmMDI::Global(); }
    [[nodiscard]] static frmHDT &Window() { return static_cast<frmHDT &>(*LoadedChild(ChildWindow::HydrostaticData)); }
    [[nodiscard]] static bool IsOpen() { return LoadedChild(ChildWindow::HydrostaticData) != nullptr; }
    template<class Widget = QWidget> [[nodiscard]] static Widget &The(const char *name)
    {
        return *Window().findChild<Widget *>(name);
    }
    [[nodiscard]] static RowGrid &Grid8() { return The<RowGrid>("tdbHDT"); }
    [[nodiscard]] static std::string Text(const char *name) { return The<QLineEdit>(name).text().toStdString(); }
    [[nodiscard]] static std::string Box() { return Text("txtGridTextbox"); }
    [[nodiscard]] static std::string Focus();
    [[nodiscard]] static std::string Hint();
    [[nodiscard]] static int EntryColumn() { return The<Grid>("fgrdInsertHD").CurrentColumn(); }
    /// The eight cells of the entry row, with a blank between them.
    [[nodiscard]] static std::string Entry();
    /// What the row grid shows in a column, from the top to the empty row.
    [[nodiscard]] static std::string Shown(int column = 0);
    /// The ship's rows in the store: drafts and what stands in their last column.
    [[nodiscard]] static std::string Stored(int ship = 1);

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        PressKey(Frame(), key, modifiers);
    }
    static void PressSave() { Press(Qt::Key_S, Qt::ControlModifier); }
    static void PressNew() { Press(Qt::Key_N, Qt::ControlModifier); }
    static void PressDeleteButton();
    /// Types each value and presses Enter after it.
    static void TypeRow(const QString &values);
    static void ClickEntry(int column);
    static void ClickRow(int row);
    static void PickShip(Qt::Key key);

    /// The boxes to come.
    void Tell(const std::string &text, const std::string &caption = "Keelmark", MsgIcon icon = MsgIcon::Exclamation);
    void TellRow(const std::string &text) { Tell(text, "Hydrostatic Data Table"); }
    void Ask(const std::string &text, MsgAnswer answer, MsgButtons buttons = MsgButtons::YesNo,
             MsgAnswer defaultAnswer = MsgAnswer::No);
    void AskToSave(MsgAnswer answer)
    {
        Ask("Save changes to the Hydrostatic data ?", answer, MsgButtons::YesNo, MsgAnswer::Ok);
    }
    void SaveWell();
    using TestStore::Ask;

    MessageScript mMessages;

private:
    TestSettings mSettings {File().string() + ".ini"};
    ScopedPort<ChildFactory> mFactory {ChildFactoryPort(ChildWindow::HydrostaticData), [] { return new frmHDT; }};
};

inline constexpr const char *kUpdated = "Hydrostatic Data Table for current ship has been updated successfully.";
