#pragma once

#include "frame/controls/DataList.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "masters/frmDeductionMaster.h"
#include "masters/frmPortMaster.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QStringList>

/// The user before the main window with the window of ports or of deductible items.
class RecordsDesk : public TestStore
{
protected:
    explicit RecordsDesk(ChildWindow kind);
    ~RecordsDesk() override;

    void Open();
    [[nodiscard]] static frmMDI &Frame() { return frmMDI::Global(); }
    [[nodiscard]] Form &Window() const { return *LoadedChild(mKind); }
    template<class Widget = QWidget> [[nodiscard]] Widget &The(const char *name) const
    {
        return *Window().findChild<Widget *>(name);
    }
    [[nodiscard]] DataList &List() const { return *Window().findChild<DataList *>(); }
    [[nodiscard]] QStringList Rows() const;
    /// The window's text boxes in the tab order, with a stroke between them.
    [[nodiscard]] std::string Boxes() const;
    [[nodiscard]] static std::string Focus();
    [[nodiscard]] static QString Hint();
    /// New, Save, Print, Print Preview, Delete, Close.
    [[nodiscard]] static std::string CommandsOn();

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { PressKey(Frame(), key, modifiers); }
    void PressSave() { Press(Qt::Key_S, Qt::ControlModifier); }
    void PressDeleteButton();
    void Fill(const char *name, const QString &text);
    void ClickRow(int row);

    /// The boxes to come.
    void Tell(const std::string &text, const std::string &caption = "Keelmark");
    void AskToSave(const std::string &text, MsgAnswer answer);
    void AskToDelete(const std::string &text, MsgAnswer defaultAnswer, MsgAnswer answer);
    void TellNotSaved();
    void TellNotDeleted();

    MessageScript mMessages;

private:
    ChildWindow mKind;
    TestSettings mSettings {File().string() + ".ini"};
    ScopedPort<ChildFactory> mPorts {ChildFactoryPort(ChildWindow::Port), [] { return new frmPortMaster; }};
    ScopedPort<ChildFactory> mItems {ChildFactoryPort(ChildWindow::DeductionMaster),
                                     [] { return new frmDeductionMaster; }};
};

inline constexpr const char *kAdd = "Are you sure you want to add a new record ?";
inline constexpr const char *kChange = "Are you sure to update the current record ?";
inline constexpr const char *kAdded = "One record has been added successfully.";
inline constexpr const char *kChanged = "One record has been updated successfully.";
inline constexpr const char *kDeleted = "One record has been deleted successfully.";
inline constexpr const char *kListHint = "You can press the Delete key to delete this record";
