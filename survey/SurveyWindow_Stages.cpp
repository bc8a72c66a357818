#include "frame/controls/ScreenText.h"
#include "frame/platform/Settings.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "core/numeric/NumericText.h"

#include <QRegularExpression>
#include <QSignalBlocker>

namespace
{
/// The number kept in a setting; -1 where somebody has put anything else there.
std::int32_t KeptRecordID(const std::string &setting)
{
    try {
        return Value(setting).ToLong();
    } catch (const RuntimeError &) {
        return -1;
    }
}
} // namespace

clsDraft &SurveyWindow::DraftOf(const Stage &stage)
{
    if (stage == Stage::Initial)
        return mInitDraft;
    return stage == Stage::Daily ? mDailyDraft : mFinalDraft;
}

QCheckBox &SurveyWindow::ListCorrectionOf(const Stage &stage) const
{
    if (stage == Stage::Initial)
        return *ui->chkInitListCorrection;
    return stage == Stage::Daily ? *ui->chkDailyListCorrection : *ui->chkFinalListCorrection;
}

void SurveyWindow::ActivateTab(const Stage &stage)
{
    {
        const QSignalBlocker quiet(ui->sstDraftSurvey);
        ui->sstDraftSurvey->setCurrentIndex(stage.Tab());
    }
    const int previous = std::exchange(mTab, stage.Tab());
    if (previous != mTab)
        sstDraftSurvey_Click(previous);
}

void SurveyWindow::EnableSurveyTabs(bool enable)
{
    // A tab bar leaves a tab that is disabled by itself: here the change of tab is always the program's own.
    const QSignalBlocker quiet(ui->sstDraftSurvey);
    ui->sstDraftSurvey->setTabEnabled(Stage::Daily.Tab(), enable);
    ui->sstDraftSurvey->setTabEnabled(Stage::Final.Tab(), enable);
}

void SurveyWindow::sstDraftSurvey_Click(int previousTab)
{
    if (mNoEvents)
        return;
    try {
        CollectDraft(Stage::OfTab(previousTab));
        const Stage stage = ActiveStage();
        const clsDraft &draft = DraftOf(stage);
        const bool known = draft.IsThere();
        ShowStageControls(stage);
        if (stage == Stage::Daily) {
            ui->cmdNewDailyDraft->setEnabled(known);
            if (known)
                InitTimeDataCombo();
            else
                NewDailyDraft();
            SendMask(known ? "111101111" : "111101011");
            BeforeDailyShown();
        } else {
            SendMask(stage == Stage::Initial || known ? "111111111" : "111111011");
        }
        LoadDraft(stage);
    } catch (const RuntimeError &) {
        ReportTabFailure();
        return;
    }
    ui->txtDensity->setFocus();
}

void SurveyWindow::ReportTabFailure()
{
    MsgBox("frmDraftSurvey::sstDraftSurvey_Click");
}

void SurveyWindow::ShowStageControls(const Stage &stage)
{
    const bool initial = stage == Stage::Initial;
    const bool daily = stage == Stage::Daily;
    for (QWidget *header : std::initializer_list<QWidget *> {ui->dcbShip, ui->dcbVoyageID, ui->dcbPort, ui->txtCargo})
        header->setEnabled(initial);
    ui->dcbDate->setEnabled(daily);
    ui->cmbTime->setEnabled(daily);
    for (const Stage &each : Stage::All())
        ListCorrectionOf(each).setVisible(each == stage);
    ui->fgrdResult->setVisible(!daily);
    ui->cmdGetDrafts->setVisible(stage != Stage::Final);
    ui->cmdNewDailyDraft->setVisible(daily);
    ShowStageFrames(stage);
}

void SurveyWindow::ResetWorkspace(bool loadLast)
{
    SendMask("011111011");

    mNoEvents = true;
    for (DataCombo *picker : {ui->dcbShip, ui->dcbVoyageID, ui->dcbPort})
        picker->SetText(QString());
    ui->txtCargo->clear();
    ClearTextBoxes();
    ui->lblHogSag->hide();
    ui->txtDeflection->clear();
    ui->fgrdHDT->show();
    for (const Stage &stage : Stage::All())
        SetListCorrection(stage, false);
    ResetFrames();
    mNoEvents = false;

    for (QWidget *header : std::initializer_list<QWidget *> {ui->dcbShip, ui->dcbVoyageID, ui->dcbPort, ui->txtCargo})
        header->setEnabled(true);
    ui->dcbDate->setEnabled(false);
    ui->cmbTime->setEnabled(false);
    ui->cmdNewDailyDraft->hide();
    ui->cmdGetDrafts->show();
    EnableSurveyTabs(false);
    InitVoyageIDDataCombo();

    if (!loadLast)
        return;
    mRecordID = KeptRecordID(GetSetting(SettingsSection(), "RecordID", "-1"));
    if (mRecordID != -1)
        GetDraft("SELECT * FROM DraftParticulars WHERE RecordID = " + std::to_string(mRecordID)
                     + " AND IsLoading = " + IsLoading(),
                 false);
}

void SurveyWindow::ClearTextBoxes()
{
    const QStringList kept = KeptFields();
    for (QLineEdit *field : findChildren<QLineEdit *>(QRegularExpression(QStringLiteral("^txt"))))
        if (!kept.contains(field->objectName()))
            field->clear();
    ui->txtComments->clear();
    InitializeAllGrids(true);
}

void SurveyWindow::ClearReadOnly()
{
    SetListCorrection(ActiveStage(), false);
    for (QLineEdit *field : findChildren<QLineEdit *>(QRegularExpression(QStringLiteral("^txt"))))
        if (field->isReadOnly())
            field->clear();
    InitializeAllGrids(false);
}

void SurveyWindow::CollectDraft(const Stage &stage)
{
    clsDraft &draft = DraftOf(stage);
    mCurDraft = &draft;
    draft.ListCorrected(ListCorrectionOf(stage).isChecked());
    draft.SpecificGravity(Entered(*ui->txtDensity));
    draft.DSDate(ui->mbxDate->Text().toStdString());
    draft.DSTime(ui->mbxTime->Text().toStdString());
    draft.FwdPort(Entered(*ui->txtFwdPort));
    draft.FwdStbd(Entered(*ui->txtFwdStbd));
    draft.MidPort(Entered(*ui->txtMidShipPort));
    draft.MidStbd(Entered(*ui->txtMidshipStbd));
    draft.AftPort(Entered(*ui->txtAftPort));
    draft.AftStbd(Entered(*ui->txtAftStbd));
    draft.TotDeductibles(ui->fgrdFinalResult->Cell(8, 1).toStdString());
    draft.Comments(ui->txtComments->toPlainText().toStdString());
    CollectDeductions(stage);
}
