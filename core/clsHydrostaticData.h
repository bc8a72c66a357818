#pragma once

#include "core/numeric/Value.h"
#include "frame/store/Recordset.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The hydrostatic table of one ship, read once at InitHDT, answered at any draft by linear interpolation.
///
/// Drafts in metres, displacement in tonnes, TPC in t/cm, MCTC in t.m/cm, LCF in metres from midships (forward
/// negative). Nothing is rounded here. The properties hold what the last query gave them and nothing clears them in
/// between; each query moves the table's current row.
class clsHydrostaticData
{
public:
    /// Draft of the row that getBound took or that getResultantVals hit exactly; untouched by an interpolation.
    [[nodiscard]] const Value &TMD() const { return mTMD; }
    [[nodiscard]] const Value &Displacement() const { return mDisplacement; }
    [[nodiscard]] const Value &TPC() const { return mTPC; }
    /// MCTC at half a metre above and below the draft; after getResultantVals a return code where the table does not
    /// reach that far.
    [[nodiscard]] const Value &MCTCPlus50() const { return mMCTCPlus50; }
    [[nodiscard]] const Value &MCTCMinus50() const { return mMCTCMinus50; }
    [[nodiscard]] const Value &LCF() const { return mLCF; }
    /// Interpolation factor at the draft, from 0 to 1; 0 at an exact hit.
    [[nodiscard]] const Value &IpFactor() const { return mIpFactor; }
    /// The parts that interpolation added to the row below.
    [[nodiscard]] const Value &IpDisplacement() const { return mIpDisplacement; }
    [[nodiscard]] const Value &IpTPC() const { return mIpTPC; }
    [[nodiscard]] const Value &IpLCF() const { return mIpLCF; }
    [[nodiscard]] const Value &IpMCTCPlus50() const { return mIpMCTCPlus50; }
    [[nodiscard]] const Value &IpMCTCMinus50() const { return mIpMCTCMinus50; }
    /// Interpolation factors half a metre above and below. getBound leaves the factor of the last interpolation here.
    [[nodiscard]] const Value &IfMCTCPlus50() const { return mIfMCTCPlus50; }
    [[nodiscard]] const Value &IfMCTCMinus50() const { return mIfMCTCMinus50; }

    /// Fills the properties with the interpolated values at a draft. Success, DraftAboveTable or DraftBelowTable; the
    /// properties are untouched after the latter two. A half metre that the table does not reach does not fail.
    [[nodiscard]] std::int32_t getResultantVals(const Value &draft);

    /// Fills the properties with the table row at or below a draft (selector 0 or any other), or at or above it (1),
    /// the MCTC columns with the row on the same side of draft + 0.5 and draft - 0.5. Success, DraftAboveTable,
    /// DraftBelowTable, NoMCTCPlus50 or NoMCTCMinus50.
    [[nodiscard]] std::int32_t getBound(const Value &draft, std::int16_t selector);

    /// Success, NoHydrostaticData for a ship without rows, InitHDTFailed after a run-time error.
    [[nodiscard]] std::int32_t InitHDT(std::int32_t shipID);

    /// The greatest draft of the table, or the integer ReturnCode::NoMaxTMD when it is empty.
    [[nodiscard]] Value GetMaxTMD();

private:
    struct BracketRow {
        Value TMD;
        Value Displacement;
        Value TPC;
        Value MCTC;
        Value LCF;
    };

    using Bracket = std::array<BracketRow, 2>; ///< the rows below and above

    struct FoundBracket {
        std::string draft;
        std::int32_t code;
        Bracket rows;
    };

    [[nodiscard]] Value InterpolateMCTC(const Value &draft);
    [[nodiscard]] std::int32_t FindBracket(const Value &draft);
    [[nodiscard]] std::int32_t SearchBracket(const std::string &text);
    [[nodiscard]] bool FindExact(const Value &draft);
    void ReadBracketRow(BracketRow &row) const;
    void TakeInterpolated(const Value &draft);
    void TakeExact();
    Recordset &Table();

    Recordset mTable;
    Value mTMD, mDisplacement, mTPC, mMCTCPlus50, mMCTCMinus50, mLCF;
    Value mIpFactor, mIpDisplacement, mIpTPC, mIpLCF, mIpMCTCPlus50, mIpMCTCMinus50;
    Value mIfMCTCPlus50, mIfMCTCMinus50;
    Value mWorkingFactor = Value::Zero(); ///< factor of the last MCTC interpolation
    Value mWorkingIncrement = Value::Zero(); ///< interpolated part of the last MCTC interpolation
    Bracket mBracket;
    std::vector<FoundBracket> mFoundBrackets;
};
