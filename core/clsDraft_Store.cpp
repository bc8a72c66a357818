#include "core/DateTimeStamp.h"
#include "core/MsgBox.h"
#include "core/ReturnCode.h"
#include "core/clsDraft.h"

namespace
{
std::string Dec(const Value &value)
{
    return Value(value.ToDecimal()).SqlText();
}
} // namespace

std::int32_t clsDraft::SaveDraft(std::int32_t recordID)
{
    if (!mToSave)
        return ReturnCode::Success;
    try {
        if (mDraftMode == 0) {
            mDraftID = NewNumber("DraftID", "DraftDetails", "GetNewDraftID");
            if (mDraftID == 0)
                return ReturnCode::SaveDraftFailed;
            gConnection->Execute(InsertStatement(recordID));
            mRecordID = recordID;
        } else {
            gConnection->ExecuteOnOneRow(UpdateStatement());
        }
        SaveDeductions();
        return ReturnCode::Success;
    } catch (const RuntimeError &error) {
        return error.Number() == ErrorNumber::StoreRefusal ? ReturnCode::DuplicateDraft : ReturnCode::SaveDraftFailed;
    }
}

std::int32_t clsDraft::NewNumber(const std::string &column, const std::string &table, std::string_view routine)
try {
    Recordset highest;
    highest.Open("SELECT MAX(" + column + ") AS " + column + " FROM " + table, CursorType::Dynamic,
                 LockType::BatchOptimistic);
    const Value number = highest.Fields(column);
    return number.IsNull() ? 1 : (number + Value(std::int16_t {1})).ToLong();
} catch (const RuntimeError &error) {
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  clsDraft::").append(routine),
           MsgIcon::Critical);
    return 0;
}

std::string clsDraft::InsertStatement(std::int32_t recordID) const
{
    return "INSERT INTO DraftDetails (DraftID,RecordID, SpecificGravity,DraftType, FwdPortDraft, FwdStbdDraft,"
           "MidshipPortDraft, MidshipStbdDraft, AftPortDraft, AftStbdDraft, ListCorrected, NetDisplacement,Comments,"
           "[DateTime]) VALUES("
        + std::to_string(mDraftID) + ", " + std::to_string(recordID) + ", " + Dec(mSpecificGravity) + ", "
        + std::to_string(mDraftType) + "," + Dec(mFwdPort) + ", " + Dec(mFwdStbd) + ", " + Dec(mMidPort) + ", "
        + Dec(mMidStbd) + ", " + Dec(mAftPort) + ", " + Dec(mAftStbd) + ", " + Value(mListCorrected).SqlText() + ", "
        + NetDisplacement().SqlText() + ", " + Quoted(mComments) + ", "
        + DateTimeToStamp(mDSDate + " " + mDSTime).SqlText() + ")";
}

std::string clsDraft::UpdateStatement() const
{
    return "UPDATE DraftDetails set SpecificGravity=" + Dec(mSpecificGravity)
        + ",DraftType=" + std::to_string(mDraftType) + ", FwdPortDraft=" + Dec(mFwdPort)
        + ", FwdStbdDraft=" + Dec(mFwdStbd) + ", MidshipPortDraft=" + Dec(mMidPort)
        + ", MidshipStbdDraft=" + Dec(mMidStbd) + ", AftPortDraft=" + Dec(mAftPort) + ", AftStbdDraft=" + Dec(mAftStbd)
        + ", ListCorrected = " + Value(mListCorrected).SqlText() + ", NetDisplacement = " + NetDisplacement().SqlText()
        + ", Comments=" + Quoted(mComments) + ", [DateTime] =" + DateTimeToStamp(mDSDate + " " + mDSTime).SqlText()
        + " WHERE DraftID = " + std::to_string(mDraftID);
}

void clsDraft::SaveDeductions()
{
    gConnection->Execute("DELETE FROM DeductionTrans WHERE DraftID = " + std::to_string(mDraftID));
    for (const ItemQuantity &each : Quantities())
        if (!IsZero(each.quantity))
            gConnection->Execute("INSERT INTO DeductionTrans (DraftID, ItemID, Quantity) VALUES("
                                 + std::to_string(mDraftID) + ", " + each.itemID.SqlText() + ", "
                                 + each.quantity.SqlText() + ")");
    std::erase_if(*mDeductions, [](const ItemQuantity &each) { return IsZero(each.quantity); });
}

std::int32_t clsDraft::GetDraft(std::int32_t recordID, const std::string &date, const std::string &time)
try {
    const std::string record = std::to_string(recordID);
    std::string statement = "SELECT * FROM DraftDetails AS DD WHERE DD.RecordID = " + record
        + " AND DD.DraftType = " + std::to_string(mDraftType);
    if (!date.empty() || !time.empty())
        statement += " AND [DateTime] = " + DateTimeToStamp(date + " " + time).SqlText();
    else if (mDraftType == DraftTypeCode::Daily)
        statement += " AND [DateTime] = (SELECT MAX([DateTime]) FROM DraftDetails WHERE RecordID = " + record
            + " AND DraftType = 2)";

    Recordset row;
    row.Open(statement, CursorType::Keyset, LockType::Optimistic);
    if (!row.HasRows()) {
        NewDraft();
        return ReturnCode::NoSuchDraft;
    }
    ReadRow(row);
    ReadDeductions();
    mDraftMode = 1;
    mHasRecord = true;
    // Where it cannot be calculated, nothing of the draft before may stand beside its marks.
    mResults = Results();
    static_cast<void>(Calculate(0));
    return ReturnCode::Success;
} catch (const RuntimeError &) {
    return ReturnCode::GetDraftFailed;
}

void clsDraft::ReadRow(const Recordset &row)
{
    mDraftID = row.Fields("DraftID").ToLong();
    mRecordID = row.Fields("RecordID").ToLong();
    mSpecificGravity = row.Fields("SpecificGravity");
    const Value stamp = row.Fields("DateTime");
    mDSDate = StampToDate(stamp);
    mDSTime = StampToTime(stamp);
    mFwdPort = row.Fields("FwdPortDraft");
    mFwdStbd = row.Fields("FwdStbdDraft");
    mMidPort = row.Fields("MidshipPortDraft");
    mMidStbd = row.Fields("MidshipStbdDraft");
    mAftPort = row.Fields("AftPortDraft");
    mAftStbd = row.Fields("AftStbdDraft");
    mListCorrected = row.Fields("ListCorrected").ToBoolean();
    mComments = TextOrEmpty(row.Fields("Comments"));
}

void clsDraft::ReadDeductions()
{
    OpenDeductions(mDraftID);
    if (Quantities().empty()) {
        mTotDeductibles = Value::Zero();
        return;
    }
    // Not reset first: the calculation that follows sets the total right. The screen may have left a text here.
    if (!mTotDeductibles.IsNumber())
        mTotDeductibles = Val2Dec(mTotDeductibles);
    AddQuantities(mTotDeductibles);
}

std::int32_t clsDraft::DeleteDraft()
try {
    if (mDraftMode == 1) {
        if (mDraftType == DraftTypeCode::Initial)
            gConnection->Execute("DELETE FROM DraftParticulars WHERE RecordID = " + std::to_string(mRecordID));
        else
            gConnection->Execute("DELETE FROM DraftDetails AS DD WHERE DD.DraftID = " + std::to_string(mDraftID));
    }
    NewDraft();
    return ReturnCode::Success;
} catch (const RuntimeError &) {
    return ReturnCode::DeleteDraftFailed;
}
