#include "frame/platform/Application.h"

#include "core/MsgBox.h"
#include "frame/platform/Fatal.h"
#include "frame/platform/Form.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>

#include <algorithm>
#include <array>

namespace
{
// A list that drops down from a form is another window and no part of it.
Form *FormAround(QWidget *widget)
{
    Form *form = Form::Of(widget);
    return form && form->window() == widget->window() ? form : nullptr;
}

// Asks the control that has the focus within the target's form, the last one that had it where another window is
// active.
bool LeavingRefused(QWidget *target)
{
    Form *form = FormAround(target);
    QWidget *focused = form ? form->focusWidget() : nullptr;
    if (!focused || focused == target || focused->isAncestorOf(target) || form->MayLeave(focused))
        return false;
    focused->setFocus(Qt::OtherFocusReason);
    return true;
}

bool KeyTaken(QWidget *widget, QKeyEvent &key)
{
    Form *form = FormAround(widget);
    if (!form)
        return false;
    if (form->Form_KeyPress(key))
        return true;
    const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    QWidget *focused = form->focusWidget();
    return tab && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) && focused && !form->MayLeave(focused);
}

QWidget *EndOfProxies(QWidget *widget)
{
    while (widget->focusProxy())
        widget = widget->focusProxy();
    return widget;
}

bool TakesFocusByClick(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus;
}

// The widget that Qt gives the focus to on a press: the nearest that takes clicks, from the pressed one outwards.
QWidget *TakerOfPress(QWidget *widget, QPoint position)
{
    while (true) {
        QWidget *end = EndOfProxies(widget);
        if (widget->isEnabled() && widget->rect().contains(position) && TakesFocusByClick(widget)
            && TakesFocusByClick(end))
            return end;
        if (widget->isWindow() || end->hasFocus())
            return nullptr;
        position += widget->pos();
        widget = widget->parentWidget();
    }
}

bool IsMainButton(const QPointerEvent &press)
{
    return !press.isSinglePointEvent() || static_cast<const QSinglePointEvent &>(press).button() == Qt::LeftButton;
}

bool TurnsTab(const QWidget *widget, QPoint position)
{
    const auto *tabs = qobject_cast<const QTabBar *>(widget);
    if (!tabs || !tabs->isEnabled())
        return false;
    const int tab = tabs->tabAt(position);
    return tab >= 0 && tab != tabs->currentIndex() && tabs->isTabEnabled(tab);
}

// Clicks on what a form's controls lie in, such as a scroll area, would take the focus from them to no use.
void KeepFocusFromGround(QWidget *widget)
{
    const Form *form = FormAround(widget);
    const QWidget *focused = form ? form->focusWidget() : nullptr;
    for (; focused && widget != form; widget = widget->parentWidget()) {
        if (widget != focused && widget->isAncestorOf(focused) && qobject_cast<QAbstractScrollArea *>(widget))
            widget->setFocusPolicy(Qt::NoFocus);
    }
}

bool PressTaken(QWidget *widget, const QPointerEvent &press)
{
    KeepFocusFromGround(widget);
    const QPoint position = press.points().constFirst().position().toPoint();
    const bool turnsTab = IsMainButton(press) && TurnsTab(widget, position);
    QWidget *target = turnsTab ? widget : TakerOfPress(widget, position);
    if (!target)
        return false;
    const Qt::MouseButtons held = QGuiApplication::mouseButtons();
    if (LeavingRefused(target))
        return true;
    // The button was let go over a box that the check showed: a press would leave what it hits held down.
    if (QGuiApplication::mouseButtons() == held)
        return false;
    target->setFocus(Qt::MouseFocusReason);
    return true;
}

bool MnemonicTaken(QWidget *widget, const QShortcutEvent &event)
{
    const auto *label = qobject_cast<QLabel *>(widget);
    QWidget *target = label && label->buddy() ? label->buddy() : widget;
    if (!target->isEnabled())
        return false;
    if (LeavingRefused(target))
        return true;
    if (!Form::Of(target))
        return false;
    // Qt clicks a button without moving the focus there, and a moment later: a command that comes in between would find
    // the figures of before.
    if (TakesFocusByClick(target))
        target->setFocus(Qt::ShortcutFocusReason);
    auto *button = qobject_cast<QAbstractButton *>(target);
    if (!button || event.isAmbiguous())
        return false;
    button->click();
    return true;
}

void KeepFocusFromWheel(QWidget *widget)
{
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        if (widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
    }
}

constexpr std::array kInput {QEvent::KeyPress, QEvent::MouseButtonPress, QEvent::MouseButtonDblClick,
                             QEvent::TouchBegin, QEvent::Shortcut};

bool TakenFromWidget(QWidget *widget, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return KeyTaken(widget, *static_cast<QKeyEvent *>(event));
    case QEvent::Shortcut:
        return MnemonicTaken(widget, *static_cast<QShortcutEvent *>(event));
    default:
        return PressTaken(widget, *static_cast<QPointerEvent *>(event));
    }
}

// True where the event must not be delivered: a form took the key, a check refused, or the receiver is gone.
bool Intercepted(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Wheel && receiver->isWidgetType())
        KeepFocusFromWheel(static_cast<QWidget *>(receiver));
    if (std::ranges::find(kInput, event->type()) == kInput.end())
        return false;
    if (!receiver->isWidgetType()) {
        Form::DeliverTabs();
        return false;
    }
    const QPointer<QObject> alive(receiver);
    if (!TakenFromWidget(static_cast<QWidget *>(receiver), event) && alive)
        return false;
    event->accept();
    return true;
}
} // namespace

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    const auto title = QString::fromUtf8(kProgramTitle.data(), static_cast<qsizetype>(kProgramTitle.size()));
    setOrganizationName(title);
    setApplicationName(title);
    setQuitOnLastWindowClosed(false);
    installEventFilter(this);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return Intercepted(receiver, event) || QApplication::notify(receiver, event);
    } catch (const RuntimeError &error) {
        Fatal(error);
        return true;
    }
}

bool Application::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    const auto *combo = qobject_cast<QComboBox *>(receiver);
    if ((!combo || combo->hasFocus()) && !qobject_cast<QTabBar *>(receiver))
        return false;
    // Taken but not accepted: what lies around the widget gets the wheel.
    event->ignore();
    return true;
}
