#include "core/MsgBox.h"
#include "core/numeric/NumericText.h"
#include "masters/HydrostaticColumn.h"
#include "masters/frmHDT.h"
#include "ui_frmHDT.h"

namespace
{
bool MayDelete(const char *text)
{
    return MsgBox(Message {
               .text = text, .icon = MsgIcon::Question, .buttons = MsgButtons::YesNo, .defaultAnswer = MsgAnswer::No})
        == MsgAnswer::Yes;
}

/// An empty cell stays empty, which makes the statement fail.
std::string SqlText(const std::string &cell)
{
    return cell.empty() ? cell : FieldSqlText(cell);
}

const char *MaskOf(const Recordset &savedRows)
{
    return savedRows.RecordCount() == 0 ? "010000001" : "010000101";
}
} // namespace

void frmHDT::RSave(bool blnDispMsg)
try {
    gConnection->BeginTrans();
    bool cancel = false;
    txtGridTextbox_Validate(cancel);
    if (cancel) {
        gConnection->RollbackTrans();
        return;
    }
    TakeBox();
    if (mRowStarted) {
        if (!ValidRow()) {
            gConnection->RollbackTrans();
            return;
        }
        CommitRow();
        mRowStarted = false;
    } else if (!mCellChanged && !mTableChanged) {
        MsgBox("No data to save.", MsgIcon::Exclamation);
        gConnection->RollbackTrans();
        return;
    }
    WriteTable();
    gConnection->CommitTrans();
    rsHDT.Requery();
    SendMask(MaskOf(rsHDT));
    mCellChanged = false;
    mTableChanged = false;
    if (blnDispMsg)
        MsgBox("Hydrostatic Data Table for current ship has been updated successfully.", MsgIcon::Information);
} catch (const RuntimeError &error) {
    // The store may have rolled back by itself, or the transaction never began.
    if (gConnection->InTransaction())
        gConnection->RollbackTrans();
    MsgBox(error.Description());
}

void frmHDT::WriteTable()
{
    const std::string ship = std::to_string(mShipID);
    gConnection->Execute("DELETE  FROM HydrostaticDataTable WHERE ShipID = " + ship);
    const std::string insert = "INSERT INTO HydrostaticDataTable"
                               " (ShipID, TMD, Displacement, TPC, MCTC, LCB, LCF, KM, KB)"
                               " VALUES("
        + ship;
    for (std::int32_t row = 0; row < arrHDT.UpperRow(); ++row) {
        std::string statement = insert;
        for (int column = 0; column < HydrostaticColumn::Count; ++column)
            statement.append(", ").append(SqlText(arrHDT.Cell(row, column)));
        gConnection->Execute(statement.append(")"));
    }
}

void frmHDT::RDelete()
try {
    if (!MayDelete("This action will permanently remove the Hydrostatic data table for the current ship.\n\n"
                   "Are you sure to continue ?"))
        return;
    gConnection->Execute("DELETE FROM HydrostaticDataTable WHERE ShipID = " + ui->dcbShipName->BoundValue().SqlText());
    SendMask("110000001");
    rsHDT.Requery();
    mRowCount = 0;
    EmptyTable();
    // A picked row went with them: what is typed now is a new one.
    mEditRow = 0;
    ClearEntryRow();
} catch (const RuntimeError &) {
    MsgBox("An internal error has occured while deleting the Hydrostatic data for the current ship.\n\n"
           "Please contact us with the error no. on the titlebar of this dialog box.",
           MsgIcon::Exclamation, "Keelmark-10019");
}

void frmHDT::tdbHDT_DeleteDown()
{
    const std::optional<std::int32_t> row = ui->tdbHDT->Bookmark();
    if (!row || arrHDT.IsEmptyRow(*row) || !MayDelete("Are you sure to delete the current row ?"))
        return;
    ui->tdbHDT->Delete();
    // mRowCount stays, so that a row typed after this leaves an empty one among the rows, which the store refuses: the
    // table is to be saved and picked again first. This is meant.
    mTableChanged = true;
    if (mEditRow == 1 && mPickedRow > *row)
        --mPickedRow;
    if (mEditRow == 1 && mPickedRow == *row) {
        // The press that made the row current put it into the entry row too. Left there, a save would write it over
        // the row that has taken its place.
        mEditRow = 0;
        mRowStarted = false;
        ClearEntryRow();
        ui->tdbHDT->setFocus();
    }
    const std::optional<std::int32_t> current = ui->tdbHDT->Bookmark();
    if ((!current || arrHDT.IsEmptyRow(*current)) && arrHDT.UpperRow() < 1)
        SendMask("110000001");
}

void frmHDT::RNew()
{
    SendMask(MaskOf(rsHDT));
    ClearEntryRow();
    mEditRow = 0;
}

void frmHDT::RClose()
{
    if (mTableChanged && MaySaveChanges())
        RSave(false);
}
