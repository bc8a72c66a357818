#include "core/Survey.h"

#include "core/MsgBox.h"
#include "core/ReturnCode.h"

#include <algorithm>

/// What a save changes in memory before the store has confirmed it.
struct Survey::SaveState {
    struct DraftState {
        bool toSave;
        bool hasRecord;
        Value mode;
    };

    explicit SaveState(const Survey &survey)
        : headerDirty(survey.mHeaderDirty)
        , mode(survey.mMode)
    {
        std::ranges::transform(survey.mDrafts, drafts.begin(), [](const clsDraft &draft) {
            return DraftState {draft.ToSave(), draft.HasRecord(), draft.DraftMode()};
        });
    }

    void PutBack(Survey &survey) const
    {
        survey.mHeaderDirty = headerDirty;
        survey.mMode = mode;
        for (std::size_t i = 0; i < drafts.size(); ++i) {
            survey.mDrafts[i].ToSave(drafts[i].toSave);
            survey.mDrafts[i].HasRecord(drafts[i].hasRecord);
            survey.mDrafts[i].DraftMode(drafts[i].mode);
        }
    }

    bool headerDirty;
    std::int16_t mode;
    std::array<DraftState, 3> drafts;
};

namespace
{
void RollBack()
{
    try {
        gConnection->RollbackTrans();
    } catch (const RuntimeError &) {
        // The store has rolled back by itself, or the transaction never began.
    }
}
} // namespace

Survey::Survey(const SurveyDirection &direction)
    : mDirection(direction)
{
    for (const Stage &stage : Stage::All())
        Draft(stage).DraftType(stage.DraftType());
}

bool Survey::AnyToSave() const
{
    return std::ranges::any_of(mDrafts, [](const clsDraft &draft) { return draft.ToSave(); });
}

bool Survey::SetShip(const Value &shipID)
{
    for (clsDraft &draft : mDrafts)
        draft.ShipID(shipID);
    if (mShip.SetShip(shipID.ToLong()) != ReturnCode::Success)
        return false;
    mHeaderDirty = true;
    return true;
}

void Survey::New()
{
    for (clsDraft &draft : mDrafts)
        draft.NewDraft();
    // No survey is open: her row must not lend its cargo to the next one.
    CloseRow();
    mRecordID = -1;
    mConstant = Value::Zero();
    mMode = 0;
    mHeaderDirty = false;
}

std::optional<SurveyHeader> Survey::Find(const std::string &statement)
{
    mRsParticulars.Reopen(statement, CursorType::Keyset, LockType::Optimistic);
    if (!mRsParticulars.HasRows())
        return std::nullopt;
    return SurveyHeader {.shipID = mRsParticulars.Fields("ShipID"),
                         .voyageID = mRsParticulars.Fields("VoyageID").Text(),
                         .portID = mRsParticulars.Fields("PortID"),
                         .cargo = mRsParticulars.Fields("Cargo").Text()};
}

Survey::Found Survey::GetDrafts()
{
    mRecordID = mRsParticulars.Fields("RecordID").ToLong();
    mMode = 1;
    const std::int32_t code = Draft(Stage::Initial).GetDraft(mRecordID, "", "");
    if (code != ReturnCode::Success)
        return code == ReturnCode::NoSuchDraft ? Found::NoInitial : Found::InitialBroken;
    for (const Stage &stage : {Stage::Daily, Stage::Final}) {
        const std::int32_t laterCode = Draft(stage).GetDraft(mRecordID, "", "");
        if (laterCode == ReturnCode::Success || laterCode == ReturnCode::NoSuchDraft)
            continue;
        NewDrafts(stage);
        return Found::LaterBroken;
    }
    mHeaderDirty = false;
    return Found::All;
}

void Survey::NewDraftsUnder(std::int32_t recordID)
{
    NewDrafts(Stage::Initial);
    mRecordID = recordID;
    mMode = 1;
}

// The drafts of the survey before must not be written over under this one.
void Survey::NewDrafts(const Stage &first)
{
    const UnsaidMessages quiet;
    for (int tab = first.Tab(); tab < std::ssize(mDrafts); ++tab)
        Draft(Stage::OfTab(tab)).NewDraft();
}

std::optional<std::string> Survey::StoredCargo()
{
    if (mHeaderDirty || !mRsParticulars.HasRows())
        return std::nullopt;
    mRsParticulars.MoveFirst();
    return mRsParticulars.Fields("Cargo").Text();
}

