#include "core/MsgBox.h"
#include "frame/platform/Machine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

namespace
{
QMessageBox::Icon IconOf(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        return QMessageBox::Information;
    case MsgIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MsgButtons buttons)
{
    switch (buttons) {
    case MsgButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ButtonOf(MsgAnswer answer)
{
    switch (answer) {
    case MsgAnswer::Yes:
        return QMessageBox::Yes;
    case MsgAnswer::No:
        return QMessageBox::No;
    case MsgAnswer::Cancel:
        return QMessageBox::Cancel;
    case MsgAnswer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

MsgAnswer AnswerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return MsgAnswer::Yes;
    case QMessageBox::No:
        return MsgAnswer::No;
    case QMessageBox::Cancel:
        return MsgAnswer::Cancel;
    default:
        return MsgAnswer::Ok;
    }
}

class MessageBoxWindow : public QMessageBox
{
public:
    explicit MessageBoxWindow(const Message &message)
        : QMessageBox(QApplication::activeWindow())
        , mMustAnswer(message.buttons == MsgButtons::YesNo)
    {
        setTextFormat(Qt::PlainText);
        setText(QString::fromStdString(message.text));
        setWindowTitle(QString::fromStdString(message.caption));
        setIcon(IconOf(message.icon));
        setStandardButtons(ButtonsOf(message.buttons));
        // A plain question has no answer that is meant by Ok: the first button is the default then.
        if (button(ButtonOf(message.defaultAnswer)))
            setDefaultButton(ButtonOf(message.defaultAnswer));
        else
            setDefaultButton(QMessageBox::Yes);
    }

protected:
    // Qt would take No for an answer where there is no Cancel; the user shall give one.
    void keyPressEvent(QKeyEvent *event) override
    {
        if (mMustAnswer && event->matches(QKeySequence::Cancel))
            event->accept();
        else
            QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent *event) override
    {
        if (mMustAnswer)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

private:
    bool mMustAnswer;
};
} // namespace

void UseMessageBoxWindows()
{
    SetMsgBoxPort([](const Message &message) {
        MessageBoxWindow box(message);
        return AnswerOf(box.exec());
    });
}
