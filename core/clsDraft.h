#pragma once

#include "core/clsHydrostaticData.h"
#include "core/clsShip.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Kinds of draft, as the column DraftType holds them. The tabs of a survey window are numbered otherwise.
namespace DraftTypeCode
{
inline constexpr std::int16_t Initial = 0;
inline constexpr std::int16_t Final = 1;
inline constexpr std::int16_t Daily = 2;
} // namespace DraftTypeCode

/// Tonnes on board of one deductible item.
struct ItemQuantity {
    Value itemID;
    Value quantity;
};

/// One draft taken on a ship: what was read on board and all that is calculated from it.
///
/// Lengths in metres, weights in tonnes, densities in t/m3. A result holds empty text until it has been calculated.
/// The setters of what was read set ToSave when the text of the new value differs from that of the old.
class clsDraft
{
public:
    /// Rows below, above and their difference by TMD, Displacement, TPC, LCF, MCTC+50, MCTC-50.
    using HydrostaticRows = std::array<std::array<Value, 6>, 3>;
    /// The same rows by draft and TPC at the midship port mark, draft and TPC at the midship starboard mark.
    using ListCorrectionRows = std::array<std::array<Value, 4>, 3>;
    /// Interpolated parts and resulting values by Displacement, TPC, LCF, MCTC+50, MCTC-50.
    using InterpolatedRows = std::array<std::array<Value, 5>, 2>;
    /// 0 displacement at the true mean draft, 1 and 2 first and second trim correction, 3 their sum, 4 list
    /// correction, 5 displacement on even keel, 6 density correction, 7 true displacement, 8 total deductibles,
    /// 9 net displacement, 10 light ship, 11 reserved.
    using FinalItems = std::array<Value, 12>;

    clsDraft();

    [[nodiscard]] const Value &SpecificGravity() const { return mSpecificGravity; }
    /// Type mismatch (13) for text that is no number; blank text counts as 0. So do the six marks.
    void SpecificGravity(const Value &value) { SetNumber(mSpecificGravity, value); }
    [[nodiscard]] std::int16_t DraftType() const { return mDraftType; }
    void DraftType(std::int16_t type) { mDraftType = type; }
    [[nodiscard]] const Value &FwdPort() const { return mFwdPort; }
    void FwdPort(const Value &value) { SetNumber(mFwdPort, value); }
    [[nodiscard]] const Value &FwdStbd() const { return mFwdStbd; }
    void FwdStbd(const Value &value) { SetNumber(mFwdStbd, value); }
    [[nodiscard]] const Value &MidPort() const { return mMidPort; }
    void MidPort(const Value &value) { SetNumber(mMidPort, value); }
    [[nodiscard]] const Value &MidStbd() const { return mMidStbd; }
    void MidStbd(const Value &value) { SetNumber(mMidStbd, value); }
    [[nodiscard]] const Value &AftPort() const { return mAftPort; }
    void AftPort(const Value &value) { SetNumber(mAftPort, value); }
    [[nodiscard]] const Value &AftStbd() const { return mAftStbd; }
    void AftStbd(const Value &value) { SetNumber(mAftStbd, value); }
    [[nodiscard]] bool ListCorrected() const { return mListCorrected; }
    void ListCorrected(bool corrected);
    [[nodiscard]] const Value &NetDisplacement() const { return mResults.finalResult[9]; }
    [[nodiscard]] const std::string &Comments() const { return mComments; }
    void Comments(std::string_view text) { SetText(mComments, text); }
    /// "dd-MM-yyyy"
    [[nodiscard]] const std::string &DSDate() const { return mDSDate; }
    void DSDate(std::string_view text) { SetText(mDSDate, text); }
    /// "HH:mm"
    [[nodiscard]] const std::string &DSTime() const { return mDSTime; }
    void DSTime(std::string_view text) { SetText(mDSTime, text); }
    /// Something differs from what was last loaded or made new.
    [[nodiscard]] bool ToSave() const { return mToSave; }
    void ToSave(bool toSave) { mToSave = toSave; }
    /// The draft was read from or written to the store.
    [[nodiscard]] bool HasRecord() const { return mHasRecord; }
    void HasRecord(bool hasRecord) { mHasRecord = hasRecord; }
    /// There is a draft: one that is in the store, or one that is being made.
    [[nodiscard]] bool IsThere() const { return mHasRecord || mToSave; }
    /// The quantities of this draft, kept in memory until SaveDraft; null where they could not be read.
    [[nodiscard]] const std::vector<ItemQuantity> *Deductions() const { return mDeductions ? &*mDeductions : nullptr; }
    /// The same; WrongState where they could not be read.
    [[nodiscard]] const std::vector<ItemQuantity> &Quantities() const;
    /// Sets an item's quantity; nothing where they could not be read.
    void Deduction(const Value &itemID, const Value &quantity);

