#include "masters/frmDeductionMaster.h"

#include "frame/mdlMain.h"
#include "ui_frmDeductionMaster.h"

#include <QKeyEvent>

frmDeductionMaster::frmDeductionMaster(QWidget *parent)
    : MasterWindow({.select = "SELECT * FROM DeductionMaster",
                    .idColumn = "ItemID",
                    .nameColumn = "ItemName",
                    // Meant: print is on, though nothing prints here and the command ends the program.
                    .newMask = "011111011",
                    .pickedMask = "111111111",
                    .noName = "Please enter item name",
                    .deleteQuestion = "Are you sure to delete the current record ?",
                    .deleteDefault = MsgAnswer::Yes},
                   parent)
    , ui(std::make_unique<Ui::frmDeductionMaster>())
{
    ui->setupUi(this);
    UseControls(*ui->lblHeading, *ui->fmeLegend, *ui->dlstItemMaster, {{*ui->txtItemName, "ItemName"}});
}

frmDeductionMaster::~frmDeductionMaster() = default;

void frmDeductionMaster::Form_Load()
{
    MasterWindow::Form_Load();
    SetHint(BoxHint());
}

QString frmDeductionMaster::BoxHint() const
{
    return NameBox().text().trimmed().isEmpty() ? tr("Type the new Item name and press Enter to save it")
                                                : tr("You can update the Item name and press Enter to store it");
}

bool frmDeductionMaster::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched == ui->txtItemName) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        // Meant: the record goes, not only a letter of its name.
        if (key == Qt::Key_Delete)
            RDelete();
        else if (key == Qt::Key_Return || key == Qt::Key_Enter)
            RSave();
    }
    return MasterWindow::eventFilter(watched, event);
}

void frmDeductionMaster::keyPressEvent(QKeyEvent *event)
{
    // The keys that a control left alone come here too.
    if (hasFocus() && event->key() == Qt::Key_Delete)
        RDelete();
    else
        MasterWindow::keyPressEvent(event);
}

void frmDeductionMaster::Form_Unload(bool & /*cancel*/)
{
    // Meant: the toolbar keeps the last mask until another child sends its own.
    ChildUnloaded(false);
}
