#pragma once

#include "core/numeric/RuntimeError.h"

#include <cstdint>

/// Codes by which the survey core and the windows' saves answer their callers. The user never sees them, except
/// where a message puts one on its title bar.
namespace ReturnCode
{
inline constexpr std::int32_t Success = 1;
/// Calculate and CalculateListCorr answer success with 0.
inline constexpr std::int32_t Calculated = 0;
/// SetShip after a run-time error; the message has been shown.
inline constexpr std::int32_t ShipNotSet = 0;
/// The store refused a second draft with the same date and time.
inline constexpr std::int32_t DuplicateDraft = ErrorNumber::StoreRefusal;

inline constexpr std::int32_t DeleteDraftFailed = 10000;
inline constexpr std::int32_t NoSuchDraft = 10001;
inline constexpr std::int32_t GetDraftFailed = 10002;
inline constexpr std::int32_t SaveDraftFailed = 10003;
/// A run-time error in a window's save.
inline constexpr std::int32_t SurveySaveFailed = 10004;
/// The ship has no hydrostatic rows, as the value of GetMaxTMD.
inline constexpr std::int16_t NoMaxTMD = 10009;
/// The ship has no hydrostatic rows, as the answer of InitHDT.
inline constexpr std::int32_t NoHydrostaticData = 10010;
inline constexpr std::int32_t InitHDTFailed = 10011;
inline constexpr std::int32_t DraftAboveTable = 10012;
inline constexpr std::int32_t DraftBelowTable = 10013;
inline constexpr std::int32_t NothingToSave = 10020;
/// The draft could not be calculated; the message has been shown.
inline constexpr std::int32_t NotCalculated = 10057;
/// The list correction failed; the message has been shown.
inline constexpr std::int32_t ListCorrectionFailed = 10058;
/// The store refused a second survey with the same ship, voyage and port.
inline constexpr std::int32_t DuplicateSurvey = 10064;
inline constexpr std::int32_t ShipNotWritten = 10088;
/// The table does not reach half a metre above the draft.
inline constexpr std::int32_t NoMCTCPlus50 = 10091;
/// The table does not reach half a metre below the draft.
inline constexpr std::int32_t NoMCTCMinus50 = 10092;
} // namespace ReturnCode
