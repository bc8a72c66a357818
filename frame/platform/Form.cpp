#include "frame/platform/Form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QScopedValueRollback>

namespace
{
QEvent::Type TabEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

void PressTab(QWidget *focused)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QApplication::sendEvent(focused, &press);
}
} // namespace

Port<FrameLink *> &FramePort()
{
    static Port<FrameLink *> port;
    return port;
}

Form::Form(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    Forms::Add(this);
}

Form::~Form()
{
    Forms::Remove(this);
}

bool Form::Unload()
{
    // The form's own close would leave an empty sub-window behind.
    auto *around = qobject_cast<QMdiSubWindow *>(parentWidget());
    return around ? around->close() : close();
}

bool Form::UnloadIgnoringErrors()
{
    const QScopedValueRollback<bool> ignoring(mIgnoresErrors, true);
    return Unload();
}

void Form::closeEvent(QCloseEvent *event)
{
    bool cancel = false;
    try {
        if (!mUnloaded)
            Form_Unload(cancel);
    } catch (const RuntimeError &) {
        if (!mIgnoresErrors)
            throw;
        cancel = true;
    }
    if (cancel) {
        event->ignore();
        return;
    }
    mUnloaded = true;
    Forms::Remove(this);
    event->accept();
}

void Form::OnValidate(QWidget *control, FocusCheck check)
{
    mChecks.insert(control, std::move(check));
}

bool Form::MayLeave(QWidget *control)
{
    const FocusCheck check = mChecks.value(control);
    if (!check)
        return true;
    if (mChecking)
        return false;
    const QScopedValueRollback<bool> checking(mChecking, true);
    bool cancel = false;
    check(cancel);
    return !cancel;
}

void Form::MoveFocus(QWidget *control)
{
    QWidget *focused = focusWidget();
    if (focused && focused != control && !MayLeave(focused))
        return;
    control->setFocus(Qt::OtherFocusReason);
}

void Form::SendTab()
{
    QCoreApplication::postEvent(this, new QEvent(TabEvent()));
}

void Form::DeliverTabs()
{
    QCoreApplication::sendPostedEvents(nullptr, TabEvent());
}

bool Form::event(QEvent *event)
{
    if (event->type() != TabEvent())
        return QWidget::event(event);
    QWidget *active = QApplication::focusWidget();
    if (QWidget *focused = active ? active : window()->focusWidget())
        PressTab(focused);
    return true;
}

Form *Form::Of(QObject *object)
{
    for (; object; object = object->parent()) {
        if (auto *form = qobject_cast<Form *>(object))
            return form;
    }
    return nullptr;
}

void Form::SendMask(std::string_view mask)
{
    mButtonMask = mask;
    SendMaskOnce(mask);
}

void Form::SendMaskOnce(std::string_view mask)
{
    if (FrameLink *frame = *FramePort())
        frame->SetMDIToolbar(mask);
}

void Form::SetHint(const QString &text)
{
    if (FrameLink *frame = *FramePort())
        frame->SetHint(text);
}
