#include "core/MsgBox.h"
#include "core/numeric/NumericText.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/ScreenText.h"
#include "masters/HydrostaticColumn.h"
#include "masters/frmHDT.h"
#include "ui_frmHDT.h"

#include <QKeyEvent>

namespace
{
constexpr int kEntryRow = 1;
constexpr int kCellPlaces = 4;
constexpr std::string_view kCaption = "Hydrostatic Data Table";

/// Strictly between the column's bounds. A number too large for a decimal is not.
std::optional<Value> AcceptedNumber(const std::string &text, const HydrostaticColumn &column)
{
    const std::optional<Decimal> number = TypedNumber(text);
    if (number && *number > Decimal(column.above) && *number < Decimal(column.below))
        return Value(*number);
    return std::nullopt;
}
} // namespace

QString frmHDT::EntryCell(int column) const
{
    return ui->fgrdInsertHD->Cell(kEntryRow, column);
}

void frmHDT::EntryCell(int column, const QString &text)
{
    ui->fgrdInsertHD->SetCell(kEntryRow, column, text);
}

void frmHDT::fgrdInsertHD_EnterCell()
{
    Grid &grid = *ui->fgrdInsertHD;
    const HydrostaticColumn &column = HydrostaticColumn::At(grid.CurrentColumn());
    lblHint->setText(ScreenText(column.hint));
    txtGridTextbox->setAccessibleName(ScreenText(column.header));
    txtGridTextbox->Place(grid, kEntryRow, grid.CurrentColumn());
    // A click on the heading of the present cell comes here without having left it: what is being typed stays.
    const QString text = EntryCell(grid.CurrentColumn());
    if (!text.isEmpty() && txtGridTextbox->text().isEmpty())
        txtGridTextbox->setText(text);
    txtGridTextbox->setFocus();
    txtGridTextbox->selectAll();
}

void frmHDT::fgrdInsertHD_LeaveCell()
{
    TakeBox();
    txtGridTextbox->clear();
}

void frmHDT::TakeBox()
{
    const int column = ui->fgrdInsertHD->CurrentColumn();
    const QString text = txtGridTextbox->text().trimmed();
    if (text.compare(EntryCell(column), Qt::CaseInsensitive) == 0)
        return;
    if (text.isEmpty()) {
        EntryCell(column, QString());
        return;
    }
    // Fewer places than the check leaves a draft: so a draft is stored with four.
    EntryCell(column, ScreenText(Round(DecimalOf(text), kCellPlaces)));
    mCellChanged = true;
}

bool frmHDT::txtGridTextbox_KeyDown(const QKeyEvent &event)
{
    if (event.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Right:
        return MoveEntry(+1);
    case Qt::Key_Left:
        return MoveEntry(-1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!MoveEntry(+1))
            EndEntry();
        return true;
    default:
        return false;
    }
}

/// False where the check lets the entry go but there is no column on that side.
bool frmHDT::MoveEntry(int step)
{
    bool cancel = false;
    txtGridTextbox_Validate(cancel);
    if (cancel)
        return true;
    const int column = ui->fgrdInsertHD->CurrentColumn() + step;
    if (column < 0 || column > HydrostaticColumn::Last)
        return false;
    ui->fgrdInsertHD->SetCurrent(kEntryRow, column);
    return true;
}

void frmHDT::EndEntry()
{
    TakeBox();
    CommitRow();
    mRowStarted = false;
}

void frmHDT::txtGridTextbox_Validate(bool &cancel)
try {
    const HydrostaticColumn &column = HydrostaticColumn::At(ui->fgrdInsertHD->CurrentColumn());
    const std::string text = txtGridTextbox->text().trimmed().toStdString();
    if (text.empty())
        return;
    const auto refuse = [&](std::string_view message) {
        TellExclamation(message, kCaption);
        cancel = true;
        txtGridTextbox->clear();
    };
    if (!IsNumericText(text)) {
        refuse("Invalid value. Only numbers are allowed.");
        return;
    }
    const std::optional<Value> number = AcceptedNumber(text, column);
    if (!number) {
        refuse(column.outOfRange);
        return;
    }
    ShowValue(*txtGridTextbox, Round(*number, column.places));
    mRowStarted = true;
} catch (const RuntimeError &) {
    TellExclamation("A serious error has occured while saving the current record.\n\n"
                    "Please contact us with the error no. on the titlebar of this dialog box.",
                    "Keelmark-10008");
}

