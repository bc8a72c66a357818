#include "core/MsgBox.h"
#include "core/ReturnCode.h"
#include "core/clsDraft.h"

#include <algorithm>
#include <string>

namespace
{
constexpr std::string_view kAboveTable
    = "Value of TMD > calculated TMD does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kBelowTable
    = "Value of TMD < calculated TMD does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kNoMCTCPlus50 = "The value of Hydrostatic draft corresponding to MCTC+50 is higher than the "
                                           "value of TMD that exists in Hydrostatic Data Table.";
constexpr std::string_view kNoMCTCMinus50 = "The value of Hydrostatic draft corresponding to MCTC-50 is lower than the "
                                            "value of TMD that exists in Hydrostatic Data Table.";

/// Density of standard sea water, t/m3, that hydrostatic tables are drawn up for.
constexpr double kSeaWaterDensity = 1.025;

Value Number(std::int16_t number)
{
    return number;
}

void TellInvalidInput(std::string_view text)
{
    MsgBox(std::string(text).append(kTwoLineBreaks).append("Please check your input values."), MsgIcon::Critical);
}
} // namespace

std::int32_t clsDraft::Calculate(std::int16_t mode)
{
    try {
        if (mode != 1) {
            CalculateDrafts();
            static_cast<void>(mHydrostatics.InitHDT(mShip.ShipID()));
            const Value maxTMD = mHydrostatics.GetMaxTMD();
            if (maxTMD == Value(ReturnCode::NoMaxTMD)) {
                MsgBox("An internal error has occured while calculating draft.\n\n"
                       "Please contact us with the error no. on the titlebar of this dialog box.",
                       MsgIcon::Exclamation, "Keelmark10009");
                return ReturnCode::NotCalculated;
            }
            if (mResults.trueMeanDraft > maxTMD) {
                TellInvalidInput(kAboveTable);
                return ReturnCode::NotCalculated;
            }
            // A blank draft, all marks at 0, passes through here.
            if (Val2Dec(mResults.trueMeanDraft) == Number(0))
                return ReturnCode::Calculated;
            if (!CalculateAtTrueMeanDraft())
                return ReturnCode::NotCalculated;
        }
        if (mListCorrected) {
            if (CalculateListCorr() == ReturnCode::ListCorrectionFailed)
                return ReturnCode::NotCalculated;
        } else {
            mResults.finalResult[4] = Number(0);
        }
        CalculateNetDisplacement();
    } catch (const RuntimeError &) {
        // The caller goes on as if all had gone well, and is meant to: the results stand as far as they came.
        MsgBox("clsDraft::Calculate");
    }
    return ReturnCode::Calculated;
}

bool clsDraft::Recalculate()
{
    // A reading that is blank counts as 0.
    const auto blank = [](const Value *reading) { return IsZero(*reading); };
    const auto readings = {&mSpecificGravity, &mFwdPort, &mFwdStbd, &mMidPort, &mMidStbd, &mAftPort, &mAftStbd};
    if (NetDisplacement().IsAbsent() || std::ranges::any_of(readings, blank))
        return false;
    const UnsaidMessages quiet;
    const Results before = mResults;
    const Value deducted = mTotDeductibles;
    // Marks at 0 end a run without a figure.
    mResults.finalResult[9] = Value::EmptyText();
    if (Calculate(0) == ReturnCode::Calculated && !quiet.Any() && !NetDisplacement().IsAbsent())
        return mResults != before;
    mResults = before;
    mTotDeductibles = deducted;
    return false;
}

void clsDraft::CalculateDrafts()
{
    mResults.fwdMean = (mFwdStbd + mFwdPort) / Number(2);
    mResults.midMean = (mMidStbd + mMidPort) / Number(2);
    mResults.aftMean = (mAftStbd + mAftPort) / Number(2);
    mResults.apparentTrim = mResults.aftMean - mResults.fwdMean;

    const Value distance = mShip.GetDistBetDraftMarks();
    mResults.fwdCorrection = (mShip.FwdX() * mResults.apparentTrim) / distance;
    mResults.midCorrection = (mShip.MidX() * mResults.apparentTrim) / distance;
    mResults.aftCorrection = (mShip.AftX() * mResults.apparentTrim) / distance;

    mResults.fwdTrueDraft = mResults.fwdCorrection + mResults.fwdMean;
    mResults.midTrueDraft = mResults.midCorrection + mResults.midMean;
    mResults.aftTrueDraft = mResults.aftCorrection + mResults.aftMean;
    mResults.trueTrim = mResults.aftTrueDraft - mResults.fwdTrueDraft;
    mResults.trueMeanDraft
        = ((mResults.aftTrueDraft + mResults.fwdTrueDraft) + mResults.midTrueDraft * Number(6)) / Number(8);
}

