#include "frame/platform/Machine.h"

#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"
#include "frame/platform/Shell.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <fstream>
#include <optional>

namespace
{
namespace fs = std::filesystem;

TEST(Settings, KeepWhatIsSavedUnderSectionAndKey)
{
    const TestFolder folder;
    const fs::path file = folder.Path() / "user.ini";
    std::optional<TestSettings> settings(file);
    EXPECT_EQ(GetSetting("Draft Survey Loading", "RecordID", "-1"), "-1");
    SaveSetting("Draft Survey Loading", "RecordID", "17");
    SaveSetting("Options", "Show Tips at Startup", "a, \"b\"; Ä");
    EXPECT_TRUE(fs::exists(file));
    settings.emplace(file);
    EXPECT_EQ(GetSetting("Draft Survey Loading", "RecordID", "-1"), "17");
    EXPECT_EQ(GetSetting("Draft Survey Discharging", "RecordID", "-1"), "-1");
    EXPECT_EQ(GetSetting("Options", "Show Tips at Startup", ""), "a, \"b\"; Ä");
    // Another program writes in between; this one writes the same again, and where it cannot, goes on.
    std::ofstream(file) << "[Options]\nOther=here\n[Draft%20Survey%20Loading]\nRecordID=4\n";
    EXPECT_EQ(GetSetting("Draft Survey Loading", "RecordID", "-1"), "4");
    SaveSetting("Draft Survey Loading", "RecordID", "17");
    fs::remove(file);
    SaveSetting("Draft Survey Loading", "RecordID", "17");
    EXPECT_TRUE(fs::exists(file));
    fs::remove(file);
    fs::create_directories(file);
    SaveSetting("Draft Survey Loading", "RecordID", "18");
}

// Shows the message as a window and does something at it.
MsgAnswer AnswerAt(const Message &message, const std::function<void(QMessageBox &)> &act)
{
    const ScopedPort windows(MsgBoxPort(), ShowMessageBoxWindow);
    QTimer::singleShot(0, [&act] { act(dynamic_cast<QMessageBox &>(*QApplication::activeModalWidget())); });
    return MsgBox(message);
}

void PressEnter(QMessageBox &box)
{
    QTest::keyClick(box.defaultButton(), Qt::Key_Return);
}

TEST(MessageWindows, ShowTheMessageAndTellTheAnswer)
{
    QWidget window;
    ShowActive(window);
    const Message message {.text = "<b>Save</b> & go?\n\nNow?",
                           .icon = MsgIcon::Question,
                           .caption = "Ship Particulars",
                           .buttons = MsgButtons::YesNoCancel,
                           .defaultAnswer = MsgAnswer::No};
    const MsgAnswer answer = AnswerAt(message, [&window](QMessageBox &box) {
        EXPECT_EQ(box.text(), "<b>Save</b> & go?\n\nNow?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Ship Particulars");
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        EXPECT_EQ(box.parentWidget(), &window);
        PressEnter(box);
    });
    EXPECT_EQ(answer, MsgAnswer::No);
}

TEST(MessageWindows, ClosedWithoutAButtonTheyAnswerCancelOrOkAndAQuestionStays)
{
    const auto escape = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); };
    EXPECT_EQ(AnswerAt({.text = "Done."}, escape), MsgAnswer::Ok);
    EXPECT_EQ(AnswerAt({.text = "Save?", .buttons = MsgButtons::YesNoCancel, .defaultAnswer = MsgAnswer::Yes}, escape),
              MsgAnswer::Cancel);
    const auto closeThenYes = [&escape](QMessageBox &box) {
        escape(box);
        box.close();
        ASSERT_TRUE(box.isVisible());
        PressEnter(box);
    };
    EXPECT_EQ(AnswerAt({.text = "Save?", .buttons = MsgButtons::YesNo}, closeThenYes), MsgAnswer::Yes);
}

// A desktop with one program in its list; it leaves a mark when it runs.
class DesktopTest : public testing::Test
{
protected:
    DesktopTest()
    {
        fs::create_directories(Folder() / "applications");
        qputenv("XDG_DATA_DIRS", Folder().c_str());
        qputenv("PATH", Folder().c_str());
    }
    ~DesktopTest() override
    {
        qputenv("XDG_DATA_DIRS", mDataBefore);
        qputenv("PATH", mPathBefore);
    }

    [[nodiscard]] const fs::path &Folder() const { return mFolder.Path(); }

    void PutProgram(const char *name, const std::string &line) const
    {
        std::ofstream(Folder() / name) << "#!/bin/sh\n" << line << '\n';
        fs::permissions(Folder() / name, fs::perms::owner_all);
    }

    void PutEntry(const char *name, const char *lines) const
    {
        std::ofstream(Folder() / "applications" / name) << "[Desktop Entry]\n" << lines;
    }

    [[nodiscard]] bool Ran(const char *mark) const
    {
        return QTest::qWaitFor([&] { return fs::exists(Folder() / mark); });
    }

    [[nodiscard]] std::string Mark(const char *mark) const { return ": > '" + (Folder() / mark).string() + "'"; }

private:
    TestFolder mFolder;
    QByteArray mDataBefore = qgetenv("XDG_DATA_DIRS");
    QByteArray mPathBefore = qgetenv("PATH");
};

TEST_F(DesktopTest, StartsTheRegisteredProgramOrOneOfTheUsualNamesOrFails)
{
    EXPECT_EQ(ErrorOf([] { DesktopShell().StartCalculator(); }), ErrorNumber::ProgramNotFound);
    EXPECT_EQ(ErrorOf([] { DesktopShell().StartNotepad(); }), ErrorNumber::ProgramNotFound);

    PutProgram("galculator", Mark("usual.ran"));
    DesktopShell().StartCalculator();
    EXPECT_TRUE(Ran("usual.ran"));

    PutProgram("tool", Mark("'\"$1\"'.ran"));
    PutProgram("xdg-mime", R"([ "$*" = "query default text/plain" ] && echo c.desktop)");
    PutEntry("a.desktop", "Exec=tool hidden\nCategories=Calculator;\nNoDisplay=true\n");
    PutEntry("b.desktop", "Exec=gone-with-its-package\nCategories=Calculator;\n");
    PutEntry("c.desktop", "Exec=tool editor\nCategories=Utility;TextEditor;\n");
    PutEntry("d.desktop", "Categories=Utility;Calculator;\nExec=tool shown %U\n[Desktop Action x]\nExec=tool x");
    DesktopShell().StartCalculator();
    EXPECT_TRUE(Ran("shown.ran"));
    DesktopShell().StartNotepad();
    EXPECT_TRUE(Ran("editor.ran"));

    // The help asks the desktop first, and no window waits for the answer.
    PutProgram("xdg-mime", "sleep 1; " + Mark("asked.ran"));
    std::ofstream(Folder() / "KeelmarkHelp.chm") << "pages";
    QElapsedTimer since;
    since.start();
    DesktopShell().ShowHelp(QString::fromStdString((Folder() / "KeelmarkHelp.chm").string()));
    EXPECT_LT(since.elapsed(), 900);
    EXPECT_TRUE(Ran("asked.ran"));
}
} // namespace
