#include "core/ReturnCode.h"
#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

namespace
{
constexpr std::int16_t kFullRun = 0;
} // namespace

bool SurveyWindow::Calculate()
{
    if (!ValidCalcInput())
        return false;
    const Stage stage = ActiveStage();
    CollectDraft(stage);
    if (mSurvey.Draft(stage).Calculate(kFullRun) == ReturnCode::NotCalculated) {
        ClearReadOnly();
        return false;
    }
    LoadDraft(stage);
    mPanel->Check(stage);
    return true;
}

bool SurveyWindow::ValidCalcInput()
{
    if (IsBlank(ui->dcbShip->Text())) {
        TellExclamation("Incomplete data.\n\nPlease select ship name.");
        MoveFocus(ui->dcbShip);
        return false;
    }
    return mEntries.AllFilled();
}

void SurveyWindow::LoadDraft(const Stage &stage)
try {
    ShowDraft(stage);
} catch (const RuntimeError &) {
    if (!mKind.trapsLoadDraft)
        throw;
    // The loading window's name stands here, and is meant to.
    MsgBox("frmDraftSurvey::LoadDraft");
}

void SurveyWindow::ShowDraft(const Stage &stage)
{
    InitializeAllGrids(true);
    mDeductions.Withhold();
    const clsDraft &draft = mSurvey.Draft(stage);
    if (stage == Stage::Initial) {
        // A cargo that was changed stays.
        if (const std::optional<std::string> cargo = mSurvey.StoredCargo())
            mHeader.ShowCargo(*cargo);
    }
    mEntries.Show(draft);
    PutListCorrection(stage, draft.ListCorrected());
    ui->txtComments->setPlainText(QString::fromStdString(draft.Comments()));
    if (ShowResults(draft))
        mDeductions.Show(mSurvey.Draft(ActiveStage()), mKind.zeroFillsQuantities);
}

// By the tab in front, whatever the draft: a list correction box of another stage may have been left there.
bool SurveyWindow::ShowResults(const clsDraft &draft)
{
    mResults.ShowDrafts(draft);
    if (!mResults.IsCalculated())
        return true;
    mResults.ShowFigures(draft, ListCorrectionOf(ActiveStage()).isChecked());
    mResults.ShowCaptions(mKind.captions[static_cast<std::size_t>(mTab)]);
    return mPanel->Show(ActiveStage(), draft);
}

void SurveyWindow::InitializeAllGrids(bool rebuild)
try {
    mResults.ShowFresh(ActiveStage(), mKind.freshCaptions[static_cast<std::size_t>(mTab)]);
    if (rebuild)
        mDeductions.Rebuild();
    mResults.ClearListCorrection();
} catch (const RuntimeError &error) {
    TellSource(error, "InitializeAllGrids");
}
