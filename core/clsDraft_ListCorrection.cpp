#include "core/MsgBox.h"
#include "core/ReturnCode.h"
#include "core/clsDraft.h"

#include <utility>

namespace
{
constexpr std::string_view kPortBelow
    = "Value of TMD < Midship Port does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kStbdBelow
    = "Value of TMD < Midship Starboard does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kPortAbove
    = "Value of TMD > Midship Port does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kStbdAbove
    = "Value of TMD > Midship Starboard does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kCalculatedAbove
    = "Value of TMD > calculated TMD does not exists in Hydrostatic data for the current ship.";
constexpr std::string_view kCalculatedBelow
    = "Value of TMD < calculated TMD does not exists in Hydrostatic data for the current ship.";

constexpr std::int16_t kBelow = 0;
constexpr std::int16_t kAbove = 1;

/// Only the row at the reading counts here, so a table that ends within half a metre of it is no failure.
bool HasRow(std::int32_t code)
{
    return code == ReturnCode::Success || code == ReturnCode::NoMCTCPlus50 || code == ReturnCode::NoMCTCMinus50;
}
} // namespace

std::int32_t clsDraft::CalculateListCorr()
try {
    clsHydrostaticData table;
    static_cast<void>(table.InitHDT(mShipID));
    if (!FillListCorrectionRow(table, mMidPort, kBelow, 0, kPortBelow)
        || !FillListCorrectionRow(table, mMidStbd, kBelow, 2, kStbdBelow)
        || !FillListCorrectionRow(table, mMidPort, kAbove, 0, kPortAbove)
        || !FillListCorrectionRow(table, mMidStbd, kAbove, 2, kStbdAbove))
        return ReturnCode::ListCorrectionFailed;
    for (std::size_t column = 0; column < mResults.hdtListCorr[2].size(); ++column)
        mResults.hdtListCorr[2][column] = Round(mResults.hdtListCorr[1][column] - mResults.hdtListCorr[0][column], 3);

    for (const auto &[mark, tpc] : {std::pair(&mMidPort, &mResults.tpcPort), std::pair(&mMidStbd, &mResults.tpcStbd)}) {
        const std::int32_t code = table.getResultantVals(*mark);
        if (code == ReturnCode::DraftAboveTable)
            MsgBox(kCalculatedAbove, MsgIcon::Critical);
        else if (code == ReturnCode::DraftBelowTable)
            MsgBox(kCalculatedBelow, MsgIcon::Critical);
        if (code != ReturnCode::Success)
            return ReturnCode::ListCorrectionFailed;
        // The factor shown is that of the moment half a metre above the mark, and is meant to be.
        *tpc = {Round(table.IfMCTCPlus50(), 7), Round(table.IpTPC(), 7), Round(table.TPC(), 7)};
    }

    // List correction: 6 x difference of the midship marks x difference of TPC; always added.
    mResults.finalResult[4] = Value(std::int16_t {6})
        * (Abs(mMidPort - mMidStbd) * Abs(mResults.tpcPort.resultant - mResults.tpcStbd.resultant));
    return ReturnCode::Calculated;
} catch (const RuntimeError &) {
    // Success on purpose: the calculation goes on.
    MsgBox("clsDraft::CalculateListCorr");
    return ReturnCode::Calculated;
}

bool clsDraft::FillListCorrectionRow(clsHydrostaticData &table, const Value &mark, std::int16_t row, std::size_t column,
                                     std::string_view outOfTable)
{
    const std::int32_t code = table.getBound(mark, row);
    if (HasRow(code)) {
        auto &cells = mResults.hdtListCorr[static_cast<std::size_t>(row)];
        cells[column] = Round(table.TMD(), 3);
        cells[column + 1] = Round(table.TPC(), 3);
        return true;
    }
    if (code != (row == kBelow ? ReturnCode::DraftBelowTable : ReturnCode::DraftAboveTable))
        return true;
    MsgBox(outOfTable, MsgIcon::Critical);
    return false;
}