    [[nodiscard]] const Value &FwdMean() const { return mResults.fwdMean; }
    [[nodiscard]] const Value &MidMean() const { return mResults.midMean; }
    [[nodiscard]] const Value &AftMean() const { return mResults.aftMean; }
    [[nodiscard]] const Value &TotDeductibles() const { return mTotDeductibles; }
    /// Leaves ToSave alone; the next calculation replaces it.
    void TotDeductibles(const Value &value) { mTotDeductibles = value; }
    [[nodiscard]] const HydrostaticRows &HDT() const { return mResults.hdt; }
    [[nodiscard]] const ListCorrectionRows &HDTListCorr() const { return mResults.hdtListCorr; }
    [[nodiscard]] const InterpolatedRows &IpResult() const { return mResults.ipResult; }
    [[nodiscard]] const FinalItems &FinalResult() const { return mResults.finalResult; }
    /// Aft mean less forward mean: positive by the stern.
    [[nodiscard]] const Value &ApparentTrim() const { return mResults.apparentTrim; }
    [[nodiscard]] const Value &FwdCorrection() const { return mResults.fwdCorrection; }
    [[nodiscard]] const Value &MidCorrection() const { return mResults.midCorrection; }
    [[nodiscard]] const Value &AftCorrection() const { return mResults.aftCorrection; }
    [[nodiscard]] const Value &FwdTrueDraft() const { return mResults.fwdTrueDraft; }
    [[nodiscard]] const Value &MidTrueDraft() const { return mResults.midTrueDraft; }
    [[nodiscard]] const Value &AftTrueDraft() const { return mResults.aftTrueDraft; }
    [[nodiscard]] const Value &TrueTrim() const { return mResults.trueTrim; }
    /// Mean of means by quarter-mean weighting: (forward + aft + 6 x midships) / 8, not rounded.
    [[nodiscard]] const Value &TrueMeanDraft() const { return mResults.trueMeanDraft; }
    [[nodiscard]] const Value &IpFactor() const { return mResults.ipFactor; }
    [[nodiscard]] const Value &MCTCPlus50IpFactor() const { return mResults.mctcPlus50IpFactor; }
    [[nodiscard]] const Value &MCTCMinus50IpFactor() const { return mResults.mctcMinus50IpFactor; }
    /// 0: not in the store, SaveDraft inserts. 1: loaded from the store, SaveDraft updates, DeleteDraft acts.
    [[nodiscard]] Value DraftMode() const { return mDraftMode; }
    /// Overflow (6) for a number that 16 bits do not hold.
    void DraftMode(const Value &mode) { mDraftMode = mode.ToInteger(); }
    /// Binds the draft to a ship. Where she cannot be read a message tells so; the draft is then without a ship, and a
    /// calculation fails.
    void ShipID(const Value &shipID);
    [[nodiscard]] const Value &IpFactorTPCP() const { return mResults.tpcPort.factor; }
    [[nodiscard]] const Value &IpValueTPCP() const { return mResults.tpcPort.value; }
    [[nodiscard]] const Value &ResultantTPCP() const { return mResults.tpcPort.resultant; }
    [[nodiscard]] const Value &IpFactorTPCS() const { return mResults.tpcStbd.factor; }
    [[nodiscard]] const Value &IpValueTPCS() const { return mResults.tpcStbd.value; }
    [[nodiscard]] const Value &ResultantTPCS() const { return mResults.tpcStbd.resultant; }

