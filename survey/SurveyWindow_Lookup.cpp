#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "core/ReturnCode.h"

#include <QSignalBlocker>

namespace
{
/// dd-MM-yyyy and HH:mm out of the twelve digits of the column DateTime.
constexpr std::string_view kDate
    = "(substr(DD.DateTime,7,2) || '-' || substr(DD.DateTime,5,2) || '-' || substr(DD.DateTime,1,4))";
constexpr std::string_view kTime = "(substr(DD.DateTime,9,2) || ':' || substr(DD.DateTime,-2))";

std::string DailyDraftsOf(std::int32_t recordID)
{
    // Ordered by the text of the date, as this list always was: 02-03-2024 comes before 15-01-2024.
    return " FROM DraftDetails AS DD WHERE DD.RecordID = " + std::to_string(recordID)
        + " AND DD.DraftType = 2 ORDER BY " + std::string(kDate) + " ASC";
}
} // namespace

void SurveyWindow::InitShipDataCombo()
try {
    mRsShip.Reopen("SELECT * FROM Ship ORDER BY ShipName", CursorType::Dynamic, LockType::BatchOptimistic);
    ui->dcbShip->SetRows(mRsShip, "ShipName", "ShipID");
} catch (const RuntimeError &error) {
    TellSource(error, "InitShipDataCombo");
}

void SurveyWindow::InitVoyageIDDataCombo()
try {
    mRsVoyage.Reopen("SELECT DISTINCT VoyageID FROM DraftParticulars WHERE isLoading = " + IsLoading()
                         + " ORDER BY VoyageID",
                     CursorType::Dynamic, LockType::BatchOptimistic);
    ui->dcbVoyageID->SetRows(mRsVoyage, "VoyageID");
} catch (const RuntimeError &error) {
    TellSource(error, "InitVoyageIDDataCombo");
}

void SurveyWindow::InitPortDataCombo()
try {
    mRsPort.Reopen("SELECT * FROM Port ORDER BY PortName", CursorType::Dynamic, LockType::BatchOptimistic);
    ui->dcbPort->SetRows(mRsPort, "PortName", "PortID");
} catch (const RuntimeError &error) {
    TellSource(error, "InitPortDataCombo");
}

void SurveyWindow::InitDateDataCombo()
try {
    mRsDate.Reopen("SELECT DISTINCT " + std::string(kDate) + " AS DSDate" + DailyDraftsOf(mRecordID),
                   CursorType::Static, LockType::ReadOnly);
    ui->dcbDate->SetRows(mRsDate, "DSDate");
} catch (const RuntimeError &error) {
    TellSource(error, "InitDateDataCombo");
}

void SurveyWindow::FillTimes(const QString &date)
{
    mRsTime.Reopen("SELECT DISTINCT " + std::string(kDate) + " AS DSDate, " + std::string(kTime) + " AS DSTime"
                       + DailyDraftsOf(mRecordID),
                   CursorType::Static, LockType::ReadOnly);
    ui->cmbTime->clear();
    if (mRsTime.RecordCount() < 1)
        return;
    mRsTime.Filter("DSDate = " + date.toStdString());
    for (; !mRsTime.AtEnd(); mRsTime.MoveNext())
        ui->cmbTime->addItem(ScreenText(mRsTime.Fields("DSTime")));
    mRsTime.Filter("");
    ui->cmbTime->setCurrentIndex(-1);
}

void SurveyWindow::InitTimeDataCombo()
try {
    FillTimes(QString::fromStdString(mDailyDraft.DSDate()));
} catch (const RuntimeError &error) {
    TellSource(error, "InitTimeDataCombo");
}

void SurveyWindow::dcbDate_Change()
{
    const QString date = ui->dcbDate->Text();
    if (date.isEmpty())
        return;
    ui->mbxDate->SetText(date);
    try {
        FillTimes(date);
    } catch (const RuntimeError &error) {
        MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  dcbDate::Change"), MsgIcon::Critical);
    }
}

