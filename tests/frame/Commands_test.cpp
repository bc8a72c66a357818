#include "core/Clock.h"
#include "frame/platform/Shell.h"
#include "tests/frame/FrameTest.h"

#include <gmock/gmock.h>

#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace
{
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class RecordingShell : public Shell
{
public:
    explicit RecordingShell(QStringList &opened)
        : mOpened(opened)
    {
    }
    void OpenLink(const QString &address, const QString &workingDirectory) override
    {
        mOpened.append(address + " in " + workingDirectory);
    }
    void ShowHelp(const QString &file) override { mOpened.append(file.section('/', -1)); }
    void StartCalculator() override { throw RuntimeError(ErrorNumber::ProgramNotFound); }
    void StartNotepad() override { mOpened.append("Notepad"); }

private:
    QStringList &mOpened;
};

TEST_F(FrameTest, AMaskIsReadFromTheLeftButItsCloseDigitFromTheRight)
{
    const struct {
        const char *mask;
        const char *toolbar; // New, Save, Print, Print Preview, Delete, Close
    } cases[] = {{"111111111", "111111"}, {"001001010", "000000"}, {"011111011", "011101"}, {"111101011", "111001"},
                 {"110000101", "110011"}, {"010000001", "010001"}, {"", "000000"},          {"1", "100001"},
                 {"01", "010001"},        {"0001", "001001"},      {"11110", "111000"},     {"2 1x1111 1", "000111"},
                 {"1111111110", "111110"}};
    for (const auto &[mask, toolbar] : cases) {
        Frame().SetMDIToolbar(mask);
        const std::string on = toolbar;
        EXPECT_EQ(CommandsOn(), on + on.substr(0, 4) + on.substr(5)) << mask;
    }
}

TEST_F(FrameTest, CommandsReachTheActiveChild)
{
    Open(ChildWindow::Port);
    Open(ChildWindow::Loading).SendMask("111111111");
    TakeDiary();
    for (const int position : {1, 2, 4, 5, 7})
        Click(Button(position));
    EXPECT_THAT(
        TakeDiary(),
        ElementsAre("Loading.RNew", "Loading.RSave", "Loading.RPrint(False)", "Loading.RPrint", "Loading.RDelete"));
    for (const char *key : {"mnuFile(0)", "mnuFile(4)", "mnuFile(12)", "mnuFile(14)"})
        Choose(key);
    EXPECT_THAT(TakeDiary(), ElementsAre("Loading.RNew", "Loading.RSave", "Loading.RPrint", "Loading.RPrint(False)"));
    Click(Button(9));
    EXPECT_THAT(TakeDiary(), ElementsAre("Loading.Form_Unload", "Port.Form_Activate"));
    PressKey(Frame(), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_THAT(TakeDiary(), ElementsAre("Port.Form_Unload"));
    EXPECT_EQ(Forms::Count(), 1);
}

TEST_F(FrameTest, ShortcutsLeaveTheFocusInItsFieldUnchecked)
{
    FakeChild &child = Open(ChildWindow::Loading);
    child.txtField.setFocus();
    TakeDiary();
    PressKey(Frame(), Qt::Key_S, Qt::ControlModifier);
    PressKey(Frame(), Qt::Key_N, Qt::ControlModifier);
    PressKey(Frame(), Qt::Key_P, Qt::ControlModifier);
    Click(Button(2));
    EXPECT_THAT(TakeDiary(), ElementsAre("Loading.RSave", "Loading.RNew", "Loading.RPrint(False)", "Loading.RSave"));
    EXPECT_EQ(Frame().focusWidget(), &child.txtField);
}

TEST_F(FrameTest, AChildThatLacksTheOperationEndsTheProgram)
{
    Open(ChildWindow::Loading).SendMask("111111111");
    Choose("mnuHelp(5)");
    FatalRecorder fatal;
    for (const int position : {1, 2, 4, 5, 7})
        Click(Button(position));
    PressKey(Frame(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_THAT(fatal.Numbers(), testing::AllOf(testing::SizeIs(6), testing::Each(ErrorNumber::NoSuchOperation)));
}

TEST_F(FrameTest, WithoutAChildTheGuardedCommandsDoNothingAndTheOthersEndTheProgram)
{
    Frame().SetMDIToolbar("111111111");
    FatalRecorder fatal;
    for (const char *key : {"mnuFile(0)", "mnuFile(4)", "mnuFile(6)"})
        Choose(key);
    EXPECT_TRUE(fatal.Numbers().empty());
    Choose("mnuFile(14)");
    Choose("mnuFile(12)");
    EXPECT_THAT(fatal.Numbers(), ElementsAre(ErrorNumber::NoObject, ErrorNumber::NoObject));
}

TEST_F(FrameTest, ToolsAndLinksGoToTheDesktop)
{
    QStringList opened;
    const ScopedPort shell(ShellPort(), std::make_unique<RecordingShell>(opened));
    for (const char *key : {"mnuTools(10)", "mnuHelp(6)", "mnuHelp(10)", "mnuHelp(14)"})
        Choose(key);
    In<QAction>(Frame(), "mnuTessel(10)").trigger();
    PressKey(Frame(), Qt::Key_F1);
    EXPECT_THAT(opened,
                ElementsAre("Notepad", "KeelmarkHelp.chm", "mailto:support@keelmark.example in C:\\",
                            "https://www.keelmark.example/downloads/draftsurvey/bugs.php in c:\\",
                            "https://www.keelmark.example/products/ in C:\\", "KeelmarkHelp.chm"));
    FatalRecorder fatal;
    Choose("mnuTools(5)");
    EXPECT_THAT(fatal.Numbers(), ElementsAre(ErrorNumber::ProgramNotFound));
}

// Whether anything is to be seen of the picture.
bool Shows(const QIcon &icon, QIcon::Mode mode)
{
    const QImage image = icon.pixmap(16, mode).toImage().convertToFormat(QImage::Format_Alpha8);
    return std::any_of(image.constBits(), image.constBits() + image.sizeInBytes(),
                       [](uchar alpha) { return alpha > 0; });
}

TEST_F(FrameTest, MenuItemsHaveNamesPicturesAndMnemonicsOfTheirOwn)
{
    QStringList off;
    int pictures = 0;
    for (const QMenu *menu : Frame().findChildren<QMenu *>(QRegularExpression("^mnu"))) {
        QStringList mnemonics;
        for (const QAction *item : menu->actions()) {
            EXPECT_TRUE(item->objectName().startsWith("mnu")) << item->text().toStdString();
            if (item->text().contains('&'))
                mnemonics.append(item->text().section('&', 1).left(1).toLower());
            if (!item->isEnabled())
                off.append(item->objectName());
            for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Disabled})
                pictures += Shows(item->icon(), mode);
        }
        EXPECT_EQ(mnemonics.removeDuplicates(), 0) << menu->objectName().toStdString();
    }
    EXPECT_EQ(pictures, 17 * 3);
    EXPECT_THAT(off,
                UnorderedElementsAre("mnuFile(0)", "mnuFile(4)", "mnuFile(6)", "mnuFile(12)", "mnuFile(14)",
                                     "mnuShipData(5)", "mnuShipData(10)", "mnuDraftSurvey(10)"));
}

TEST_F(FrameTest, TheStatusBarTellsTimeAndInsert)
{
    const ScopedPort clock(ClockPort(), [] { return ClockTime {2024, 3, 14, 9, 26, 53}; });
    EXPECT_EQ(Panel(5), "09:26:53");
    EXPECT_EQ(Panel(6), "14 Mar 2024");
    const QWidget &insert = In<QWidget>(Frame(), "sb1(4)");
    EXPECT_FALSE(insert.isEnabled());
    QTest::keyClick(Frame().windowHandle(), Qt::Key_Insert);
    EXPECT_TRUE(insert.isEnabled());
    QTest::keyClick(Frame().windowHandle(), Qt::Key_Insert);
    EXPECT_FALSE(insert.isEnabled());
}

} // namespace
