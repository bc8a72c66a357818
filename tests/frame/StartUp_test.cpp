#include "frame/frmTipOfDay.h"
#include "frame/platform/Machine.h"
#include "frame/platform/Settings.h"
#include "tests/frame/FrameTest.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace
{
std::string TipsAtStart()
{
    return GetSetting("Options", "Show Tips at Startup", "none");
}

// As soon as the About box is up: tries what closes other boxes, then presses Continue.
class Continuer
{
public:
    Continuer()
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { Look(); });
        mTimer.start(0);
    }
    ~Continuer() { EXPECT_FALSE(mTimer.isActive()) << "no About box came"; }

private:
    void Look()
    {
        QWidget *about = QApplication::activeModalWidget();
        if (!about)
            return;
        mTimer.stop();
        EXPECT_TRUE(Forms::All().contains(about));
        PressKey(*about, Qt::Key_Escape);
        about->close();
        EXPECT_TRUE(about->isVisible());
        Click(In<QPushButton>(*about, "cmdContinue"));
    }

    QTimer mTimer;
};

frmTipOfDay *Tip()
{
    return frmMDI::Loaded() ? frmMDI::Loaded()->findChild<frmTipOfDay *>() : nullptr;
}

TEST_F(FrameTest, AboutBringsUpTheTipOnlyWhereTheSettingAsksForIt)
{
    for (const auto &[setting, tip] : {std::pair("", true), std::pair("0", false), std::pair("1", true)}) {
        if (*setting)
            SaveSetting("Options", "Show Tips at Startup", setting);
        const Continuer user;
        EXPECT_TRUE(Main(File()));
        ASSERT_TRUE(frmMDI::Loaded() && frmMDI::Loaded()->isVisible());
        EXPECT_EQ(Tip() != nullptr, tip) << setting;
        EXPECT_EQ(Forms::Count(), tip ? 2 : 1);
        EXPECT_EQ(Panel(1), tip ? "" : frmMDI::OpenHint());
        EXPECT_FALSE(CoolBarShown());
        delete frmMDI::Loaded();
    }
}

TEST_F(FrameTest, AboutFromTheHelpMenuBringsUpTheTipAgain)
{
    EXPECT_FALSE(Tip());
    {
        const Continuer user;
        Choose("mnuHelp(20)");
    }
    EXPECT_TRUE(Tip());
    Tip()->Unload();
    SaveSetting("Options", "Show Tips at Startup", "no number");
    const Continuer user;
    Choose("mnuHelp(20)");
    EXPECT_TRUE(Tip()) << "the default counts";
}

TEST_F(FrameTest, MainTellsWhyTheStoreCannotBeOpened)
{
    const auto expectNotFound = [this](const std::filesystem::path &file) {
        mMessages.Expect({.text = "Unable to find database...!", .icon = MsgIcon::Critical});
        EXPECT_FALSE(Main(file));
    };
    {
        const auto other = std::move(gConnection);
        other->Execute("BEGIN EXCLUSIVE");
        expectNotFound(File());
        other->Execute("ROLLBACK");
        other->Execute("PRAGMA application_id = 7");
    }
    expectNotFound(File() / "missing");

    mMessages.Expect({.text = "An internal error has occured.\n\n"
                              "Please contact us with the error no. mentioned on the titlebar of this dialog box",
                      .icon = MsgIcon::Critical,
                      .caption = "Keelmark-10200"});
    EXPECT_FALSE(Main(File()));
    EXPECT_EQ(Forms::Count(), 0);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(FrameTest, TipsArePickedAtRandomAndTheSettingChangesByClickOnly)
{
    Run("DELETE FROM TipOfDay");
    for (const char *tip : {"first", "second", "third"})
        Run(std::string("INSERT INTO TipOfDay (Tip) VALUES ('") + tip + "')");
    SaveSetting("Options", "Show Tips at Startup", "0");
    double next = 0.999;
    const ScopedPort numbers(RandomPort(), [&] { return next; });
    Choose("mnuHelp(5)");
    const auto &text = In<QLabel>(*Tip(), "lblTipText");
    EXPECT_EQ(text.text(), "third");
    for (const auto &[random, tip] : {std::pair(0.0, "first"), std::pair(0.34, "second"), std::pair(0.66, "second")}) {
        next = random;
        Click(In<QPushButton>(*Tip(), "cmdNextTip"));
        EXPECT_EQ(text.text(), tip);
    }

    auto &box = In<QCheckBox>(*Tip(), "chkLoadTipsAtStartup");
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(TipsAtStart(), "0");
    for (const char *setting : {"0", "1", "0"}) {
        box.setFocus();
        PressKey(Frame(), Qt::Key_Space);
        EXPECT_EQ(TipsAtStart(), setting);
    }
    In<QPushButton>(*Tip(), "cmdOK").setFocus();
    PressKey(Frame(), Qt::Key_Return);
    EXPECT_FALSE(Tip());
    EXPECT_EQ(Panel(1), frmMDI::OpenHint());
}

TEST_F(FrameTest, TheTipWindowStandsAnEmptyTableAndTellsOfABrokenOne)
{
    Run("DELETE FROM TipOfDay");
    Choose("mnuHelp(5)");
    const QString designed = In<QLabel>(*Tip(), "lblTipText").text();
    Click(In<QPushButton>(*Tip(), "cmdNextTip"));
    EXPECT_EQ(In<QLabel>(*Tip(), "lblTipText").text(), designed);
    Click(In<QPushButton>(*Tip(), "cmdOK"));
    EXPECT_FALSE(Tip());

    Run("DROP TABLE TipOfDay");
    mMessages.Expect({.text = "An internal error has occured."
                              "Please contact us with the error code on the titlebar of this dialog box.",
                      .icon = MsgIcon::Critical,
                      .caption = "Keelmark-10102"});
    Choose("mnuHelp(5)");
    EXPECT_TRUE(Tip());
}

} // namespace
