#include "survey/DeductionGrid.h"

#include "core/MsgBox.h"
#include "core/clsDraft.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/Grid.h"
#include "frame/controls/ScreenText.h"

#include <QKeyEvent>

#include <algorithm>

namespace
{
constexpr int kQuantityColumn = 1;
constexpr int kQuantityPlaces = 4;
} // namespace

DeductionGrid::DeductionGrid(Grid &grid)
    : fgrdDeduction(grid)
    , txtGridTextbox(new FloatingEditor(grid.parentWidget()))
{
    txtGridTextbox->setObjectName(QStringLiteral("txtGridTextbox"));
    txtGridTextbox->setAccessibleName(tr("Quantity of the deductible, tonnes"));
    txtGridTextbox->setMaxLength(10);
    txtGridTextbox->OnKeyDown([this](const QKeyEvent &event) { return KeyDown(event); });
    // Until it is laid over a cell.
    txtGridTextbox->hide();
    grid.SetSize(0, 2);
    connect(&grid, &Grid::EnterCell, this, &DeductionGrid::EnterCell);
    connect(&grid, &Grid::LeaveCell, this, &DeductionGrid::LeaveCell);
}

void DeductionGrid::Rebuild()
{
    mWithheld = false;
    mRsItems.Reopen("SELECT ItemID, ItemName FROM DeductionMaster", CursorType::Dynamic, LockType::BatchOptimistic);
    const int items = mRsItems.RecordCount();
    if (items == 0) {
        fgrdDeduction.hide();
        txtGridTextbox->hide();
        return;
    }
    const int current = std::min(fgrdDeduction.CurrentRow(), items - 1);
    fgrdDeduction.SetSize(items, 2);
    fgrdDeduction.SetFixed(0, 1);
    for (int row = 0; const Recordset::Row &item : mRsItems.EachRow())
        fgrdDeduction.SetCell(row++, 0, ScreenText(item.Fields("ItemName")));
    fgrdDeduction.PlaceCurrent(current, kQuantityColumn);
    txtGridTextbox->clear();
    txtGridTextbox->Place(fgrdDeduction, fgrdDeduction.CurrentRow(), fgrdDeduction.CurrentColumn());
}

void DeductionGrid::EnterCell()
{
    txtGridTextbox->Place(fgrdDeduction, fgrdDeduction.CurrentRow(), fgrdDeduction.CurrentColumn());
    const QString text = fgrdDeduction.Cell(fgrdDeduction.CurrentRow(), kQuantityColumn);
    if (!text.isEmpty())
        txtGridTextbox->setText(text);
    txtGridTextbox->setFocus();
    // The editor has had the focus all along when it comes from another row: what is typed must replace the figure.
    txtGridTextbox->selectAll();
}

void DeductionGrid::LeaveCell()
{
    const int row = fgrdDeduction.CurrentRow();
    const QString text = txtGridTextbox->text();
    // Blank from a refusal is not cleared.
    if (mRefusalBlanked && text.isEmpty())
        return;
    if (text.trimmed().compare(fgrdDeduction.Cell(row, kQuantityColumn), Qt::CaseInsensitive) != 0)
        fgrdDeduction.SetCell(row, kQuantityColumn,
                              text.isEmpty() ? QString() : ScreenText(Round(DecimalOf(text), kQuantityPlaces)));
    txtGridTextbox->clear();
}

void DeductionGrid::Validate(bool &cancel)
try {
    const int row = fgrdDeduction.CurrentRow();
    // Blank from a refusal is not cleared: the cell keeps its quantity.
    if (mRefusalBlanked && txtGridTextbox->text().isEmpty())
        txtGridTextbox->setText(fgrdDeduction.Cell(row, kQuantityColumn));
    mRefusalBlanked = false;
    const QString text = txtGridTextbox->text().trimmed();
    if (text == fgrdDeduction.Cell(row, kQuantityColumn))
        return;
    if (text.isEmpty()) {
        // A cleared cell alone is no change to the draft.
        fgrdDeduction.SetCell(row, kQuantityColumn, QString());
        return;
    }
    if (!TakeNumber(*txtGridTextbox, mRule, cancel)) {
        mRefusalBlanked = true;
        return;
    }
    fgrdDeduction.SetCell(row, kQuantityColumn, txtGridTextbox->text());
    emit Changed();
} catch (const RuntimeError &) {
    MsgBox("frmDraftSurvey::txtGridTextbox_Validate");
}

bool DeductionGrid::EnterPressed()
{
    bool cancel = false;
    Validate(cancel);
    if (cancel)
        return false;
    const bool isLast = fgrdDeduction.CurrentRow() >= fgrdDeduction.rowCount() - 1;
    if (!isLast)
        MoveRow(+1);
    return isLast;
}

bool DeductionGrid::KeyDown(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Up && event.key() != Qt::Key_Down) {
        const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        if (!event.text().isEmpty() && !isCommand)
            mRefusalBlanked = false;
        return false;
    }
    bool cancel = false;
    Validate(cancel);
    if (!cancel)
        MoveRow(event.key() == Qt::Key_Up ? -1 : +1);
    return true;
}

void DeductionGrid::MoveRow(int step)
{
    const int row = fgrdDeduction.CurrentRow() + step;
    if (row >= 0 && row < fgrdDeduction.rowCount())
        fgrdDeduction.SetCurrent(row, kQuantityColumn);
}

bool DeductionGrid::HasRows() const
{
    return txtGridTextbox->isVisible();
}

void DeductionGrid::Enter()
{
    fgrdDeduction.SetCurrent(0, kQuantityColumn);
    txtGridTextbox->setFocus();
}

void DeductionGrid::Blank()
{
    mRefusalBlanked = false;
    for (int row = 0; row < fgrdDeduction.rowCount(); ++row)
        fgrdDeduction.SetCell(row, kQuantityColumn, QString());
    txtGridTextbox->clear();
}

void DeductionGrid::Show(const clsDraft &draft, bool zeroFilled)
{
    mWithheld = false;
    Blank();
    const std::vector<ItemQuantity> *quantities = draft.Deductions();
    if (!draft.IsThere() || !mRsItems.IsOpen() || !quantities)
        return;
    if (quantities->empty() ? draft.HasRecord() : zeroFilled)
        for (int row = 0; row < fgrdDeduction.rowCount(); ++row)
            fgrdDeduction.SetCell(row, kQuantityColumn, QStringLiteral("0"));
    for (int row = 0; const Recordset::Row &item : mRsItems.EachRow()) {
        // An item deleted from the master drops out of the grid.
        const auto found = std::ranges::find(*quantities, item.Fields("ItemID"), &ItemQuantity::itemID);
        if (found != quantities->end()) {
            const bool blank = IsZero(found->quantity) && !draft.HasRecord();
            fgrdDeduction.SetCell(row, kQuantityColumn, blank ? QString() : ScreenText(found->quantity));
        }
        ++row;
    }
    txtGridTextbox->setText(fgrdDeduction.Cell(fgrdDeduction.CurrentRow(), kQuantityColumn));
}

void DeductionGrid::Collect(clsDraft &draft)
{
    bool refused = false;
    Validate(refused);
    if (refused)
        return;
    if (!mRsItems.IsOpen())
        return;
    for (int row = 0; const Recordset::Row &item : mRsItems.EachRow()) {
        const QString quantity = fgrdDeduction.Cell(row++, kQuantityColumn);
        if (!mWithheld || !quantity.isEmpty())
            draft.Deduction(item.Fields("ItemID"), DecimalOrZero(quantity));
    }
}
