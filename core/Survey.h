#pragma once

#include "core/Stage.h"
#include "core/clsDraft.h"
#include "core/clsShip.h"
#include "frame/store/Recordset.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// By what the store tells surveys of one direction from those of the other.
struct SurveyDirection {
    std::string_view isLoading; ///< the word of the column in statements: "True" or "False"
    /// Stands in the column Constant of a new survey, and of one whose constant is 0. Empty where the constant itself
    /// always stands there.
    std::string_view noConstant;
};

/// What a survey's own row holds beside its number and constant.
struct SurveyHeader {
    Value shipID;
    std::string voyageID;
    Value portID;
    std::string cargo;
};

/// One survey in memory: the ship, the three drafts, the survey's own row, and what of it is not in the store yet.
class Survey
{
public:
    /// What became of the drafts of a survey whose row was found.
    enum class Found : std::uint8_t { NoInitial, InitialBroken, LaterBroken, All };

    explicit Survey(const SurveyDirection &direction);

    [[nodiscard]] const SurveyDirection &Direction() const { return mDirection; }
    [[nodiscard]] const clsShip &Ship() const { return mShip; }
    [[nodiscard]] clsDraft &Draft(const Stage &stage) { return mDrafts[static_cast<std::size_t>(stage.Tab())]; }
    [[nodiscard]] const clsDraft &Draft(const Stage &stage) const
    {
        return mDrafts[static_cast<std::size_t>(stage.Tab())];
    }
    /// The ship's constant in tonnes as worked out from the Initial draft; 0 for a new survey, empty text where a
    /// calculation left none.
    [[nodiscard]] const Value &Constant() const { return mConstant; }
    void Constant(const Value &constant) { mConstant = constant; }
    /// -1 when no survey is open.
    [[nodiscard]] std::int32_t RecordID() const { return mRecordID; }
    void RecordID(std::int32_t recordID) { mRecordID = recordID; }
    /// Ship, voyage, port or cargo changed since the last load or save.
    [[nodiscard]] bool HeaderDirty() const { return mHeaderDirty; }
    void HeaderDirty(bool dirty) { mHeaderDirty = dirty; }
    [[nodiscard]] bool AnyToSave() const;

    /// Binds a ship to the drafts and to the survey, which is a change of its header. False where she cannot be read,
    /// as messages have told; the survey then holds the ship that it held.
    [[nodiscard]] bool SetShip(const Value &shipID);
    /// A survey that does not exist yet, of the ship that is bound. The row of the one before is closed.
    void New();

    /// The row that a statement finds becomes the survey's own; nothing where there is none. Statement failures go up.
    [[nodiscard]] std::optional<SurveyHeader> Find(const std::string &statement);
    /// Brings up the drafts of the row that was found, up to the first that cannot be read: it and what follows are
    /// new.
    [[nodiscard]] Found GetDrafts();
    /// A survey that has its row and no drafts, to be completed.
    void NewDraftsUnder(std::int32_t recordID);
    /// Cargo of the survey's row; nothing where there is no row, or where the header was changed.
    [[nodiscard]] std::optional<std::string> StoredCargo();

    /// Before a save: a net displacement in the store belongs to the marks beside it. Works out anew, without a word,
    /// each draft to be saved that has one; where that cannot be, the draft stays as it was. True where the figures of
    /// the stage shown have changed.
    [[nodiscard]] bool WorkOutDrafts(const Stage &shown);
    /// Writes what has changed in one transaction. Success, NothingToSave, DuplicateSurvey, DuplicateDraft,
    /// SaveDraftFailed or SurveySaveFailed; after any but Success the store and every flag are as before.
    [[nodiscard]] std::int32_t Save(const SurveyHeader &header);

private:
    struct SaveState;

    [[nodiscard]] std::string ConstantText() const;
    /// The constant is the one that this draft gives.
    [[nodiscard]] bool IsConstantOf(const clsDraft &draft) const;
    void WriteHeader(const SurveyHeader &header);
    [[nodiscard]] std::int32_t WriteDrafts();
    /// The drafts of a tab and of those after it begin anew.
    void NewDrafts(const Stage &first);
    /// After a save was rolled back: the row of a survey that is not in the store must not lend its cargo.
    void ForgetUnsavedRow();
    void CloseRow();

    const SurveyDirection mDirection;
    clsShip mShip;
    std::array<clsDraft, 3> mDrafts; ///< in the order of the tabs
    Recordset mRsParticulars; ///< the survey's own row
    Value mConstant;
    std::int32_t mRecordID = -1;
    std::int16_t mMode = 0; ///< 0: the survey has no row yet, 1: it has
    bool mHeaderDirty = false;
};
