#include "tests/masters/RecordsDesk.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolBar>

RecordsDesk::RecordsDesk(ChildWindow kind)
    : mKind(kind)
{
    ShowActive(Frame());
}

RecordsDesk::~RecordsDesk()
{
    delete frmMDI::Loaded();
    gOpenChildCount = 0;
    EXPECT_EQ(Forms::Count(), 0);
}

void RecordsDesk::Open()
{
    OpenChild(mKind);
    Settle();
}

QStringList RecordsDesk::Rows() const
{
    QStringList rows;
    for (int row = 0; row < List().model()->rowCount(); ++row)
        rows.append(List().model()->index(row, 0).data().toString());
    return rows;
}

std::string RecordsDesk::Boxes() const
{
    QStringList texts;
    for (const char *name : {"txtPortName", "txtCity", "txtCountry", "txtItemName"}) {
        if (const auto *box = Window().findChild<QLineEdit *>(name))
            texts.append(box->text());
    }
    return texts.join('|').toStdString();
}

std::string RecordsDesk::Focus()
{
    const QWidget *focused = Frame().focusWidget();
    return focused ? focused->objectName().toStdString() : "";
}

QString RecordsDesk::Hint()
{
    return Frame().findChild<QLabel *>("sb1(1)")->text();
}

std::string RecordsDesk::CommandsOn()
{
    std::string text;
    for (const int position : {1, 2, 4, 5, 7, 9})
        text += Frame().findChild<QToolBar *>("tbrMDI")->actions().at(position - 1)->isEnabled() ? '1' : '0';
    return text;
}

void RecordsDesk::PressDeleteButton()
{
    Click(*Frame().findChild<QToolBar *>("tbrMDI")->findChild<QWidget *>("tbrMDI(7)"));
}

void RecordsDesk::Fill(const char *name, const QString &text)
{
    Click(The(name));
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Backspace);
    Type(Frame(), text);
}

void RecordsDesk::ClickRow(int row)
{
    Click(*List().viewport(), List().visualRect(List().model()->index(row, 0)).center());
}

void RecordsDesk::Tell(const std::string &text, const std::string &caption)
{
    mMessages.Expect({.text = text, .icon = MsgIcon::Exclamation, .caption = caption});
}

void RecordsDesk::AskToSave(const std::string &text, MsgAnswer answer)
{
    mMessages.Expect(
        {.text = text, .icon = MsgIcon::Question, .buttons = MsgButtons::YesNoCancel, .defaultAnswer = MsgAnswer::Yes},
        answer);
}

void RecordsDesk::AskToDelete(const std::string &text, MsgAnswer defaultAnswer, MsgAnswer answer)
{
    mMessages.Expect(
        {.text = text, .icon = MsgIcon::Question, .buttons = MsgButtons::YesNo, .defaultAnswer = defaultAnswer},
        answer);
}

void RecordsDesk::TellNotSaved()
{
    Tell("A serious error has occured while saving the current record.\n\n"
         "Please contact us with the error no. on the titlebar of this dialog box.",
         "Keelmark-10016");
}

void RecordsDesk::TellNotDeleted()
{
    Tell("A serious error has occured while deleting the current record.\n\n"
         "Please contact us with the error no. on the titlebar of this dialog box.",
         "Keelmark-10017");
}