void SurveyWindow::cmbTime_Click()
{
    if (!ui->cmbTime->currentText().isEmpty())
        ui->mbxTime->SetText(ui->cmbTime->currentText());
}

void SurveyWindow::InitDateTimedatacombo()
try {
    mRsDailyList.Reopen("SELECT (" + std::string(kDate) + " || ' ' || " + std::string(kTime)
                            + ") AS [DateTime], NetDisplacement, DraftType FROM DraftDetails AS DD WHERE RecordID = "
                            + std::to_string(mRecordID)
                            + " AND (DraftType = 0 or DraftType = 2) ORDER BY DD.DraftType, DD.DateTime",
                        CursorType::Keyset, LockType::BatchOptimistic);
    if (mRsDailyList.RecordCount() < 1)
        return;
    QComboBox &list = DailyDateTimes();
    const QSignalBlocker quiet(list);
    list.clear();
    // The first row is the Initial draft's, whatever its date.
    list.addItem(QStringLiteral("Initial Draft"));
    mRsDailyList.MoveFirst();
    for (mRsDailyList.MoveNext(); !mRsDailyList.AtEnd(); mRsDailyList.MoveNext())
        list.addItem(ScreenText(mRsDailyList.Fields("DateTime")));
    list.setCurrentIndex(0);
    cmbDailyDateTime_Click();
} catch (const RuntimeError &error) {
    TellSource(error, "InitDateTimedatacombo");
}

void SurveyWindow::dcbShip_Change()
{
    const Value bound = ui->dcbShip->BoundValue();
    if (bound.IsAbsent() || mNoEvents)
        return;
    const Value ship = ShipForDrafts(bound);
    for (const Stage &stage : Stage::All())
        DraftOf(stage).ShipID(ship);
    mRsShip.Find("ShipID = " + bound.SqlText(), 0, Recordset::kSearchForward, Recordset::kBookmarkFirst);
    if (mShip.SetShip(bound.ToLong()) == ReturnCode::Success)
        mHeaderDirty = true;
    else
        MsgBox("Unable to retrieve ship particulars.");
}

void SurveyWindow::dcbShip_Validate(bool &cancel)
{
    if (ui->dcbShip->Text().isEmpty())
        return;
    clsHydrostaticData table;
    const std::int32_t code = table.InitHDT(ui->dcbShip->BoundValue().ToLong());
    if (code == ReturnCode::NoHydrostaticData) {
        TellExclamation("No Hydrostatic Data exists corresponding to the selected ship.\n\n"
                        "Please provide Hydrostatic data for this ship and try again.");
        cancel = true;
    } else if (code == ReturnCode::InitHDTFailed) {
        MsgBox("An internal error has occured while initializing Hydrostatic Data for this ship.\n\n"
               "Please contact us with the error no. on the titlebar of this dialog box.",
               MsgIcon::Exclamation, std::string(kProgramTitle) + std::to_string(code));
        cancel = true;
    }
}

void SurveyWindow::dcbVoyageID_Change()
{
    if (!mNoEvents)
        mHeaderDirty = true;
}

void SurveyWindow::dcbPort_Change()
{
    if (!mNoEvents)
        mHeaderDirty = true;
}

bool SurveyWindow::ValidSelection()
{
    struct Pick {
        QString text;
        const char *message;
    };
    const std::array<Pick, 3> picks {{
        {ui->dcbShip->Text(), "Ship name has not been provided.\n\nPlease select a ship and try again."},
        {ui->dcbVoyageID->Text(), "Voyage-ID has left empty.\n\nPlease select a Voyage-ID and try again."},
        {ui->dcbPort->Text(), "No port has been specified for draft.\n\nPlease select a port and try again."},
    }};
    for (const Pick &pick : picks) {
        if (!pick.text.isEmpty())
            continue;
        TellExclamation(pick.message);
        return false;
    }
    return true;
}

void SurveyWindow::cmdGetDrafts_Click()
{
    if (ActiveStage() == Stage::Initial) {
        if (ValidSelection())
            FetchSurvey();
    } else if (ActiveStage() == Stage::Daily) {
        GetDailyDraft();
    }
}

