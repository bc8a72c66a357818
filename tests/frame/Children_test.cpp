#include "frame/store/Connection.h"
#include "tests/frame/FrameTest.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QTimer>

namespace
{
using testing::ElementsAre;

constexpr const char *kOpenHint = "Press Ctrl-O to open the Open file box";

TEST_F(FrameTest, ChildrenAreCountedAndTheToolbarFollows)
{
    EXPECT_FALSE(CoolBarShown());
    EXPECT_EQ(Panel(1), kOpenHint);
    EXPECT_EQ(CommandsOn(), "00000000000");

    FakeChild &port = Open(ChildWindow::Port);
    EXPECT_THAT(TakeDiary(), ElementsAre("Port.Form_Load", "Port.Form_Activate"));
    EXPECT_EQ(gOpenChildCount, 1);
    EXPECT_TRUE(CoolBarShown());
    EXPECT_EQ(CommandsOn(), "11100111101");

    FakeChild &loading = Open(ChildWindow::Loading);
    EXPECT_THAT(TakeDiary(), ElementsAre("Loading.Form_Load", "Loading.Form_Activate"));
    loading.SendMask("010000001");
    EXPECT_EQ(&Open(ChildWindow::Port), &port);
    EXPECT_THAT(TakeDiary(), ElementsAre("Port.Form_Activate"));
    EXPECT_EQ(CommandsOn(), "11100111101");
    EXPECT_EQ(gOpenChildCount, 3);

    Frame().SetHint("A child's own hint");
    port.Unload();
    Settle();
    EXPECT_THAT(TakeDiary(), ElementsAre("Port.Form_Unload", "Loading.Form_Activate"));
    EXPECT_EQ(Panel(1), "");
    EXPECT_EQ(CommandsOn(), "01000101001");
    loading.Unload();
    EXPECT_EQ(Panel(1), kOpenHint);
    EXPECT_EQ(CommandsOn(), "00000000000");
    EXPECT_EQ(gOpenChildCount, 1) << "a window opened twice stays counted";
    EXPECT_TRUE(CoolBarShown());
    EXPECT_FALSE(LoadedChild(ChildWindow::Loading));

    // Opened again before the old window is cleared away, it is a new one.
    TakeDiary();
    EXPECT_NE(&Open(ChildWindow::Loading), &loading);
    EXPECT_THAT(TakeDiary(), ElementsAre("Loading.Form_Load", "Loading.Form_Activate"));
}

TEST_F(FrameTest, TheToolbarGoesWithTheLastChild)
{
    Open(ChildWindow::Port).Unload();
    EXPECT_EQ(gOpenChildCount, 0);
    EXPECT_FALSE(CoolBarShown());
    FakeChild &child = Open(ChildWindow::Port);
    child.mRefuse = true;
    EXPECT_FALSE(child.Unload());
    EXPECT_EQ(gOpenChildCount, 1);
    EXPECT_TRUE(CoolBarShown());
}

TEST_F(FrameTest, TheTipWindowIsNotCountedAndKeepsTheMask)
{
    Open(ChildWindow::Port);
    Frame().SetHint("A child's own hint");
    Choose("mnuHelp(5)");
    Choose("mnuHelp(5)");
    EXPECT_EQ(gOpenChildCount, 1);
    EXPECT_EQ(Forms::Count(), 3);
    EXPECT_EQ(CommandsOn(), "11100111101");
    TakeDiary();
    PressKey(Frame(), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_THAT(TakeDiary(), ElementsAre("Port.Form_Activate"));
    EXPECT_EQ(Forms::Count(), 2);
    EXPECT_TRUE(CoolBarShown());
}

TEST_F(FrameTest, ActivationOfTheMainWindowTellsTheHint)
{
    QWidget other;
    ShowActive(Frame());
    Frame().SetHint("something");
    ShowActive(other);
    EXPECT_EQ(In<QWidget>(frmMDI::Global(), "sb1(1)").accessibleDescription(), kOpenHint);
    Open(ChildWindow::Port);
    Frame().SetHint("something");
    ShowActive(other);
    EXPECT_EQ(In<QWidget>(frmMDI::Global(), "sb1(1)").accessibleDescription(), "");
}

TEST_F(FrameTest, ACentredWindowStaysInsideTheMainWindow)
{
    const QSize room = Frame().findChild<QMdiArea *>()->size();
    const QSize screen = Frame().screen()->availableSize();
    QWidget *window = Open(ChildWindow::Port).parentWidget();
    EXPECT_NEAR(window->geometry().center().x(), screen.width() / 2, 1);
    EXPECT_NEAR(window->y(), screen.height() / 2 - window->height() / 2 - Frame().ToolbarHeight(), 1);

    Frame().resize(400, 350);
    Settle();
    window = Open(ChildWindow::Loading).parentWidget();
    EXPECT_TRUE(QRect(QPoint(), Frame().ChildRoom()).contains(window->geometry()));
    EXPECT_LT(Frame().ChildRoom().width(), room.width());
}

TEST_F(FrameTest, TheTitleNamesAMaximizedChildWhileItIsInFront)
{
    FakeChild &port = Open(ChildWindow::Port);
    port.setWindowTitle("Ports");
    port.parentWidget()->showMaximized();
    Settle();
    EXPECT_EQ(Frame().windowTitle(), "Keelmark - [Ports]");
    Open(ChildWindow::Loading);
    Settle();
    EXPECT_EQ(Frame().windowTitle(), "Keelmark");
    Open(ChildWindow::Port);
    Settle();
    EXPECT_EQ(Frame().windowTitle(), "Keelmark - [Ports]");
}

TEST_F(FrameTest, TheWindowMenuListsTheOpenChildren)
{
    FakeChild &port = Open(ChildWindow::Port);
    port.setWindowTitle("Ports & more");
    Open(ChildWindow::Loading);
    auto &menu = In<QMenu>(Frame(), "mnuWindow");
    emit menu.aboutToShow();
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_EQ(menu.actions().at(0)->text(), "&1 Ports && more");
    EXPECT_TRUE(menu.actions().at(1)->isChecked());
    port.parentWidget()->showMinimized();
    menu.actions().at(0)->trigger();
    EXPECT_FALSE(port.parentWidget()->isMinimized());
    emit menu.aboutToShow();
    EXPECT_TRUE(menu.actions().at(0)->isChecked());
    EXPECT_FALSE(menu.actions().at(1)->isChecked());
}

TEST_F(FrameTest, ExitAsksTheChildrenInTheirOrderAndStopsAtTheFirstRefusal)
{
    FakeChild &loading = Open(ChildWindow::Loading);
    Open(ChildWindow::Port).mRefuse = true;
    Choose("mnuHelp(5)");
    gConnection->BeginTrans();
    TakeDiary();
    Choose("mnuFile(18)");
    EXPECT_THAT(TakeDiary(), testing::Contains("Loading.Form_Unload"));
    EXPECT_FALSE(Forms::All().contains(&loading));
    EXPECT_EQ(Forms::Count(), 3);
    EXPECT_TRUE(Frame().isVisible());
    EXPECT_TRUE(gConnection->InTransaction());

    dynamic_cast<FakeChild &>(*LoadedChild(ChildWindow::Port)).mRefuse = false;
    Run("DELETE FROM TipOfDay");
    QTimer::singleShot(0, [] { Choose("mnuFile(18)"); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(frmMDI::Loaded());
    EXPECT_FALSE(gConnection->IsOpen());
    gConnection->Open(File());
    EXPECT_GT(Ask("SELECT COUNT(*) FROM TipOfDay").ToLong(), 0) << "the open transaction was abandoned";
}

} // namespace
