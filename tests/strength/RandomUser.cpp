#include "tests/strength/RandomUser.h"

#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "frame/platform/Form.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <array>

namespace
{
constexpr std::array kTyped {"0",  "1", "2", "5", "8",  "9",   ".",    "-",  "+",   "a",     "V",  " ",    "'",
                             "\"", ";", "%", "&", "%1", "7.5", "8.02", "12", "350", "1.025", "e5", "0630", "01062024"};
constexpr std::array kKeys {Qt::Key_Return, Qt::Key_Return, Qt::Key_Return,    Qt::Key_Tab,    Qt::Key_Tab,
                            Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,      Qt::Key_Right,  Qt::Key_Home,
                            Qt::Key_End,    Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Space,
                            Qt::Key_F1,     Qt::Key_F4,     Qt::Key_PageDown,  Qt::Key_Insert};
constexpr std::array kCommands {Qt::Key_N, Qt::Key_S, Qt::Key_S, Qt::Key_S, Qt::Key_O, Qt::Key_P,  Qt::Key_A,
                                Qt::Key_V, Qt::Key_C, Qt::Key_X, Qt::Key_Z, Qt::Key_0, Qt::Key_F4, Qt::Key_Tab};
constexpr std::array kLetters {Qt::Key_C, Qt::Key_C, Qt::Key_F, Qt::Key_N, Qt::Key_O, Qt::Key_S, Qt::Key_D, Qt::Key_W};

constexpr std::array kWindows {ChildWindow::ShipParticulars, ChildWindow::HydrostaticData, ChildWindow::Port,
                               ChildWindow::Loading, ChildWindow::Discharging};

QWidget *WindowInFront()
{
    for (QWidget *window :
         {QApplication::activePopupWidget(), QApplication::activeModalWidget(), QApplication::activeWindow()}) {
        if (window)
            return window;
    }
    // As a window manager does for the one that is clicked.
    if (frmMDI::Loaded())
        QApplication::setActiveWindow(frmMDI::Loaded());
    return frmMDI::Loaded();
}
} // namespace

int RandomUser::Number(int below)
{
    return std::uniform_int_distribution<int>(0, below - 1)(mRandom);
}

MsgAnswer RandomUser::AnswerTo(const Message &message)
{
    mTold = message.caption + ": " + message.text.substr(0, message.text.find('\n'));
    switch (message.buttons) {
    case MsgButtons::YesNo:
        return OnceIn(2) ? MsgAnswer::Yes : MsgAnswer::No;
    case MsgButtons::YesNoCancel:
        return OnceIn(3) ? MsgAnswer::Cancel : OnceIn(2) ? MsgAnswer::Yes : MsgAnswer::No;
    case MsgButtons::Ok:
        break;
    }
    return MsgAnswer::Ok;
}

void RandomUser::Start(int acts)
{
    mActs = acts;
    QTimer::singleShot(0, qApp, [this] { Step(); });
}

void RandomUser::Step()
{
    // The next step comes before this one's act is over where that opens a dialog.
    QTimer::singleShot(0, qApp, [this] { Step(); });
    if (mDone >= mActs) {
        Close();
        return;
    }
    ++mDone;
    Act();
}

void RandomUser::Close()
{
    if (QWidget *dialog = QApplication::activePopupWidget())
        dialog->close();
    else if (QWidget *modal = QApplication::activeModalWidget()) {
        QTest::keyClick(modal, Qt::Key_Escape);
        QTest::keyClick(modal, Qt::Key_Return);
    } else if (frmMDI *frame = frmMDI::Loaded(); !frame || frame->close()) {
        QCoreApplication::quit();
    }
}

void RandomUser::Act()
{
    QWidget *window = WindowInFront();
    if (!window) {
        ShowMainWindow();
        return;
    }
    if (!QApplication::activeModalWidget() && OnceIn(40)) {
        OpenChild(kWindows.at(static_cast<std::size_t>(Number(int(kWindows.size())))));
    } else if (!QApplication::activeModalWidget() && frmMDI::Loaded() && OnceIn(60)) {
        QApplication::setActiveWindow(frmMDI::Loaded());
    } else if (OnceIn(2)) {
        ClickSomething(*window);
    } else {
        PressSomething(*window);
    }
}

void RandomUser::Note(const char *act, const QWidget &window, const QWidget &widget)
{
    mLast = act;
    for (const QWidget *noted : {&window, &widget})
        mLast += std::string(" ") + noted->metaObject()->className() + " " + noted->objectName().toStdString();
    const auto *area = frmMDI::Loaded() ? frmMDI::Loaded()->findChild<QMdiArea *>() : nullptr;
    if (const QMdiSubWindow *front = area ? area->currentSubWindow() : nullptr) {
        const auto *form = qobject_cast<const Form *>(front->widget());
        mLast += ", in front " + form->objectName().toStdString() + " with " + form->ButtonMask();
    }
}

void RandomUser::PressSomething(QWidget &window)
{
    QWidget *focused = window.focusWidget() ? window.focusWidget() : &window;
    Note("press", window, *focused);
    const auto any = [this](const auto &list) { return list.at(static_cast<std::size_t>(Number(int(list.size())))); };
    switch (Number(8)) {
    case 0:
        QTest::keyClick(focused, any(kCommands), Qt::ControlModifier);
        break;
    case 1:
        QTest::keyClick(focused, any(kLetters), Qt::AltModifier);
        break;
    case 2:
    case 3:
    case 4:
        QTest::keyClick(focused, any(kKeys), OnceIn(10) ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    default:
        QTest::keyClicks(focused, QString::fromUtf8(any(kTyped)));
    }
}

void RandomUser::ClickSomething(QWidget &window)
{
    QList<QWidget *> seen;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty())
            seen.append(widget);
    }
    if (seen.isEmpty())
        seen.append(&window);
    QWidget *widget = seen.at(Number(int(seen.size())));
    Note("click", window, *widget);
    const QPoint place(Number(std::max(1, widget->width())), Number(std::max(1, widget->height())));
    if (OnceIn(12))
        QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
    else
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}
