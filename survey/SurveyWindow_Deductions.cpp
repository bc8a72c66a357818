#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "frame/controls/FloatingEditor.h"

#include <QKeyEvent>

namespace
{
constexpr int kQuantityColumn = 1;
constexpr int kQuantityPlaces = 4;
} // namespace

void SurveyWindow::fgrdDeduction_EnterCell()
{
    Grid &grid = *ui->fgrdDeduction;
    txtGridTextbox->Place(grid, grid.CurrentRow(), grid.CurrentColumn());
    const QString text = grid.Cell(grid.CurrentRow(), kQuantityColumn);
    if (!text.isEmpty())
        txtGridTextbox->setText(text);
    txtGridTextbox->setFocus();
    // The editor has had the focus all along when it comes from another row: what is typed must replace the figure.
    txtGridTextbox->selectAll();
}

void SurveyWindow::fgrdDeduction_LeaveCell()
{
    Grid &grid = *ui->fgrdDeduction;
    const QString text = txtGridTextbox->text();
    if (text.trimmed().compare(grid.Cell(grid.CurrentRow(), kQuantityColumn), Qt::CaseInsensitive) != 0)
        grid.SetCell(grid.CurrentRow(), kQuantityColumn,
                     text.isEmpty() ? QString() : ScreenText(Round(DecimalOf(text), kQuantityPlaces)));
    txtGridTextbox->clear();
}

void SurveyWindow::txtGridTextbox_Validate(bool &cancel)
try {
    Grid &grid = *ui->fgrdDeduction;
    const int row = grid.CurrentRow();
    // Blank from a refusal is not cleared: the cell keeps its quantity.
    if (mRefusalBlanked && txtGridTextbox->text().isEmpty())
        txtGridTextbox->setText(grid.Cell(row, kQuantityColumn));
    mRefusalBlanked = false;
    const QString text = txtGridTextbox->text().trimmed();
    if (text == grid.Cell(row, kQuantityColumn))
        return;
    if (text.isEmpty()) {
        // A cleared cell alone is no change to the draft.
        grid.SetCell(row, kQuantityColumn, QString());
        return;
    }
    if (!TakeNumber(*txtGridTextbox, RuleOf(txtGridTextbox->objectName()), cancel)) {
        mRefusalBlanked = true;
        return;
    }
    grid.SetCell(row, kQuantityColumn, txtGridTextbox->text());
    DraftOf(ActiveStage()).ToSave(true);
} catch (const RuntimeError &) {
    MsgBox("frmDraftSurvey::txtGridTextbox_Validate");
}

void SurveyWindow::txtGridTextbox_KeyPress()
{
    bool cancel = false;
    txtGridTextbox_Validate(cancel);
    if (cancel)
        return;
    Grid &grid = *ui->fgrdDeduction;
    if (grid.CurrentRow() < grid.rowCount() - 1)
        MoveDeductionRow(+1);
    else
        SendTab();
}

bool SurveyWindow::txtGridTextbox_KeyDown(const QKeyEvent &event)
{
    const int key = event.key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        if (!event.text().isEmpty() && !isCommand)
            mRefusalBlanked = false;
        return false;
    }
    bool cancel = false;
    txtGridTextbox_Validate(cancel);
    if (!cancel)
        MoveDeductionRow(key == Qt::Key_Up ? -1 : +1);
    return true;
}

void SurveyWindow::MoveDeductionRow(int step)
{
    Grid &grid = *ui->fgrdDeduction;
    const int row = grid.CurrentRow() + step;
    if (row >= 0 && row < grid.rowCount())
        grid.SetCurrent(row, kQuantityColumn);
}

void SurveyWindow::ClearDeductions()
{
    mRefusalBlanked = false;
    Grid &grid = *ui->fgrdDeduction;
    for (int row = 0; row < grid.rowCount(); ++row)
        grid.SetCell(row, kQuantityColumn, QString());
    txtGridTextbox->clear();
}

void SurveyWindow::ShowDeductions(Recordset &deductions)
{
    mQuantitiesWithheld = false;
    ClearDeductions();
    Grid &grid = *ui->fgrdDeduction;
    const clsDraft &draft = DraftOf(ActiveStage());
    if (!draft.IsThere() || mRsItems.State() != 1 || deductions.State() != 1)
        return;
    if (deductions.RecordCount() < 1) {
        if (draft.HasRecord())
            for (int row = 0; row < grid.rowCount(); ++row)
                grid.SetCell(row, kQuantityColumn, QStringLiteral("0"));
    } else {
        PrepareQuantities();
        for (deductions.MoveFirst(); !deductions.AtEnd(); deductions.MoveNext()) {
            int row = 0;
            const Value item = deductions.Fields("ItemID");
            for (mRsItems.MoveFirst(); !mRsItems.AtEnd() && !(mRsItems.Fields("ItemID") == item); mRsItems.MoveNext())
                ++row;
            // An item deleted from the master drops out of the grid.
            if (mRsItems.AtEnd())
                continue;
            const Value quantity = deductions.Fields("Quantity");
            const bool blank = quantity == Value(std::int16_t {0}) && !draft.HasRecord();
            grid.SetCell(row, kQuantityColumn, blank ? QString() : ScreenText(quantity));
        }
    }
    txtGridTextbox->setText(grid.Cell(grid.CurrentRow(), kQuantityColumn));
}

void SurveyWindow::CollectDeductions(const Stage &stage)
{
    bool refused = false;
    txtGridTextbox_Validate(refused);
    if (refused)
        return;
    Recordset &deductions = DraftOf(stage).Deductions();
    if (mRsItems.State() != 1 || deductions.State() != 1)
        return;
    int row = -1;
    for (mRsItems.MoveFirst(); !mRsItems.AtEnd(); mRsItems.MoveNext()) {
        const QString quantity = ui->fgrdDeduction->Cell(++row, kQuantityColumn);
        if (mQuantitiesWithheld && quantity.isEmpty())
            continue;
        const Value item = mRsItems.Fields("ItemID");
        deductions.Find("ItemID = " + item.SqlText(), 0, Recordset::kSearchForward, Recordset::kBookmarkFirst);
        if (deductions.AtEnd()) {
            deductions.AddNew();
            deductions.Fields("ItemID", item);
        }
        deductions.Fields("Quantity", DecimalOrZero(quantity));
        deductions.Update();
    }
}
