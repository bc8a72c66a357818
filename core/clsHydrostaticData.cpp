#include "core/clsHydrostaticData.h"

#include "core/ReturnCode.h"

#include <algorithm>
#include <optional>

namespace
{
const Value kZero = Value::Zero();
/// The second trim correction looks half a metre above and below the draft.
const Value kHalfMetre = 0.5;
} // namespace

std::int32_t clsHydrostaticData::InitHDT(std::int32_t shipID)
try {
    mFoundBrackets.clear();
    // The table of the ship before must not be taken for hers.
    mTable = Recordset();
    mTable.Open("SELECT *  FROM HydrostaticDataTable WHERE ShipID = " + std::to_string(shipID) + " ORDER BY TMD",
                CursorType::Keyset, LockType::BatchOptimistic);
    return mTable.HasRows() ? ReturnCode::Success : ReturnCode::NoHydrostaticData;
} catch (const RuntimeError &) {
    return ReturnCode::InitHDTFailed;
}

Value clsHydrostaticData::GetMaxTMD()
{
    if (!Table().HasRows())
        return ReturnCode::NoMaxTMD;
    Table().MoveLast();
    return Table().Fields("TMD");
}

std::int32_t clsHydrostaticData::getBound(const Value &draft, std::int16_t selector)
{
    const BracketRow &row = mBracket[selector == 1 ? 1 : 0];
    const std::int32_t code = FindBracket(draft);
    if (code != ReturnCode::Success)
        return code;
    mTMD = row.TMD;
    mDisplacement = row.Displacement;
    mTPC = row.TPC;
    mLCF = row.LCF;

    // The factors copied here are those of the last interpolation; none is worked out for a raw row.
    if (FindBracket(draft + kHalfMetre) != ReturnCode::Success)
        return ReturnCode::NoMCTCPlus50;
    mMCTCPlus50 = row.MCTC;
    mIfMCTCPlus50 = mWorkingFactor;
    if (FindBracket(draft - kHalfMetre) != ReturnCode::Success)
        return ReturnCode::NoMCTCMinus50;
    mMCTCMinus50 = row.MCTC;
    mIfMCTCMinus50 = mWorkingFactor;
    return ReturnCode::Success;
}

std::int32_t clsHydrostaticData::getResultantVals(const Value &draft)
{
    if (FindExact(draft)) {
        TakeExact();
    } else {
        const std::int32_t code = FindBracket(draft);
        if (code != ReturnCode::Success)
            return code;
        TakeInterpolated(draft);
    }
    mMCTCPlus50 = InterpolateMCTC(draft + kHalfMetre);
    mIpMCTCPlus50 = mWorkingIncrement;
    mIfMCTCPlus50 = mWorkingFactor;
    mMCTCMinus50 = InterpolateMCTC(draft - kHalfMetre);
    mIpMCTCMinus50 = mWorkingIncrement;
    mIfMCTCMinus50 = mWorkingFactor;
    return ReturnCode::Success;
}

void clsHydrostaticData::TakeInterpolated(const Value &draft)
{
    const BracketRow &below = mBracket[0];
    const BracketRow &above = mBracket[1];
    mIpFactor = (draft - below.TMD) / (above.TMD - below.TMD);
    mIpDisplacement = (above.Displacement - below.Displacement) * mIpFactor;
    mIpTPC = (above.TPC - below.TPC) * mIpFactor;
    mIpLCF = (above.LCF - below.LCF) * mIpFactor;
    mDisplacement = below.Displacement + mIpDisplacement;
    mTPC = below.TPC + mIpTPC;
    mLCF = below.LCF + mIpLCF;
}

void clsHydrostaticData::TakeExact()
{
    mTMD = Table().Fields("TMD");
    mDisplacement = Table().Fields("Displacement");
    mTPC = Table().Fields("TPC");
    mLCF = Table().Fields("LCF");
    mIpFactor = mIpDisplacement = mIpTPC = mIpLCF = kZero;
}

Value clsHydrostaticData::InterpolateMCTC(const Value &draft)
{
    if (FindExact(draft)) {
        mWorkingFactor = mWorkingIncrement = kZero;
        return Table().Fields("MCTC");
    }
    const std::int32_t code = FindBracket(draft);
    // A code takes the place of the moment here, and is meant to: getBound guards the half metre.
    if (code != ReturnCode::Success)
        return static_cast<std::int16_t>(code);
    const BracketRow &below = mBracket[0];
    const BracketRow &above = mBracket[1];
    mWorkingFactor = (draft - below.TMD) / (above.TMD - below.TMD);
    mWorkingIncrement = (above.MCTC - below.MCTC) * mWorkingFactor;
    return below.MCTC + mWorkingIncrement;
}

std::int32_t clsHydrostaticData::FindBracket(const Value &draft)
{
    // A calculation asks for each of its three drafts three times.
    const std::string text = draft.SqlText();
    const auto known = std::ranges::find(mFoundBrackets, text, &FoundBracket::draft);
    if (known != mFoundBrackets.end()) {
        mBracket = known->rows;
        return known->code;
    }
    const std::int32_t code = SearchBracket(text);
    mFoundBrackets.push_back({text, code, mBracket});
    return code;
}

std::int32_t clsHydrostaticData::SearchBracket(const std::string &text)
{
    Recordset &table = Table();
    const std::string atOrBelow = "TMD <= " + text;
    std::optional<Bookmark> last;
    table.MoveFirst();
    table.Find(atOrBelow, 0, Recordset::kSearchForward);
    while (!table.AtEnd()) {
        last = table.CurrentBookmark();
        table.Find(atOrBelow, 1, Recordset::kSearchForward, last);
    }
    if (!last)
        return ReturnCode::DraftBelowTable;
    table.GoTo(*last);
    ReadBracketRow(mBracket[0]);
    table.Find("TMD >= " + text, 0, Recordset::kSearchForward);
    if (table.AtEnd())
        return ReturnCode::DraftAboveTable;
    ReadBracketRow(mBracket[1]);
    return ReturnCode::Success;
}

bool clsHydrostaticData::FindExact(const Value &draft)
{
    Table().FindFirst("TMD = " + draft.SqlText());
    return !Table().AtEnd();
}

void clsHydrostaticData::ReadBracketRow(BracketRow &row) const
{
    row.TMD = mTable.Fields("TMD");
    row.Displacement = mTable.Fields("Displacement");
    row.TPC = mTable.Fields("TPC");
    row.MCTC = mTable.Fields("MCTC");
    row.LCF = mTable.Fields("LCF");
}

Recordset &clsHydrostaticData::Table()
{
    if (!mTable.IsOpen())
        throw RuntimeError(ErrorNumber::NoObject);
    return mTable;
}
