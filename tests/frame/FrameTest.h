#pragma once

#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QLineEdit>
#include <QStringList>

// A child such as the program's own, with a field whose check refuses everything. It writes down what it is asked.
class FakeChild : public Form
{
public:
    FakeChild(const QString &name, QStringList &diary);

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    void RNew() override { Note("RNew"); }
    void RSave() override { Note("RSave"); }
    void RDelete() override { Note("RDelete"); }
    void RPrint(bool blnShowPreview) override { Note(blnShowPreview ? "RPrint" : "RPrint(False)"); }
    using Form::SendMask;

    QLineEdit txtField;
    bool mRefuse = false;

private:
    void Note(const QString &what) { mDiary.append(objectName() + "." + what); }

    QStringList &mDiary;
};

// The main window with its store, settings of its own, and the children Loading and Port; nothing else is made.
class FrameTest : public TestStore
{
protected:
    ~FrameTest() override;

    // The main window, shown and active.
    static frmMDI &Frame();
    static QAction &Item(const char *MenuKey) { return *Frame().findChild<QAction *>(MenuKey); }
    static QWidget &Button(int position);
    // Chooses a menu item as a user does: from its opened menu.
    static void Choose(const char *MenuKey);
    static FakeChild &Open(ChildWindow window);
    static QString Panel(int number);
    static bool CoolBarShown() { return Frame().findChild<QWidget *>("cbMDI")->isVisible(); }
    // Which of the commands on the toolbar and in the menu are on.
    static std::string CommandsOn();
    QStringList TakeDiary() { return std::exchange(mDiary, {}); }

    MessageScript mMessages;
    QStringList mDiary;

private:
    TestSettings mSettings {File().string() + ".ini"};
    ScopedPort<ChildFactory> mLoading {ChildFactoryPort(ChildWindow::Loading),
                                       [this] { return new FakeChild("Loading", mDiary); }};
    ScopedPort<ChildFactory> mPort {ChildFactoryPort(ChildWindow::Port),
                                    [this] { return new FakeChild("Port", mDiary); }};
};

// The widget of a name in a window.
template<class Widget> Widget &In(const QWidget &window, const char *name)
{
    return *window.findChild<Widget *>(name);
}