void SurveyWindow::FetchSurvey()
{
    std::string statement;
    try {
        statement = "SELECT * FROM DraftParticulars AS DP WHERE DP.ShipID = " + ui->dcbShip->BoundValue().SqlText()
            + " AND DP.VoyageID = " + Quoted(ui->dcbVoyageID->Text().toStdString())
            + " AND DP.PortID = " + ui->dcbPort->BoundValue().SqlText() + " AND DP.IsLoading = " + IsLoading();
    } catch (const RuntimeError &) {
        MsgBox("frmDraftSurvey::GetDraft");
        return;
    }
    GetDraft(statement, true);
}

void SurveyWindow::GetDailyDraft()
{
    const std::int32_t code
        = mDailyDraft.GetDraft(mRecordID, ui->mbxDate->Text().toStdString(), ui->mbxTime->Text().toStdString());
    if (code == ReturnCode::Success) {
        LoadDraft(Stage::Daily);
        ui->cmdNewDailyDraft->setEnabled(true);
        InitDateTimedatacombo();
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
    mRsParticulars.Reopen(sql, CursorType::Keyset, LockType::Optimistic);
    if (mRsParticulars.RecordCount() > 0)
        ShowFoundSurvey();
    else if (report)
        TellNoSurvey();
} catch (const RuntimeError &) {
    MsgBox("frmDraftSurvey::GetDraft");
}

void SurveyWindow::ShowFoundSurvey()
{
    mRsParticulars.MoveFirst();
    ui->dcbShip->SetBoundValue(mRsParticulars.Fields("ShipID"));
    dcbShip_Change();
    ui->dcbVoyageID->SetText(ScreenText(mRsParticulars.Fields("VoyageID")));
    dcbVoyageID_Change();
    ui->dcbPort->SetBoundValue(mRsParticulars.Fields("PortID"));
    dcbPort_Change();
    ui->txtCargo->setText(ScreenText(mRsParticulars.Fields("Cargo")));
    ui->txtCargo->home(false);
    EnableSurveyTabs(true);
    mRecordID = mRsParticulars.Fields("RecordID").ToLong();
    mMode = 1;

    const std::int32_t code = mInitDraft.GetDraft(mRecordID, "", "");
    if (code != ReturnCode::Success) {
        LeavePartlyFilled();
        if (code != ReturnCode::NoSuchDraft)
            MsgBox("An internal error has occured.");
        return;
    }
    for (clsDraft *draft : {&mDailyDraft, &mFinalDraft}) {
        const std::int32_t laterCode = draft->GetDraft(mRecordID, "", "");
        if (laterCode != ReturnCode::Success && laterCode != ReturnCode::NoSuchDraft) {
            LeavePartlyFilled();
            return;
        }
    }
    SendMask("111111111");
    mHeaderDirty = false;
    LoadDraft(Stage::Initial);
    InitDateTimedatacombo();
    ui->dcbDate->SetText(QString());
    InitDateDataCombo();
}

void SurveyWindow::LeavePartlyFilled()
{
    // The drafts of the survey before must not be written over under this one.
    for (const Stage &stage : Stage::All())
        DraftOf(stage).NewDraft();
}

void SurveyWindow::TellNoSurvey()
{
    const Value ship = ui->dcbShip->BoundValue();
    const Value port = ui->dcbPort->BoundValue();
    const QString voyage = ui->dcbVoyageID->Text();
    NewDraft();
    ResetWorkspace(false);
    mNoEvents = true;
    ActivateTab(Stage::Initial);
    mNoEvents = false;
    ui->dcbShip->SetBoundValue(ship);
    dcbShip_Change();
    ui->dcbPort->SetBoundValue(port);
    dcbPort_Change();
    ui->dcbVoyageID->SetText(voyage);
    dcbVoyageID_Change();
    MsgBox("No draft exists corresponding to provided ShipID, VoyageID, & PortID");
}
