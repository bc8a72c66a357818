#include "frame/controls/ScreenText.h"
#include "frame/platform/Settings.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

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

QCheckBox &SurveyWindow::ListCorrectionOf(const Stage &stage) const
{
    if (stage == Stage::Initial)
        return *ui->chkInitListCorrection;
    return stage == Stage::Daily ? *ui->chkDailyListCorrection : *ui->chkFinalListCorrection;
}

int SurveyWindow::PutTab(const Stage &stage)
{
    const QSignalBlocker quiet(ui->sstDraftSurvey);
    ui->sstDraftSurvey->setCurrentIndex(stage.Tab());
    return std::exchange(mTab, stage.Tab());
}

void SurveyWindow::ActivateTab(const Stage &stage)
{
    const int previous = PutTab(stage);
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
        const bool known = mSurvey.Draft(stage).IsThere();
        ShowStageControls(stage);
        for (const Stage &each : Stage::All())
            ListCorrectionOf(each).setVisible(each == stage);
        if (stage == Stage::Daily) {
            ui->cmdNewDailyDraft->setEnabled(known);
            if (known)
                mLists.InitTimeDataCombo();
            else
                NewDailyDraft();
            SendMask(known ? "111101111" : "111101011");
            if (mKind.listsDatesOnDaily)
                mLists.InitDateDataCombo();
        } else {
            SendMask(stage == Stage::Initial || known ? "111111111" : "111111011");
        }
        LoadDraft(stage);
    } catch (const RuntimeError &) {
        if (mKind.tellsTabFailure)
            MsgBox("frmDraftSurvey::sstDraftSurvey_Click");
        return;
    }
    ui->txtDensity->setFocus();
    // It may have had the focus all along.
    ui->txtDensity->selectAll();
}

void SurveyWindow::ShowStageControls(const Stage &stage)
{
    const bool daily = stage == Stage::Daily;
    mHeader.Enable(stage == Stage::Initial);
    ui->dcbDate->setEnabled(daily);
    ui->cmbTime->setEnabled(daily);
    ui->fgrdResult->setVisible(!daily);
    ui->cmdGetDrafts->setVisible(stage != Stage::Final);
    ui->cmdNewDailyDraft->setVisible(daily);
    mPanel->ShowFrames(stage);
}

void SurveyWindow::ResetWorkspace(bool loadLast)
{
    SendMask("011111011");

    {
        const QScopedValueRollback noEvents(mNoEvents, true);
        mHeader.Blank();
        ClearTextBoxes();
        ui->lblHogSag->hide();
        ui->txtDeflection->clear();
        ui->fgrdHDT->show();
        for (const Stage &stage : Stage::All()) {
            PutListCorrection(stage, false);
            if (mKind.resetsListCorrection)
                ListCorrectionOf(stage).setVisible(stage == Stage::Initial);
        }
    }

    // An empty window stands on its first stage: the other frames would lie over this one.
    ShowStageControls(Stage::Initial);
    EnableSurveyTabs(false);
    mLists.InitVoyageIDDataCombo();

    if (!loadLast)
        return;
    mSurvey.RecordID(KeptRecordID(GetSetting(mKind.settingsSection, "RecordID", "-1")));
    if (mSurvey.RecordID() != -1)
        GetDraft("SELECT * FROM DraftParticulars WHERE RecordID = " + std::to_string(mSurvey.RecordID())
                     + " AND IsLoading = " + std::string(mKind.direction.isLoading),
                 false);
}

void SurveyWindow::ClearTextBoxes()
{
    const QStringList kept = QString::fromLatin1(mKind.keptFields).split(' ');
    ClearFields([&kept](const QLineEdit &field) { return !kept.contains(field.objectName()); });
    ui->txtComments->clear();
    InitializeAllGrids(true);
}

void SurveyWindow::ClearReadOnly()
{
    if (PutListCorrection(ActiveStage(), false))
        ListCorrection_Click(ActiveStage());
    ClearFields([](const QLineEdit &field) { return field.isReadOnly(); });
    InitializeAllGrids(false);
}

void SurveyWindow::ClearFields(const std::function<bool(const QLineEdit &)> &isToClear)
{
    for (QLineEdit *field : findChildren<QLineEdit *>(QRegularExpression(QStringLiteral("^txt"))))
        if (isToClear(*field))
            field->clear();
}

void SurveyWindow::CollectDraft(const Stage &stage)
{
    clsDraft &draft = mSurvey.Draft(stage);
    mCurDraft = &draft;
    draft.ListCorrected(ListCorrectionOf(stage).isChecked());
    mEntries.Collect(draft);
    draft.TotDeductibles(mResults.TotalDeductibles().toStdString());
    draft.Comments(ui->txtComments->toPlainText().toStdString());
    mDeductions.Collect(draft);
}
