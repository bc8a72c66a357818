#include "core/ReturnCode.h"
#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

void SurveyWindow::cmdGetDrafts_Click()
{
    if (ActiveStage() == Stage::Initial) {
        if (mHeader.ValidSelection())
            FetchSurvey();
    } else if (ActiveStage() == Stage::Daily) {
        GetDailyDraft();
    }
}

void SurveyWindow::FetchSurvey()
{
    std::string statement;
    try {
        const SurveyHeader picked = mHeader.Read();
        statement = "SELECT * FROM DraftParticulars AS DP WHERE DP.ShipID = " + picked.shipID.SqlText()
            + " AND DP.VoyageID = " + Quoted(picked.voyageID) + " AND DP.PortID = " + picked.portID.SqlText()
            + " AND DP.IsLoading = " + std::string(mKind.direction.isLoading);
    } catch (const RuntimeError &) {
        MsgBox("frmDraftSurvey::GetDraft");
        return;
    }
    GetDraft(statement, true);
}

void SurveyWindow::GetDailyDraft()
{
    const std::int32_t code
        = mSurvey.Draft(Stage::Daily)
              .GetDraft(mSurvey.RecordID(), ui->mbxDate->Text().toStdString(), ui->mbxTime->Text().toStdString());
    if (code == ReturnCode::Success) {
        LoadDraft(Stage::Daily);
        ui->cmdNewDailyDraft->setEnabled(true);
        mLists.InitDateTimedatacombo();
        return;
    }
    NewDailyDraft();
    if (code == ReturnCode::NoSuchDraft)
        TellExclamation("No draft exists corresponding to provided RecordID, Date and Time.");
    else
        MsgBox("An internal error has occured while retrieving the daily record.\n\n"
               "Please contact us with the error no. listed on the titlebar of this dialog box.",
               MsgIcon::Critical);
}

void SurveyWindow::GetDraft(const std::string &sql, bool report)
try {
    if (const std::optional<SurveyHeader> found = mSurvey.Find(sql)) {
        mHeader.ShowPicks(*found);
        mHeader.ShowCargo(found->cargo);
        EnableSurveyTabs(true);
        ShowFoundDrafts();
    } else if (report) {
        TellNoSurvey();
    }
} catch (const RuntimeError &) {
    MsgBox("frmDraftSurvey::GetDraft");
}

void SurveyWindow::ShowFoundDrafts()
{
    const Survey::Found found = mSurvey.GetDrafts();
    if (found == Survey::Found::All) {
        SendMask("111111111");
        LoadDraft(Stage::Initial);
        mLists.InitDateTimedatacombo();
        ui->dcbDate->SetText(QString());
        mLists.InitDateDataCombo();
        return;
    }
    if (found == Survey::Found::LaterBroken) {
        // A save takes what stands on the screen.
        const UnsaidMessages quiet;
        LoadDraft(Stage::Initial);
        return;
    }
    const std::int32_t recordID = mSurvey.RecordID();
    if (mKind.newWherePartlyFilled)
        NewDraft();
    if (found == Survey::Found::NoInitial || !mKind.newWherePartlyFilled)
        mSurvey.NewDraftsUnder(recordID);
    if (found == Survey::Found::InitialBroken)
        MsgBox("An internal error has occured.");
}

void SurveyWindow::TellNoSurvey()
{
    const SurveyHeader asked = mHeader.Read();
    NewDraft();
    ResetWorkspace(false);
    PutTab(Stage::Initial);
    mHeader.ShowPicks(asked);
    MsgBox("No draft exists corresponding to provided ShipID, VoyageID, & PortID");
}
