// What Application does with keys, clicks, mnemonics, the wheel and errors on their way to the widgets.

#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"
#include "frame/platform/Fatal.h"
#include "frame/platform/Machine.h"
#include "tests/platform/Desk.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/UserActs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include <iostream>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

struct Act {
    const char *name;
    std::function<void(Desk &)> perform;
};

const std::vector<Act> kLeavingActs = {
    {"Tab", [](Desk &desk) { PressKey(desk, Qt::Key_Tab); }},
    {"Shift+Tab", [](Desk &desk) { PressKey(desk, Qt::Key_Backtab, Qt::ShiftModifier); }},
    {"Enter", [](Desk &desk) { PressKey(desk, Qt::Key_Return); }},
    {"click on a field", [](Desk &desk) { Click(desk.mForm.txtSecond); }},
    {"click on a button", [](Desk &desk) { Click(desk.mForm.cmdGo); }},
    {"double click", [](Desk &desk) { QTest::mouseDClick(&desk.mForm.txtSecond, Qt::LeftButton); }},
    {"click on a tab", [](Desk &desk) { Click(desk.mForm.sstStages, desk.mForm.sstStages.tabRect(1).center()); }},
    {"mnemonic of a button", [](Desk &desk) { PressKey(desk, Qt::Key_G, Qt::AltModifier); }},
    {"mnemonic of a label", [](Desk &desk) { PressKey(desk, Qt::Key_S, Qt::AltModifier); }},
    {"the form's own move", [](Desk &desk) { desk.mForm.MoveFocus(&desk.mForm.txtSecond); }},
};

const std::vector<Act> kStayingActs = {
    {"click on a label", [](Desk &desk) { Click(desk.mForm.lblPlain); }},
    {"click on the ground",
     [](Desk &desk) {
         Click(desk.mForm, {1, desk.mForm.height() - 1});
     }},
    {"click into the field itself", [](Desk &desk) { Click(desk.mForm.txtFirst); }},
    {"click on a disabled button", [](Desk &desk) { Click(desk.mForm.cmdOff); }},
    {"click on the present tab",
     [](Desk &desk) {
         Click(desk.mForm.sstStages, {5, 5});
     }},
    {"click on a disabled tab",
     [](Desk &desk) { Click(desk.mForm.sstStages, desk.mForm.sstStages.tabRect(2).center()); }},
    {"command of the toolbar",
     [](Desk &desk) {
         auto *bar = desk.findChild<QToolBar *>();
         Click(*bar->widgetForAction(desk.mCommand));
     }},
    {"click on another button than the main one",
     [](Desk &desk) {
         QTest::mouseClick(&desk.mForm.sstStages, Qt::RightButton, {}, desk.mForm.sstStages.tabRect(1).center());
     }},
    {"wheel over a field", [](Desk &desk) { TurnWheel(desk.mForm.txtSecond); }},
};

TEST(Gate, ARefusedFieldKeepsTheFocusAndIsAskedOnce)
{
    for (const Act &act : kLeavingActs) {
        SCOPED_TRACE(act.name);
        Desk desk;
        desk.mForm.Refuse(true);
        act.perform(desk);
        EXPECT_EQ(desk.mForm.mChecks, 1);
        EXPECT_EQ(desk.Focus(), "txtFirst");
        EXPECT_EQ(desk.mForm.mClicks, 0);
        EXPECT_EQ(desk.mForm.sstStages.currentIndex(), 0);
    }
}

TEST(Gate, AFieldThatPassesIsAskedOnceAndLeft)
{
    for (const Act &act : kLeavingActs) {
        SCOPED_TRACE(act.name);
        Desk desk;
        act.perform(desk);
        EXPECT_EQ(desk.mForm.mChecks, 1);
        EXPECT_TRUE(desk.Focus() != "txtFirst" || desk.mForm.sstStages.currentIndex() == 1);
    }
    Desk desk;
    Click(desk.mForm.cmdGo);
    EXPECT_EQ(desk.mForm.mClicks, 1);
}

TEST(Gate, WhatMovesNoFocusAsksNothing)
{
    for (const Act &act : kStayingActs) {
        SCOPED_TRACE(act.name);
        Desk desk;
        desk.mForm.Refuse(true);
        act.perform(desk);
        EXPECT_EQ(desk.mForm.mChecks, 0);
        EXPECT_EQ(desk.Focus(), "txtFirst");
    }
}

TEST(Gate, AnotherWindowIsReachedUnaskedButTheWayBackIsAsked)
{
    Desk desk;
    desk.mForm.Refuse(true);
    Click(desk.mOther.cmdGo);
    EXPECT_EQ(desk.mForm.mChecks, 0);
    EXPECT_EQ(desk.mOther.mClicks, 1);
    EXPECT_TRUE(desk.mOther.cmdGo.hasFocus());

    Click(desk.mForm.cmdGo);
    EXPECT_EQ(desk.mForm.mChecks, 1);
    EXPECT_EQ(desk.mForm.mClicks, 0);
    EXPECT_TRUE(desk.mForm.txtFirst.hasFocus());
    EXPECT_EQ(desk.mArea.activeSubWindow()->widget(), &desk.mForm);
}

