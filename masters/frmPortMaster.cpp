#include "masters/frmPortMaster.h"

#include "frame/mdlMain.h"
#include "ui_frmPortMaster.h"

#include <QKeyEvent>

frmPortMaster::frmPortMaster(QWidget *parent)
    : MasterWindow({.select = "SELECT * FROM Port ORDER BY PortName",
                    .idColumn = "PortID",
                    .nameColumn = "PortName",
                    .newMask = "011001011",
                    .pickedMask = "111001111",
                    .noName = "Please enter port name",
                    .deleteQuestion = "Deletion of this port will also delete all the ships and drafts corresponding "
                                      "to it.\n\nAre you sure to delete the selected port ?",
                    .deleteDefault = MsgAnswer::No},
                   parent)
    , ui(std::make_unique<Ui::frmPortMaster>())
{
    ui->setupUi(this);
    UseControls(*ui->lblHeading, *ui->fmeLegend, *ui->dlstPortMaster,
                {{*ui->txtPortName, "PortName"}, {*ui->txtCity, "City"}, {*ui->txtCountry, "Country"}});
}

frmPortMaster::~frmPortMaster() = default;

bool frmPortMaster::Form_KeyPress(QKeyEvent &event)
{
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    // Meant: so Enter never saves here, whatever the hint says.
    SendTab();
    return true;
}

bool frmPortMaster::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched == ui->txtCity)
        TellHint(watched);
    return MasterWindow::eventFilter(watched, event);
}

QString frmPortMaster::BoxHint() const
{
    return tr("Type the new Port name and press Enter to save it");
}

void frmPortMaster::TellLoadFailure()
{
    MsgBox("A serious internal error has occured.\n\n" + std::string(kContactUs), MsgIcon::Exclamation,
           "Keelmark-10014");
}

void frmPortMaster::AfterSave()
{
    NameBox().setFocus();
}

void frmPortMaster::Form_Unload(bool & /*cancel*/)
{
    ChildUnloaded(true, true);
}