    /// A blank draft of the same type and ship, dated now. TotDeductibles is left as it was.
    void NewDraft();
    /// The number for a new row of a table; 0 where a message has told that there is none. Users know every such
    /// routine as a draft's.
    [[nodiscard]] static std::int32_t NewNumber(const std::string &column, const std::string &table,
                                                std::string_view routine);
    /// Writes the draft and its quantities under a survey's RecordID; nothing unless ToSave. Success, DuplicateDraft
    /// or SaveDraftFailed. Opens no transaction: the caller holds one.
    [[nodiscard]] std::int32_t SaveDraft(std::int32_t recordID);
    /// Deletes the stored draft (the whole survey for an Initial one) and makes the object new. Success or
    /// DeleteDraftFailed.
    [[nodiscard]] std::int32_t DeleteDraft();
    /// Loads a draft of this type and calculates it. With empty date and time: the latest Daily, or the only Initial
    /// or Final draft. Success, NoSuchDraft (the object is then new) or GetDraftFailed.
    [[nodiscard]] std::int32_t GetDraft(std::int32_t recordID, const std::string &date, const std::string &time);
    /// Mode 0 (or any other): the full run. Mode 1: from the list correction on, with the table values of the last
    /// full run. Calculated, or NotCalculated when a message has told why.
    [[nodiscard]] std::int32_t Calculate(std::int16_t mode);
    /// The full run of a draft that has a net displacement, with no message whatever happens. Where it fails or gives
    /// the same again it is false, and the draft is as it was.
    [[nodiscard]] bool Recalculate();

private:
    /// TPC at one midship mark.
    struct MarkTPC {
        Value factor;
        Value value;
        Value resultant;
        bool operator==(const MarkTPC &) const = default;
    };
    /// All that a calculation gives; empty text before the first.
    struct Results {
        Results();
        bool operator==(const Results &) const = default;

        Value fwdMean, midMean, aftMean, apparentTrim;
        Value fwdCorrection, midCorrection, aftCorrection;
        Value fwdTrueDraft, midTrueDraft, aftTrueDraft, trueTrim, trueMeanDraft;
        MarkTPC tpcPort, tpcStbd;
        Value mctcPlus50IpFactor, mctcMinus50IpFactor, ipFactor;
        HydrostaticRows hdt;
        ListCorrectionRows hdtListCorr;
        InterpolatedRows ipResult;
        FinalItems finalResult;
    };

    void SetNumber(Value &field, const Value &value);
    void SetText(std::string &field, std::string_view text);
    void InitDeductions();
    /// The quantities of a draft in the store; none of the draft before stay where they cannot be had.
    void OpenDeductions(std::int32_t draftID);
    Value GetTotDeductibles();
    void AddQuantities(Value &total);

    void CalculateDrafts();
    [[nodiscard]] bool CalculateAtTrueMeanDraft();
    /// Row 0 below or 1 above the true mean draft. False where a message has told why there is none.
    [[nodiscard]] bool TakeBoundRow(std::int16_t row);
    [[nodiscard]] bool TakeResultantVals();
    void FillBoundRow(std::size_t row);
    void CalculateNetDisplacement();
    [[nodiscard]] std::int32_t CalculateListCorr();
    [[nodiscard]] bool FillListCorrectionRow(clsHydrostaticData &table, const Value &mark, std::int16_t row,
                                             std::size_t column, std::string_view outOfTable);

    [[nodiscard]] std::string InsertStatement(std::int32_t recordID) const;
    [[nodiscard]] std::string UpdateStatement() const;
    void SaveDeductions();
    void ReadRow(const Recordset &row);
    void ReadDeductions();

    std::int32_t mDraftID = -1;
    std::int32_t mRecordID = -1;
    std::int32_t mShipID = 0;
    std::int16_t mDraftType = DraftTypeCode::Initial;
    std::int16_t mDraftMode = 0;
    bool mToSave = false;
    bool mHasRecord = false;

    Value mSpecificGravity;
    Value mFwdPort, mFwdStbd, mMidPort, mMidStbd, mAftPort, mAftStbd;
    bool mListCorrected = false;
    std::string mDSDate, mDSTime, mComments;
    Value mTotDeductibles;

    Results mResults;

    clsShip mShip;
    clsHydrostaticData mHydrostatics; ///< of the last full run
    std::optional<std::vector<ItemQuantity>> mDeductions;
};
