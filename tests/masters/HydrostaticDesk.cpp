#include "tests/masters/HydrostaticDesk.h"

#include <QLabel>
#include <QToolBar>

HydrostaticDesk::HydrostaticDesk()
{
    Run("INSERT INTO Port (PortName) VALUES ('Aden')");
    Run("INSERT INTO Ship (ShipName, CallSign, PortOfRegistry, Flag, OfficialNo, IMONo)"
        " VALUES ('Argo', 'ARGO7', 1, 'Malta', '7712', '9074729'), ('Borealis', NULL, NULL, NULL, NULL, NULL)");
    Run("INSERT INTO HydrostaticDataTable VALUES (1, 8, 47039, 64.26, 985.7, -7, -6.11, 13.4, 4.1),"
        " (1, 7.9, 46397, 64.2, 983.2, -7.1, -6.2, 13.5, 4), (1, 8.1, 47681.8, 64.3, 987.9, -6.9, -6, 13.3, 4.2)");
    Frame().resize(1366, 768);
    ShowActive(Frame());
}

HydrostaticDesk::~HydrostaticDesk()
{
    delete frmMDI::Loaded();
    gOpenChildCount = 0;
    EXPECT_EQ(Forms::Count(), 0);
}

void HydrostaticDesk::Open()
{
    OpenChild(ChildWindow::HydrostaticData);
    Settle();
}

std::string HydrostaticDesk::Focus()
{
    const QWidget *focused = Frame().focusWidget();
    return focused ? focused->objectName().toStdString() : "";
}

std::string HydrostaticDesk::Hint()
{
    return The<QLabel>("sbHDT(1)").text().toStdString();
}

std::string HydrostaticDesk::Entry()
{
    QStringList cells;
    for (int column = 0; column < 8; ++column)
        cells.append(The<Grid>("fgrdInsertHD").Cell(1, column));
    return cells.join(' ').trimmed().toStdString();
}

std::string HydrostaticDesk::Shown(int column)
{
    QStringList cells;
    for (int row = 0; row < Grid8().model()->rowCount(); ++row)
        cells.append(Grid8().model()->index(row, column).data().toString());
    return cells.join(' ').toStdString();
}

std::string HydrostaticDesk::Stored(int ship)
{
    return Ask("SELECT coalesce(group_concat(Line, ' '), '') FROM (SELECT printf('%.15g:%.15g', TMD, KB) AS Line"
               " FROM HydrostaticDataTable WHERE ShipID = "
               + std::to_string(ship) + " ORDER BY TMD)")
        .Text();
}

void HydrostaticDesk::PressDeleteButton()
{
    Click(*Frame().findChild<QToolBar *>("tbrMDI")->findChild<QWidget *>("tbrMDI(7)"));
}

void HydrostaticDesk::TypeRow(const QString &values)
{
    for (const QString &value : values.split(' ')) {
        Type(Frame(), value);
        Press(Qt::Key_Return);
    }
}

void HydrostaticDesk::ClickEntry(int column)
{
    auto &grid = The<Grid>("fgrdInsertHD");
    Click(*grid.viewport(), grid.visualRect(grid.model()->index(1, column)).center());
}

void HydrostaticDesk::ClickRow(int row)
{
    Click(*Grid8().viewport(), Grid8().visualRect(Grid8().model()->index(row, 2)).center());
}

void HydrostaticDesk::PickShip(Qt::Key key)
{
    for (int step = 0; step < 4 && Focus() != "dcbShipName"; ++step)
        Press(Qt::Key_Tab);
    ASSERT_EQ(Focus(), "dcbShipName");
    Press(key);
}

void HydrostaticDesk::Tell(const std::string &text, const std::string &caption, MsgIcon icon)
{
    mMessages.Expect({.text = text, .icon = icon, .caption = caption});
}

void HydrostaticDesk::Ask(const std::string &text, MsgAnswer answer, MsgButtons buttons, MsgAnswer defaultAnswer)
{
    mMessages.Expect({.text = text, .icon = MsgIcon::Question, .buttons = buttons, .defaultAnswer = defaultAnswer},
                     answer);
}

void HydrostaticDesk::SaveWell()
{
    Tell(kUpdated, "Keelmark", MsgIcon::Information);
    PressSave();
    mMessages.ExpectNoneLeft();
}