bool Survey::IsConstantOf(const clsDraft &draft) const
{
    if (!mDirection.noConstant.empty() || !mConstant.IsNumber() || !draft.NetDisplacement().IsNumber())
        return false;
    // The ship may have been changed since the draft was worked out, and before or after the constant was.
    return mConstant == draft.NetDisplacement() - draft.FinalResult()[10]
        || mConstant == draft.NetDisplacement() - mShip.LightShip();
}

bool Survey::WorkOutDrafts(const Stage &shown)
{
    const UnsaidMessages quiet;
    bool shownChanged = false;
    for (const Stage &stage : Stage::All()) {
        clsDraft &draft = Draft(stage);
        const bool givesConstant = stage == Stage::Initial && IsConstantOf(draft);
        if (!draft.ToSave() || !draft.Recalculate())
            continue;
        // The figures of the later stages, and the constant, rest on the Initial draft.
        shownChanged = shownChanged || stage == shown || stage == Stage::Initial;
        if (givesConstant)
            mConstant = draft.NetDisplacement() - mShip.LightShip();
    }
    return shownChanged;
}

std::int32_t Survey::Save(const SurveyHeader &header)
{
    const bool anyToSave = AnyToSave();
    if (!mHeaderDirty && !anyToSave)
        return ReturnCode::NothingToSave;
    const SaveState before(*this);
    try {
        gConnection->BeginTrans();
        if (mHeaderDirty)
            WriteHeader(header);
        if (anyToSave) {
            const std::int32_t code = WriteDrafts();
            if (code != ReturnCode::Success) {
                RollBack();
                ForgetUnsavedRow();
                return code;
            }
        }
        mMode = 1;
        mHeaderDirty = false;
        gConnection->CommitTrans();
        return ReturnCode::Success;
    } catch (const RuntimeError &error) {
        RollBack();
        before.PutBack(*this);
        ForgetUnsavedRow();
        return error.Number() == ErrorNumber::StoreRefusal ? ReturnCode::DuplicateSurvey : ReturnCode::SurveySaveFailed;
    }
}

std::string Survey::ConstantText() const
{
    const bool none = mMode == 0 || IsZero(mConstant);
    return none && !mDirection.noConstant.empty() ? std::string(mDirection.noConstant) : mConstant.SqlText();
}

void Survey::WriteHeader(const SurveyHeader &header)
{
    const std::string ship = header.shipID.SqlText();
    const std::string voyage = Quoted(header.voyageID);
    const std::string port = header.portID.SqlText();
    const std::string cargo = Quoted(header.cargo);
    if (mMode == 0) {
        mRecordID = clsDraft::NewNumber("RecordID", "DraftParticulars", "GetNewRecordID");
        if (mRecordID == 0)
            throw RuntimeError(StoreError::StatementFailed, "There is no number for the survey.");
        gConnection->Execute("INSERT INTO DraftParticulars (RecordID, ShipID,VoyageID,PortID,Cargo,Constant, IsLoading)"
                             " VALUES("
                             + std::to_string(mRecordID) + "," + ship + ", " + voyage + ", " + port + ", " + cargo
                             + ", " + ConstantText() + ", " + std::string(mDirection.isLoading) + ")");
    } else {
        if (mRsParticulars.HasRows())
            mRecordID = mRsParticulars.Fields("RecordID").ToLong();
        gConnection->ExecuteOnOneRow("UPDATE DraftParticulars set ShipID=" + ship + ",VoyageID=" + voyage
                                     + ", PortID=" + port + ",Cargo=" + cargo + ", Constant = " + ConstantText()
                                     + " WHERE RecordID = " + std::to_string(mRecordID));
    }
    mRsParticulars.Reopen("SELECT * FROM DraftParticulars WHERE RecordID = " + std::to_string(mRecordID)
                              + " AND IsLoading = " + std::string(mDirection.isLoading),
                          CursorType::Keyset, LockType::Optimistic);
}

std::int32_t Survey::WriteDrafts()
{
    for (clsDraft &draft : mDrafts) {
        const std::int32_t code = draft.SaveDraft(mRecordID);
        if (code != ReturnCode::Success)
            return code;
    }
    for (clsDraft &draft : mDrafts) {
        if (!draft.ToSave())
            continue;
        if (IsZero(draft.DraftMode())) {
            draft.DraftMode(std::int16_t {1});
            draft.HasRecord(true);
        }
        draft.ToSave(false);
    }
    return ReturnCode::Success;
}

void Survey::ForgetUnsavedRow()
{
    if (mMode == 0)
        CloseRow();
}

void Survey::CloseRow()
{
    if (mRsParticulars.IsOpen())
        mRsParticulars.Close();
}