bool frmHDT::ValidRow()
{
    for (int column = 0; column < HydrostaticColumn::Count; ++column) {
        if (!IsBlank(EntryCell(column)))
            continue;
        TellExclamation(
            std::string("Value of ").append(HydrostaticColumn::At(column).header).append(" can't be left blank."),
            kCaption);
        ui->fgrdInsertHD->SetCurrent(kEntryRow, column);
        return false;
    }
    return true;
}

bool frmHDT::IsNewTMD(const std::string &value) const
{
    return !arrHDT.Find(HydrostaticColumn::HydDraft, value);
}

void frmHDT::CommitRow()
{
    if (!ValidRow())
        return;
    const std::string draft = EntryCell(HydrostaticColumn::HydDraft).toStdString();
    const bool isNew = IsNewTMD(draft);
    if (mEditRow == 0) {
        if (isNew)
            AppendRow();
        else if (!ReplaceExisting())
            return;
    } else if (!isNew) {
        TellExclamation("Updation error.\n\n"
                        "Hydrostatic data table already contains a record corresponding to the entered TMD");
        return;
    } else {
        // Meant: the row that is current by now, whichever was picked.
        if (const std::optional<std::int32_t> row = ui->tdbHDT->Bookmark())
            WriteEntry(*row);
        mEditRow = 0;
    }
    arrHDT.Sort(0, mRowCount - 1, HydrostaticColumn::HydDraft);
    ui->tdbHDT->ReBind();
    if (const std::optional<std::int32_t> row = arrHDT.Find(HydrostaticColumn::HydDraft, draft))
        ui->tdbHDT->Bookmark(*row);
    mTableChanged = true;
    ClearEntryRow();
}

void frmHDT::AppendRow()
{
    ++mRowCount;
    arrHDT.Redimension(0, mRowCount, 0, HydrostaticColumn::Last);
    WriteEntry(mRowCount - 1);
}

bool frmHDT::ReplaceExisting()
{
    const MsgAnswer answer = MsgBox(
        Message {.text = "The values corresponding to this TMD already exists in the Hydrostatic Data Table.\n\n"
                         "Would you like to like to replace the existing one ?",
                 .icon = MsgIcon::Question,
                 .buttons = MsgButtons::YesNoCancel,
                 .defaultAnswer = MsgAnswer::No});
    if (answer == MsgAnswer::Yes) {
        WriteEntry(mReplaceRow);
        return true;
    }
    if (answer == MsgAnswer::No) {
        EntryCell(ui->fgrdInsertHD->CurrentColumn(), txtGridTextbox->text());
        ui->fgrdInsertHD->SetCurrent(kEntryRow, 0);
    } else {
        ClearEntryRow();
    }
    return false;
}

void frmHDT::WriteEntry(std::int32_t row)
{
    for (int column = 0; column < HydrostaticColumn::Count; ++column)
        arrHDT.Cell(row, column, EntryCell(column).toStdString());
}

void frmHDT::ClearEntryRow()
{
    for (int column = 0; column < HydrostaticColumn::Count; ++column)
        EntryCell(column, QString());
    txtGridTextbox->clear();
    ui->fgrdInsertHD->SetCurrent(kEntryRow, 0);
    txtGridTextbox->setFocus();
}

void frmHDT::tdbHDT_PostEvent(int /*message*/)
{
    const std::optional<std::int32_t> row = ui->tdbHDT->Bookmark();
    if (!row || arrHDT.IsEmptyRow(*row))
        return;
    mEditRow = 1;
    mPickedRow = *row;
    for (int column = 0; column < HydrostaticColumn::Count; ++column)
        EntryCell(column, ScreenText(arrHDT.Cell(*row, column)));
    txtGridTextbox->setText(EntryCell(ui->fgrdInsertHD->CurrentColumn()));
    SendMask("110000101");
}
