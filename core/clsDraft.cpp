#include "core/clsDraft.h"

#include "core/DateTimeStamp.h"
#include "core/MsgBox.h"

clsDraft::clsDraft()
    : mDeductions(std::make_unique<Recordset>())
    , mRow(std::make_unique<Recordset>())
{
    NewDraft();
    InitDeductions();
    mToSave = false;
    mHasRecord = false;
}

void clsDraft::NewDraft()
{
    const Value blank = Value::EmptyText();
    mDraftID = -1;
    mRecordID = -1;
    mSpecificGravity = blank;
    const ClockTime now = Now();
    mDSDate = DateText(now);
    mDSTime = TimeText(now);
    mFwdPort = mFwdStbd = mMidPort = mMidStbd = mAftPort = mAftStbd = blank;
    ClearResults();
    mListCorrected = false;
    mComments.clear();
    InitDeductions();
    mDraftMode = 0;
    mToSave = false;
    mHasRecord = false;
}

void clsDraft::ClearResults()
{
    const Value blank = Value::EmptyText();
    mFwdMean = mMidMean = mAftMean = mApparentTrim = blank;
    mFwdCorrection = mMidCorrection = mAftCorrection = blank;
    mFwdTrueDraft = mMidTrueDraft = mAftTrueDraft = mTrueTrim = mTrueMeanDraft = blank;
    mMCTCPlus50IpFactor = mMCTCMinus50IpFactor = mIpFactor = blank;
    mTPCPort = mTPCStbd = {blank, blank, blank};
    for (auto &row : mHDT)
        row.fill(blank);
    for (auto &row : mHDTListCorr)
        row.fill(blank);
    for (auto &row : mIpResult)
        row.fill(blank);
    mFinalResult.fill(blank);
}

void clsDraft::SetNumber(Value &field, const Value &value)
{
    // Compared as text on purpose: 10.50 typed over 10.5 counts as a change.
    if (value.Text() == field.Text())
        return;
    field = Val2Dec(value);
    mToSave = true;
    mChangedSinceRun = true;
}

void clsDraft::SetText(std::string &field, std::string_view text)
{
    if (field == text)
        return;
    field = text;
    mToSave = true;
}

void clsDraft::ListCorrected(bool corrected)
{
    if (mListCorrected == corrected)
        return;
    mListCorrected = corrected;
    mToSave = true;
    mListChangedSinceRun = true;
}

void clsDraft::ShipID(const Value &shipID)
{
    mShipID = shipID.ToLong();
    // SetShip has told the user of a failure.
    static_cast<void>(mShip.SetShip(mShipID));
}

void clsDraft::InitDeductions()
try {
    OpenDeductions(-1);
} catch (const RuntimeError &error) {
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  clsDraft::InitDeductions"), MsgIcon::Critical);
}

void clsDraft::OpenDeductions(std::int32_t draftID)
{
    if (mDeductions->State() == 1)
        mDeductions->Close();
    mDeductions->Open("SELECT * FROM DeductionTrans WHERE DraftID = " + std::to_string(draftID), CursorType::Keyset,
                      LockType::BatchOptimistic);
}

void clsDraft::AddQuantities(Value &total)
{
    if (mDeductions->RecordCount() < 1)
        return;
    for (mDeductions->MoveFirst(); !mDeductions->AtEnd(); mDeductions->MoveNext())
        total = total + mDeductions->Fields("Quantity");
}

bool clsDraft::IsOutdated()
{
    if (NetDisplacement().IsAbsent())
        return false;
    Value deducted = std::int16_t {0};
    if (mDeductions->State() == 1)
        AddQuantities(deducted);
    return mChangedSinceRun || mListChangedSinceRun || mShipID != mShipOfRun || !(deducted == mFinalResult[8]);
}

Value clsDraft::GetTotDeductibles()
{
    try {
        mTotDeductibles = std::int16_t {0};
        AddQuantities(mTotDeductibles);
    } catch (const RuntimeError &) {
        MsgBox("clsDraft::GetTotDeductibles");
    }
    return mTotDeductibles;
}
