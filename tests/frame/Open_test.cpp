#include "frame/frmOpen.h"
#include "tests/frame/FrameTest.h"

#include <QApplication>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

namespace
{
class OpenDialog : public FrameTest
{
protected:
    // Opens the dialog and acts in it; whatever is still open then is cancelled.
    void InDialog(const std::function<void()> &act)
    {
        bool came = false;
        QTimer::singleShot(0, &Frame(), [&] {
            mDialog = qobject_cast<frmOpen *>(QApplication::activeModalWidget());
            came = mDialog != nullptr;
            if (came)
                act();
            if (mDialog && mDialog->isVisible())
                Click(Part<QPushButton>("cmdCancel"));
        });
        PressKey(Frame(), Qt::Key_O, Qt::ControlModifier);
        EXPECT_TRUE(came);
        EXPECT_FALSE(QApplication::activeModalWidget());
    }
    template<class Widget> Widget &Part(const char *name) const { return In<Widget>(*mDialog, name); }
    [[nodiscard]] std::string Box() const { return Part<QLineEdit>("txtFormToOpen").text().toStdString(); }
    [[nodiscard]] bool CanOpen() const { return Part<QPushButton>("cmdOpen").isEnabled(); }

    // The texts that a list shows, in their order.
    [[nodiscard]] std::string Items() const
    {
        std::string items;
        const auto &list = Part<QListWidget>("lvOpen");
        for (int row = 0; row < list.count(); ++row)
            items += list.item(row)->text().toStdString() + (list.item(row)->icon().isNull() ? "!" : ";");
        return items;
    }
    void ClickNode(const QString &text, int which = 0)
    {
        auto &tree = Part<QTreeWidget>("tvOpen");
        const auto found = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_GT(found.size(), which);
        Click(*tree.viewport(), tree.visualItemRect(found.at(which)).center());
    }
    QPoint PlaceOf(int row) const
    {
        const auto &list = Part<QListWidget>("lvOpen");
        return list.visualItemRect(list.item(row)).center();
    }
    void ClickItem(int row) { Click(*Part<QListWidget>("lvOpen").viewport(), PlaceOf(row)); }

    QPointer<frmOpen> mDialog;
};

TEST_F(OpenDialog, NodesFillTheListAndEmptyTheBox)
{
    InDialog([this] {
        EXPECT_EQ(Items(), "Ship Particulars;Hydrostatic Data;Port;");
        EXPECT_FALSE(CanOpen());
        ClickItem(1);
        EXPECT_EQ(Box(), "Hydrostatic Data");
        EXPECT_TRUE(CanOpen());
        // The root, then the group of the same name below it.
        ClickNode("Draft Survey", 0);
        EXPECT_EQ(Items(), "Ship Particulars;Hydrostatic Data;Port;");
        EXPECT_EQ(Box(), "");
        EXPECT_FALSE(CanOpen());
        ClickItem(1);
        EXPECT_EQ(Box(), "Hydrostatic Data");
        ClickNode("Draft Survey", 1);
        EXPECT_EQ(Items(), "Loading Survey;Discharging Survey;");
        EXPECT_EQ(Box(), "");
        ClickNode("Ship Data");
        EXPECT_EQ(Items(), "Ship Particulars;Hydrostatic Data;Port;");
        EXPECT_EQ(Forms::Count(), 2);
    });
    EXPECT_EQ(Forms::Count(), 1);
    EXPECT_EQ(gOpenChildCount, 0);
    EXPECT_EQ(Panel(1), "Press Ctrl-O to open the Open file box");
}

TEST_F(OpenDialog, OpensWhatIsChosenByMouseAndByKeyboard)
{
    InDialog([this] {
        ClickItem(2);
        QTest::mouseDClick(Part<QListWidget>("lvOpen").viewport(), Qt::LeftButton, {}, PlaceOf(2));
    });
    EXPECT_TRUE(LoadedChild(ChildWindow::Port));
    EXPECT_TRUE(CoolBarShown());
    EXPECT_EQ(gOpenChildCount, 1);

    InDialog([this] {
        PressKey(*mDialog, Qt::Key_Down);
        PressKey(*mDialog, Qt::Key_End);
        EXPECT_EQ(Items(), "Loading Survey;Discharging Survey;");
        PressKey(*mDialog, Qt::Key_Tab);
        PressKey(*mDialog, Qt::Key_Right);
        PressKey(*mDialog, Qt::Key_Left);
        EXPECT_EQ(Box(), "Loading Survey");
        PressKey(*mDialog, Qt::Key_Return);
    });
    EXPECT_TRUE(LoadedChild(ChildWindow::Loading));

    // A window that is open comes to the front, and counts once more.
    InDialog([this] {
        ClickItem(2);
        Click(Part<QPushButton>("cmdOpen"));
    });
    EXPECT_EQ(gOpenChildCount, 3);
    EXPECT_EQ(Forms::Count(), 3);

    // No list offers the deductible items, but their name is known; other names open nothing.
    bool opened = false;
    const ScopedPort deductions(ChildFactoryPort(ChildWindow::DeductionMaster), [&] {
        opened = true;
        return new FakeChild("Deductions", mDiary);
    });
    for (const char *name : {"deductions", " Port", "Deductions"}) {
        EXPECT_FALSE(opened);
        InDialog([this, name] {
            Part<QLineEdit>("txtFormToOpen").setText(name);
            PressKey(*mDialog, Qt::Key_Return);
        });
    }
    EXPECT_TRUE(opened);
    EXPECT_EQ(gOpenChildCount, 4);

    InDialog([this] {
        QWidget *list = Part<QListWidget>("lvOpen").viewport();
        const QPoint beside(list->width() - 2, list->height() - 2);
        QTest::mouseDClick(list, Qt::LeftButton, {}, beside);
        ClickItem(2);
        QTest::mouseDClick(list, Qt::LeftButton, {}, beside);
    });
    EXPECT_EQ(gOpenChildCount, 5);

    InDialog([this] {
        ClickItem(0);
        PressKey(*mDialog, Qt::Key_Escape);
    });
    EXPECT_EQ(gOpenChildCount, 5);
}
} // namespace
