#include "frame/platform/Machine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

#include <algorithm>
#include <array>

namespace
{
// In the order of MsgIcon, MsgButtons and MsgAnswer.
constexpr std::array kIcons {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Question, QMessageBox::Warning,
                             QMessageBox::Information};
constexpr std::array<QMessageBox::StandardButtons, 3> kButtons {
    QMessageBox::Ok, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};
constexpr std::array kAnswers {QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::No};

template<class Choice> auto Of(const auto &table, Choice choice)
{
    return table.at(static_cast<std::size_t>(choice));
}

MsgAnswer AnswerOf(int button)
{
    const auto found = std::ranges::find(kAnswers, button);
    return found == kAnswers.end() ? MsgAnswer::Ok : static_cast<MsgAnswer>(found - kAnswers.begin());
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
        setIcon(Of(kIcons, message.icon));
        setStandardButtons(Of(kButtons, message.buttons));
        // A plain question has no answer that is meant by Ok: the first button is the default then.
        if (button(Of(kAnswers, message.defaultAnswer)))
            setDefaultButton(Of(kAnswers, message.defaultAnswer));
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

MsgAnswer ShowMessageBoxWindow(const Message &message)
{
    return AnswerOf(MessageBoxWindow(message).exec());
}
