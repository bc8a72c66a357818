#include "tests/frame/FrameTest.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

FakeChild::FakeChild(const QString &name, QStringList &diary)
    : txtField(this)
    , mDiary(diary)
{
    setObjectName(name);
    setWindowTitle(name);
    resize(300, 200);
    OnValidate(&txtField, [this](bool &cancel) {
        Note("check");
        cancel = true;
    });
}

void FakeChild::Form_Load()
{
    EXPECT_TRUE(CenterForm(*this));
    Note("Form_Load");
    mButtonMask = "111101011";
}

void FakeChild::Form_Activate()
{
    Note("Form_Activate");
    SendMask(mButtonMask);
}

void FakeChild::Form_Unload(bool &cancel)
{
    Note("Form_Unload");
    cancel = mRefuse;
    if (!cancel)
        ChildUnloaded();
}

FrameTest::~FrameTest()
{
    delete frmMDI::Loaded();
    gOpenChildCount = 0;
    EXPECT_EQ(Forms::Count(), 0);
}

frmMDI &FrameTest::Frame()
{
    frmMDI &frame = frmMDI::Global();
    if (!frame.isActiveWindow())
        ShowActive(frame);
    return frame;
}

QWidget &FrameTest::Button(int position)
{
    const QString name = QStringLiteral("tbrMDI(%1)").arg(position);
    return *Frame().findChild<QToolBar *>("tbrMDI")->findChild<QWidget *>(name);
}

void FrameTest::Choose(const char *MenuKey)
{
    QAction &item = Item(MenuKey);
    for (QMenu *menu : Frame().menuBar()->findChildren<QMenu *>()) {
        if (!menu->actions().contains(&item))
            continue;
        menu->popup({});
        menu->setActiveAction(&item);
        PressKey(*menu, Qt::Key_Return);
        return;
    }
    ADD_FAILURE() << MenuKey << " stands in no menu";
}

FakeChild &FrameTest::Open(ChildWindow window)
{
    Choose(window == ChildWindow::Loading ? "mnuDraftSurvey(5)" : "mnuShipData(20)");
    return dynamic_cast<FakeChild &>(*LoadedChild(window));
}

QString FrameTest::Panel(int number)
{
    return Frame().findChild<QLabel *>(QStringLiteral("sb1(%1)").arg(number))->text();
}

std::string FrameTest::CommandsOn()
{
    std::string text;
    for (const int position : {1, 2, 4, 5, 7, 9})
        text += Button(position).isEnabled() ? '1' : '0';
    for (const char *key : {"mnuFile(0)", "mnuFile(4)", "mnuFile(14)", "mnuFile(12)", "mnuFile(6)"})
        text += Item(key).isEnabled() ? '1' : '0';
    return text;
}
