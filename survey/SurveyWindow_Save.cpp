#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "core/ReturnCode.h"

#include "frame/platform/Settings.h"

#include <QSignalBlocker>

#include <algorithm>

/// What a save changes in memory before the store has confirmed it.
struct SurveyWindow::SaveState {
    struct Draft {
        bool toSave;
        bool hasRecord;
        Value mode;
    };

    explicit SaveState(SurveyWindow &window)
        : headerDirty(window.mHeaderDirty)
        , mode(window.mMode)
        , mask(window.ButtonMask())
    {
        for (std::size_t i = 0; i < drafts.size(); ++i) {
            const clsDraft &draft = window.DraftOf(Stage::All()[i]);
            drafts[i] = {draft.ToSave(), draft.HasRecord(), draft.DraftMode()};
        }
    }

    void PutBack(SurveyWindow &window) const
    {
        window.mHeaderDirty = headerDirty;
        window.mMode = mode;
        for (std::size_t i = 0; i < drafts.size(); ++i) {
            clsDraft &draft = window.DraftOf(Stage::All()[i]);
            draft.ToSave(drafts[i].toSave);
            draft.HasRecord(drafts[i].hasRecord);
            draft.DraftMode(drafts[i].mode);
        }
        if (window.ButtonMask() != mask)
            window.SendMask(mask);
    }

