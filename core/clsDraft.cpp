#include "core/clsDraft.h"

#include "core/DateTimeStamp.h"
#include "core/MsgBox.h"
#include "core/ReturnCode.h"

#include <algorithm>

clsDraft::Results::Results()
{
    const Value blank = Value::EmptyText();
    for (Value *value : {&fwdMean, &midMean, &aftMean, &apparentTrim, &fwdCorrection, &midCorrection, &aftCorrection,
                         &fwdTrueDraft, &midTrueDraft, &aftTrueDraft, &trueTrim, &trueMeanDraft, &mctcPlus50IpFactor,
                         &mctcMinus50IpFactor, &ipFactor})
        *value = blank;
    tpcPort = tpcStbd = {blank, blank, blank};
    for (auto &row : hdt)
        row.fill(blank);
    for (auto &row : hdtListCorr)
        row.fill(blank);
    for (auto &row : ipResult)
        row.fill(blank);
    finalResult.fill(blank);
}

clsDraft::clsDraft()
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
    mResults = Results();
    mListCorrected = false;
    mComments.clear();
    InitDeductions();
    mDraftMode = 0;
    mToSave = false;
    mHasRecord = false;
}

void clsDraft::SetNumber(Value &field, const Value &value)
{
    // Compared as text on purpose: 10.50 typed over 10.5 counts as a change.
    if (value.Text() == field.Text())
        return;
    field = Val2Dec(value);
    mToSave = true;
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
}

void clsDraft::ShipID(const Value &shipID)
{
    mShipID = shipID.ToLong();
    // SetShip has told the user of a failure. The ship before must not be calculated with.
    if (mShip.SetShip(mShipID) != ReturnCode::Success)
        mShip = clsShip();
}

void clsDraft::InitDeductions()
try {
    OpenDeductions(-1);
} catch (const RuntimeError &error) {
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  clsDraft::InitDeductions"), MsgIcon::Critical);
}

void clsDraft::OpenDeductions(std::int32_t draftID)
{
    mDeductions.reset();
    Recordset rows;
    rows.Open("SELECT * FROM DeductionTrans WHERE DraftID = " + std::to_string(draftID), CursorType::Keyset,
              LockType::BatchOptimistic);
    std::vector<ItemQuantity> quantities;
    for (const Recordset::Row &row : rows.EachRow())
        quantities.push_back({row.Fields("ItemID"), row.Fields("Quantity")});
    mDeductions = std::move(quantities);
}

void clsDraft::Deduction(const Value &itemID, const Value &quantity)
{
    if (!mDeductions)
        return;
    const auto found = std::ranges::find(*mDeductions, itemID, &ItemQuantity::itemID);
    if (found != mDeductions->end())
        found->quantity = quantity;
    else
        mDeductions->push_back({itemID, quantity});
}

const std::vector<ItemQuantity> &clsDraft::Quantities() const
{
    if (!mDeductions)
        throw RuntimeError(StoreError::WrongState, "The quantities of the draft could not be read.");
    return *mDeductions;
}

void clsDraft::AddQuantities(Value &total)
{
    for (const ItemQuantity &each : Quantities())
        total = total + each.quantity;
}

Value clsDraft::GetTotDeductibles()
{
    try {
        mTotDeductibles = Value::Zero();
        AddQuantities(mTotDeductibles);
    } catch (const RuntimeError &) {
        MsgBox("clsDraft::GetTotDeductibles");
    }
    return mTotDeductibles;
}
