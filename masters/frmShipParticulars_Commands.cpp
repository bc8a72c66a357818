#include "core/MsgBox.h"
#include "core/ReturnCode.h"
#include "core/numeric/NumericText.h"
#include "frame/mdlMain.h"
#include "frame/store/Connection.h"
#include "masters/frmShipParticulars.h"
#include "ui_frmShipParticulars.h"

namespace
{
constexpr std::string_view kExistingMask = "110000101";
constexpr std::string_view kSaveFailed = "A serious error has occured while saving the current record.";
constexpr std::string_view kDeleteFailed = "A serious error has occured while deleting the current record.";
constexpr const char *kUpdateQuestion = "Are you sure to update the current record ?";

void TellFailure(std::string_view text, std::string_view caption)
{
    MsgBox(std::string(text)
               .append(kTwoLineBreaks)
               .append("Please contact us with the error no. on the titlebar of this dialog box."),
           MsgIcon::Exclamation, caption);
}

void TellNotWritten()
{
    TellFailure(kSaveFailed, "Keelmark-10088");
}

MsgAnswer Ask(const char *question, MsgButtons buttons, MsgAnswer defaultAnswer = MsgAnswer::Yes)
{
    return MsgBox({.text = question, .icon = MsgIcon::Question, .buttons = buttons, .defaultAnswer = defaultAnswer});
}
} // namespace

std::vector<frmShipParticulars::ColumnValue> frmShipParticulars::EnteredValues() const
{
    std::vector<ColumnValue> values {{"ShipName", Quoted(ui->cmbShipName->Text().toStdString())},
                                     {"PortOfRegistry", ui->dcbPortOfRegistry->BoundValue().SqlText()}};
    for (const TextField &field : kTextFields) {
        const std::string text = ((*ui).*field.box)->text().toStdString();
        values.emplace_back(field.column, field.isNumber ? FieldSqlText(text) : Quoted(text));
    }
    return values;
}

std::string frmShipParticulars::InsertStatement() const
{
    std::string columns;
    std::string values;
    for (const auto &[column, value] : EnteredValues()) {
        const char *separator = columns.empty() ? "" : ", ";
        columns.append(separator).append(column);
        values.append(separator).append(value);
    }
    return "INSERT INTO Ship (" + columns + ") VALUES (" + values + ")";
}

std::string frmShipParticulars::UpdateStatement() const
{
    std::string changes;
    for (const auto &[column, value] : EnteredValues())
        changes.append(changes.empty() ? "" : ", ").append(column).append(" = ").append(value);
    return "UPDATE Ship SET " + changes + " WHERE ShipID = " + rsShip.Fields("ShipID").SqlText();
}

std::int32_t frmShipParticulars::Save()
{
    try {
        gConnection->ExecuteOnOneRow(mRecordMode == 1 ? UpdateStatement() : InsertStatement());
        return ReturnCode::Success;
    } catch (const RuntimeError &) {
        return ReturnCode::ShipNotWritten;
    }
}

void frmShipParticulars::RSave()
{
    try {
        if (!ValidValues())
            return;
        if (!mDirty) {
            // Meant: this one box bears the name of the other edition.
            MsgBox("No changes to save..!", MsgIcon::Exclamation, "Bowmark");
            return;
        }
        if (!ValidShip()) {
            TellExclamation(mFormMessage);
            return;
        }
        const char *question = mRecordMode == 1 ? kUpdateQuestion : "Are you sure to save the current record ?";
        switch (Ask(question, MsgButtons::YesNoCancel)) {
        case MsgAnswer::Yes:
            KeepChanges();
            break;
        case MsgAnswer::No:
            DropChanges();
            break;
        default:
            break;
        }
    } catch (const RuntimeError &) {
        TellFailure(kSaveFailed, "Keelmark-10007");
    }
}

void frmShipParticulars::KeepChanges()
{
    if (Save() == ReturnCode::ShipNotWritten) {
        TellNotWritten();
        return;
    }
    rsShip.Requery();
    FillShipCombo();
    if (mRecordMode == 0) {
        // Meant: the new ship is on show, but the first one is current until the user picks another.
        rsShip.MoveFirst();
        TellExclamation("One record has been saved successfully.");
    } else {
        TellExclamation("One record has been updated successfully.");
    }
    mRecordMode = 1;
    SendMask(kExistingMask);
    ui->cmbShipName->show();
    mDirty = false;
}

// Meant: the first ship comes up, whichever was being edited, and a new record stays a new one.
void frmShipParticulars::DropChanges()
{
    mLoading = true;
    if (rsShip.RecordCount() > 0)
        ShowFirstShip();
    else
        ClearShip();
    mLoading = false;
    SendMask(kExistingMask);
    mDirty = false;
}

void frmShipParticulars::RDelete()
{
    try {
        const MsgAnswer answer = Ask("Deletion of this ship will also delete all the drafts and Hydrostatic Data "
                                     "corresponding to it.\n\nAre you sure to delete the current ship ?",
                                     MsgButtons::YesNo, MsgAnswer::No);
        if (answer == MsgAnswer::Yes)
            DeleteShip();
    } catch (const RuntimeError &) {
        TellFailure(kDeleteFailed, "Keelmark-10008");
    }
}

void frmShipParticulars::DeleteShip()
{
    gConnection->Execute("DELETE FROM Ship WHERE ShipID = " + rsShip.Fields("ShipID").SqlText());
    rsShip.Requery();
    mLoading = true;
    if (rsShip.RecordCount() > 0)
        ShowFirstShip();
    else
        ClearShip();
    FillShipCombo();
    mLoading = false;
    TellExclamation("One record has been deleted successfully.");
}

void frmShipParticulars::RNew()
{
    try {
        if (mDirty && !SaveBeforeNew())
            return;
        SendMask("011001011");
        mRecordMode = 0;
        mDirty = false;
        mLoading = true;
        ClearShip();
        mLoading = false;
    } catch (const RuntimeError &) {
        TellFailure(kSaveFailed, "Keelmark-10008");
    }
}

bool frmShipParticulars::SaveBeforeNew()
{
    if (!ValidShip()) {
        // Meant: what cannot be saved is told of and then given up.
        TellExclamation(mFormMessage);
        return true;
    }
    if (Ask(kUpdateQuestion, MsgButtons::YesNo) != MsgAnswer::Yes)
        return true;
    if (Save() == ReturnCode::ShipNotWritten) {
        TellNotWritten();
        return false;
    }
    rsShip.Requery();
    FillShipCombo();
    return true;
}

void frmShipParticulars::Form_Unload(bool &cancel)
{
    if (mDirty && Ask("Save current ship particulars ?", MsgButtons::YesNo) == MsgAnswer::Yes) {
        if (!ValidShip()) {
            TellExclamation(mFormMessage);
            cancel = true;
            return;
        }
        if (Save() == ReturnCode::ShipNotWritten) {
            TellNotWritten();
            // Meant: the window goes without being counted out.
            return;
        }
    }
    ChildUnloaded();
}