    bool headerDirty;
    std::int16_t mode;
    std::string mask;
    std::array<Draft, 3> drafts;
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

bool SurveyWindow::AnyToSave() const
{
    return mInitDraft.ToSave() || mDailyDraft.ToSave() || mFinalDraft.ToSave();
}

std::string SurveyWindow::WrongFigures() const
{
    if (mConstant.IsAbsent() || mConstant == Value(std::int16_t {0}))
        return "Value of constant can't be zero.";
    if (!LiesBetween(mConstant, 0, 100000))
        return "Invalid constant value.\n\nPlease check your input values.";
    if (!LiesBetween(mCurDraft->NetDisplacement(), 0, 1000000))
        return "Invalid Net Displacement value.\n\nPlease check your input values.";
    return {};
}

bool SurveyWindow::ValidDraft()
{
    struct Test {
        bool fails;
        std::string message;
    };
    const std::string wrongFigures = WrongFigures();
    const std::array<Test, 15> tests {{
        {ui->dcbShip->Text().isEmpty(), "Please select ship name."},
        {ui->dcbVoyageID->Text().isEmpty(), "Please enter/select Voyage-ID."},
        {ui->dcbPort->Text().isEmpty(), "Please select port name."},
        {ui->txtCargo->text().isEmpty(), "Please enter value for cargo."},
        {!wrongFigures.empty(), wrongFigures},
        {mCurDraft->SpecificGravity().IsEmptyText(), "Please enter value for density."},
        {mCurDraft->FwdPort().IsEmptyText(), "Please enter value for Foward Port Draft."},
        {mCurDraft->FwdStbd().IsEmptyText(), "Please enter value for Foward Starboard Draft."},
        {mCurDraft->MidPort().IsEmptyText(), "Please enter value for Midship Port Draft."},
        {mCurDraft->MidStbd().IsEmptyText(), "Please enter value for Midship Starboard Draft."},
        {mCurDraft->AftPort().IsEmptyText(), "Please enter value for Aft Port Draft."},
        {mCurDraft->AftStbd().IsEmptyText(), "Please enter value for Aft Starboard Draft."},
        {mCurDraft->DSDate().empty(), "Please enter date."},
        {mCurDraft->DSTime().empty(), "Please enter time."},
        {mCurDraft->NetDisplacement().IsEmptyText(), "Invalid value for Net Displacement..!."},
    }};
    for (const Test &test : tests) {
        if (!test.fails)
            continue;
        mMessage = test.message;
        return false;
    }
    return true;
}

void SurveyWindow::WorkOutDrafts()
{
    const UnsaidMessages quiet;
    bool shownChanged = false;
    for (const Stage &stage : Stage::All()) {
        clsDraft &draft = DraftOf(stage);
        const Value before = draft.NetDisplacement();
        if (!draft.ToSave() || !draft.Recalculate())
            continue;
        // The figures of the later stages rest on the Initial draft.
        shownChanged = shownChanged || stage == ActiveStage() || stage == Stage::Initial;
        if (stage == Stage::Initial && mConstant.IsNumber() && mConstant != Value(std::int16_t {0})
            && mConstant == before - mShip.LightShip())
            mConstant = draft.NetDisplacement() - mShip.LightShip();
    }
    try {
        if (shownChanged)
            LoadDraft(ActiveStage());
    } catch (const RuntimeError &) {
        // The save goes on by the drafts, whatever the screen can show of them.
    }
}

bool SurveyWindow::ValidDrafts()
{
    for (const Stage &stage : Stage::All()) {
        if (!DraftOf(stage).ToSave())
            continue;
        mCurDraft = &DraftOf(stage);
        if (ValidDraft())
            continue;
        ActivateTab(stage);
        TellExclamation(mMessage);
        return false;
    }
    return true;
}

std::int32_t SurveyWindow::SaveDraft()
{
    const bool anyToSave = AnyToSave();
    if (!mHeaderDirty && !anyToSave)
        return ReturnCode::NothingToSave;
    const SaveState before(*this);
    try {
        gConnection->BeginTrans();
        if (mHeaderDirty)
            WriteParticulars();
        if (anyToSave) {
            const std::int32_t code = WriteDrafts();
            if (code != ReturnCode::Success) {
                RollBack();
                ForgetUnsavedRow();
                return code;
            }
        }
        SendMask("111111111");
        mMode = 1;
        mHeaderDirty = false;
        gConnection->CommitTrans();
    } catch (const RuntimeError &error) {
        RollBack();
        before.PutBack(*this);
        ForgetUnsavedRow();
        return error.Number() == ErrorNumber::StoreRefusal ? ReturnCode::DuplicateSurvey : ReturnCode::SurveySaveFailed;
    }
    SaveSetting(SettingsSection(), "RecordID", std::to_string(mRecordID));
    EnableSurveyTabs(true);
    return ReturnCode::Success;
}

void SurveyWindow::ForgetUnsavedRow()
{
    if (mMode == 0 && mRsParticulars.State() == 1)
        mRsParticulars.Close();
}

void SurveyWindow::WriteParticulars()
{
    const bool isNewRow = mMode == 0;
    const std::string ship = ui->dcbShip->BoundValue().SqlText();
    const std::string voyage = Quoted(ui->dcbVoyageID->Text().toStdString());
    const std::string port = ui->dcbPort->BoundValue().SqlText();
    const std::string cargo = Quoted(ui->txtCargo->text().toStdString());
    if (isNewRow) {
        mRecordID = GetNewRecordID();
        if (mRecordID == 0)
            throw RuntimeError(StoreError::StatementFailed, "There is no number for the survey.");
        gConnection->Execute("INSERT INTO DraftParticulars (RecordID, ShipID,VoyageID,PortID,Cargo,Constant, IsLoading)"
                             " VALUES("
                             + std::to_string(mRecordID) + "," + ship + ", " + voyage + ", " + port + ", " + cargo
                             + ", " + SavedConstant(isNewRow) + ", " + IsLoading() + ")");
    } else {
        if (mRsParticulars.State() == 1 && mRsParticulars.RecordCount() > 0)
            mRecordID = mRsParticulars.Fields("RecordID").ToLong();
        gConnection->ExecuteOnOneRow("UPDATE DraftParticulars set ShipID=" + ship + ",VoyageID=" + voyage + ", PortID="
                                     + port + ",Cargo=" + cargo + ", Constant = " + SavedConstant(isNewRow)
                                     + " WHERE RecordID = " + std::to_string(mRecordID));
    }
    mRsParticulars.Reopen("SELECT * FROM DraftParticulars WHERE RecordID = " + std::to_string(mRecordID)
                              + " AND IsLoading = " + IsLoading(),
                          CursorType::Keyset, LockType::Optimistic);
}

std::int32_t SurveyWindow::WriteDrafts()
{
    for (const Stage &stage : Stage::All()) {
        const std::int32_t code = DraftOf(stage).SaveDraft(mRecordID);
        if (code != ReturnCode::Success)
            return code;
    }
    for (const Stage &stage : Stage::All()) {
        clsDraft &draft = DraftOf(stage);
        if (!draft.ToSave())
            continue;
        if (draft.DraftMode() == Value(std::int16_t {0})) {
            draft.DraftMode(std::int16_t {1});
            draft.HasRecord(true);
        }
        draft.ToSave(false);
    }
    return ReturnCode::Success;
}

std::int32_t SurveyWindow::GetNewRecordID()
try {
    Recordset highest;
    highest.Open("SELECT MAX(RecordID) AS RecordID FROM DraftParticulars", CursorType::Dynamic,
                 LockType::BatchOptimistic);
    const Value recordID = highest.Fields("RecordID");
    return recordID.IsNull() ? 1 : (recordID + Value(std::int16_t {1})).ToLong();
} catch (const RuntimeError &error) {
    // The source line names the draft although the routine is the window's; users know it so.
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  clsDraft::GetNewRecordID"), MsgIcon::Critical);
    return 0;
}

std::int16_t SurveyWindow::SaveDraftNarrowed()
{
    return Value(SaveDraft()).ToInteger();
}

void SurveyWindow::TellSaveFailure(std::string_view caption)
{
    MsgBox("An internal error has occured while updating draft/s\n\n"
           "Please contact us with the error no. on the titlebar of this dialog box.",
           MsgIcon::Exclamation, caption);
}

void SurveyWindow::NewDraft()
{
    for (const Stage &stage : Stage::All())
        DraftOf(stage).NewDraft();
    ui->mbxDate->SetText(QString::fromStdString(mInitDraft.DSDate()));
    ui->mbxTime->SetText(QString::fromStdString(mInitDraft.DSTime()));
    // No survey is open: her row must not lend its cargo to the next one.
    if (mRsParticulars.State() == 1)
        mRsParticulars.Close();
    mRecordID = -1;
    mConstant = std::int16_t {0};
    mMode = 0;
    mHeaderDirty = false;
}

void SurveyWindow::NewDailyDraft()
{
    mDailyDraft.NewDraft();
    SendMask("111111011");
    InitializeAllGrids(true);
    mCurDraft = &mDailyDraft;
    ui->mbxDate->SetText(QString::fromStdString(mDailyDraft.DSDate()));
    ui->mbxTime->SetText(QString::fromStdString(mDailyDraft.DSTime()));
    mNoEvents = true;
    SetListCorrection(Stage::Daily, false);
    mNoEvents = false;
    ui->dcbDate->setEnabled(true);
    ui->cmbTime->setEnabled(true);
    ui->cmdNewDailyDraft->show();
    ui->cmdNewDailyDraft->setEnabled(false);
    ClearTextBoxes();
    ui->lblHogSag->hide();
    ui->txtDeflection->clear();
    ui->dcbDate->SetText(QString());
    InitDateDataCombo();
    if (DailyDateTimes().count() > 0) {
        const QSignalBlocker quiet(DailyDateTimes());
        DailyDateTimes().setCurrentIndex(0);
        cmbDailyDateTime_Click();
    }
    ui->txtDensity->setFocus();
}