bool clsDraft::CalculateAtTrueMeanDraft()
{
    if (!TakeBoundRow(0) || !TakeBoundRow(1) || !TakeResultantVals())
        return false;

    const clsHydrostaticData &table = mHydrostatics;
    mResults.ipFactor = table.IpFactor();
    mResults.mctcPlus50IpFactor = table.IfMCTCPlus50();
    mResults.mctcMinus50IpFactor = table.IfMCTCMinus50();
    mResults.ipResult[0] = {Round(table.IpDisplacement(), 3), Round(table.IpTPC(), 3), Round(table.IpLCF(), 3),
                            Round(table.IpMCTCPlus50(), 3), Round(table.IpMCTCMinus50(), 3)};
    mResults.ipResult[1] = {Round(table.Displacement(), 5), Round(table.TPC(), 3), Round(table.LCF(), 3),
                            Round(table.MCTCPlus50(), 3), Round(table.MCTCMinus50(), 3)};

    const Value trim = Val2Dec(mResults.trueTrim);
    mResults.finalResult[0] = Round(table.Displacement(), 5);
    // First trim correction (layer correction): 100 x trim x LCF x TPC / LBP.
    mResults.finalResult[1] = (Number(100) * (trim * (table.LCF() * table.TPC()))) / mShip.LBP();
    // Second trim correction (Nemoto): 50 x trim squared x dMCTC / LBP.
    mResults.finalResult[2]
        = (Number(50) * ((table.MCTCPlus50() - table.MCTCMinus50()) * (mResults.trueTrim * mResults.trueTrim)))
        / mShip.LBP();
    mResults.finalResult[3] = mResults.finalResult[2] + mResults.finalResult[1];
    return true;
}

bool clsDraft::TakeBoundRow(std::int16_t row)
{
    const bool below = row == 0;
    const std::int32_t code = mHydrostatics.getBound(mResults.trueMeanDraft, row);
    if (code == ReturnCode::Success) {
        FillBoundRow(static_cast<std::size_t>(row));
        return true;
    }
    if (code == (below ? ReturnCode::DraftBelowTable : ReturnCode::DraftAboveTable))
        TellInvalidInput(below ? kBelowTable : kAboveTable);
    else if (code == ReturnCode::NoMCTCPlus50)
        TellInvalidInput(kNoMCTCPlus50);
    else if (code == ReturnCode::NoMCTCMinus50)
        TellInvalidInput(kNoMCTCMinus50);
    else
        return true;
    return false;
}

bool clsDraft::TakeResultantVals()
{
    const std::int32_t code = mHydrostatics.getResultantVals(mResults.trueMeanDraft);
    if (code == ReturnCode::DraftAboveTable)
        MsgBox(kAboveTable, MsgIcon::Critical);
    else if (code == ReturnCode::DraftBelowTable)
        MsgBox(kBelowTable, MsgIcon::Critical);
    return code == ReturnCode::Success;
}

void clsDraft::FillBoundRow(std::size_t row)
{
    const clsHydrostaticData &table = mHydrostatics;
    mResults.hdt[row] = {Round(table.TMD(), 3), Round(table.Displacement(), 3), Round(table.TPC(), 3),
                         Round(table.LCF(), 3), Round(table.MCTCPlus50(), 3),   Round(table.MCTCMinus50(), 3)};
    for (std::size_t column = 0; row == 1 && column < mResults.hdt[2].size(); ++column)
        mResults.hdt[2][column] = mResults.hdt[1][column] - mResults.hdt[0][column];
}

void clsDraft::CalculateNetDisplacement()
{
    // The displacement is taken with five places here, the corrections at full precision.
    mResults.finalResult[5]
        = mResults.finalResult[4] + (mResults.finalResult[3] + ZeroIfAbsent(mResults.ipResult[1][0]));
    mResults.finalResult[7] = (mSpecificGravity * ZeroIfAbsent(mResults.finalResult[5])) / Value(kSeaWaterDensity);
    mResults.finalResult[6] = ZeroIfAbsent(mResults.finalResult[7]) - mResults.finalResult[5];
    mResults.finalResult[8] = GetTotDeductibles();
    mResults.finalResult[9] = Round(ZeroIfAbsent(mResults.finalResult[7]) - mTotDeductibles, 5);
    mResults.finalResult[10] = mShip.LightShip();
}