TEST(Gate, ARealBoxIsShownOnceAndTheFieldKeepsTheFocus)
{
    const ScopedPort windows(MsgBoxPort(), ShowMessageBoxWindow);
    Desk desk;
    int boxes = 0;
    desk.mForm.OnValidate(&desk.mForm.txtFirst, [&](bool &cancel) {
        cancel = true;
        QTimer::singleShot(0, [&boxes] {
            ++boxes;
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        MsgBox("Invalid density value.", MsgIcon::Exclamation);
    });
    QTest::mouseClick(desk.windowHandle(), Qt::LeftButton, {},
                      desk.mForm.cmdGo.mapTo(&desk, desk.mForm.cmdGo.rect().center()));
    Settle();
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(desk.mForm.mClicks, 0);
    EXPECT_EQ(desk.Focus(), "txtFirst");
    EXPECT_FALSE(desk.mForm.cmdGo.isDown());
}

TEST(Gate, NoSecondCheckRunsWhileOneDoes)
{
    Desk desk;
    int checks = 0;
    desk.mForm.OnValidate(&desk.mForm.txtFirst, [&](bool &) {
        ++checks;
        PressKey(desk, Qt::Key_Tab);
        EXPECT_EQ(desk.Focus(), "txtFirst");
    });
    PressKey(desk, Qt::Key_Tab);
    EXPECT_EQ(checks, 1);
    EXPECT_EQ(desk.Focus(), "txtSecond");
}

TEST(Gate, AFormSeesEachKeyOnceBeforeItsControl)
{
    Desk desk;
    PressKey(desk, Qt::Key_F7);
    EXPECT_THAT(desk.mForm.mKeys, ElementsAre(Qt::Key_F7));
    PressKey(desk, Qt::Key_Return);
    EXPECT_THAT(desk.mForm.mKeys, ElementsAre(Qt::Key_F7, Qt::Key_Return, Qt::Key_Tab));
    EXPECT_THAT(desk.mOther.mKeys, IsEmpty());
}

TEST(Gate, WhatIsTypedRightAfterEnterGoesToTheNextField)
{
    Desk desk;
    for (const auto &[key, text] : {std::pair(Qt::Key_Return, "\r"), std::pair(Qt::Key_7, "7")}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(desk.windowHandle(), &press);
    }
    EXPECT_EQ(desk.mForm.txtFirst.text(), "");
    EXPECT_EQ(desk.mForm.txtSecond.text(), "7");
}

TEST(Gate, TheWheelTurnsNoListWithoutTheFocusAndNoTab)
{
    QScrollArea ground;
    QWidget page;
    QComboBox list(&page);
    QTabBar tabs(&page);
    QPlainTextEdit text(&page);
    list.addItems({"a", "b", "c"});
    tabs.addTab("a");
    tabs.addTab("b");
    tabs.move(0, 50);
    text.setGeometry(0, 100, 100, 50);
    page.resize(300, 2000);
    ground.setWidget(&page);
    ground.resize(320, 300);
    ShowActive(ground);
    ground.setFocus();

    TurnWheel(list);
    EXPECT_EQ(list.currentIndex(), 0);
    EXPECT_GT(ground.verticalScrollBar()->value(), 0);
    ground.verticalScrollBar()->setValue(0);
    tabs.setFocus();
    TurnWheel(tabs);
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_GT(ground.verticalScrollBar()->value(), 0);
    ground.verticalScrollBar()->setValue(0);
    TurnWheel(text);
    EXPECT_TRUE(tabs.hasFocus());
    ground.verticalScrollBar()->setValue(0);
    list.setFocus();
    TurnWheel(list);
    EXPECT_EQ(list.currentIndex(), 1);
}

TEST(UntrappedErrors, ReachTheEndOfTheProgramFromSlotsChecksAndCommands)
{
    FatalRecorder fatal;
    Desk desk;
    QObject::connect(&desk.mForm.cmdGo, &QPushButton::clicked, [] { throw RuntimeError(ErrorNumber::DivisionByZero); });
    Click(desk.mForm.cmdGo);
    desk.mForm.OnValidate(&desk.mForm.cmdGo, [](bool &) { throw RuntimeError(ErrorNumber::TypeMismatch); });
    PressKey(desk, Qt::Key_Tab);
    QObject::connect(desk.mCommand, &QAction::triggered, [&desk] { static_cast<Form &>(desk.mForm).RPrint(); });
    Click(*desk.findChild<QToolBar *>()->widgetForAction(desk.mCommand));
    EXPECT_THAT(fatal.Numbers(),
                ElementsAre(ErrorNumber::DivisionByZero, ErrorNumber::TypeMismatch, ErrorNumber::NoSuchOperation));
}

TEST(UntrappedErrors, EndTheProcessAfterThePlatformsMessage)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto end = [](std::int32_t number, const char *description) {
        const ScopedPort own(FatalPort(), EndProgram);
        const ScopedPort box(MsgBoxPort(), [](const Message &message) {
            std::cerr << message.caption << "|" << message.text << "|" << (message.icon == MsgIcon::Critical);
            Fatal(RuntimeError(ErrorNumber::Overflow));
            return MsgAnswer::Ok;
        });
        Fatal(RuntimeError(number, description));
    };
    EXPECT_EXIT(end(ErrorNumber::TypeMismatch, "Type mismatch"), testing::ExitedWithCode(1),
                "^Keelmark\\|Run-time error '13':\n\nType mismatch\\|1$");
    EXPECT_EXIT(end(ErrorNumber::StoreRefusal, "No"), testing::ExitedWithCode(1),
                "Run-time error '-2147467259 \\(80004005\\)':\n\nNo\\|1$");
}
} // namespace
