#include "core/ReturnCode.h"
#include "frame/controls/ScreenText.h"
#include "frame/platform/Settings.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

#include <algorithm>

namespace
{
/// What is wrong with the constant or the net displacement; nothing where nothing is.
const char *WrongFigures(const Survey &survey, const clsDraft &draft)
{
    if (survey.Constant() == Value::Zero())
        return "Value of constant can't be zero.";
    if (!LiesBetween(survey.Constant(), 0, 100000))
        return "Invalid constant value.\n\nPlease check your input values.";
    if (!LiesBetween(draft.NetDisplacement(), 0, 1000000))
        return "Invalid Net Displacement value.\n\nPlease check your input values.";
    return nullptr;
}

const char *MissingReading(const clsDraft &draft)
{
    const std::pair<bool, const char *> tests[] = {
        {draft.SpecificGravity().IsEmptyText(), "Please enter value for density."},
        {draft.FwdPort().IsEmptyText(), "Please enter value for Foward Port Draft."},
        {draft.FwdStbd().IsEmptyText(), "Please enter value for Foward Starboard Draft."},
        {draft.MidPort().IsEmptyText(), "Please enter value for Midship Port Draft."},
        {draft.MidStbd().IsEmptyText(), "Please enter value for Midship Starboard Draft."},
        {draft.AftPort().IsEmptyText(), "Please enter value for Aft Port Draft."},
        {draft.AftStbd().IsEmptyText(), "Please enter value for Aft Starboard Draft."},
        {draft.DSDate().empty(), "Please enter date."},
        {draft.DSTime().empty(), "Please enter time."},
        {draft.NetDisplacement().IsEmptyText(), "Invalid value for Net Displacement..!."},
    };
    const auto *found = std::ranges::find(tests, true, &std::pair<bool, const char *>::first);
    return found == std::end(tests) ? nullptr : found->second;
}
} // namespace

bool SurveyWindow::ValidDraft()
{
    const char *message = mHeader.Missing();
    if (!message && mKind.checksFigures)
        message = WrongFigures(mSurvey, *mCurDraft);
    if (!message)
        message = MissingReading(*mCurDraft);
    mMessage = message ? message : "";
    return !message;
}

void SurveyWindow::WorkOutDrafts()
try {
    const UnsaidMessages quiet;
    // What a failed run has blanked stays blank, and what was entered stands as it was typed.
    if (mSurvey.WorkOutDrafts(ActiveStage()) && mResults.HasNetDisplacement())
        static_cast<void>(ShowResults(mSurvey.Draft(ActiveStage())));
} catch (const RuntimeError &) {
    // The save goes on by the drafts, whatever the screen can show of them.
}

bool SurveyWindow::ValidDrafts()
{
    for (const Stage &stage : Stage::All()) {
        mCurDraft = &mSurvey.Draft(stage);
        if (!mCurDraft->ToSave())
            continue;
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
    const std::int32_t code = mSurvey.Save(mHeader.Read());
    if (code != ReturnCode::Success)
        return code;
    SendMask("111111111");
    SaveSetting(mKind.settingsSection, "RecordID", std::to_string(mSurvey.RecordID()));
    EnableSurveyTabs(true);
    return code;
}

void SurveyWindow::NewDraft()
{
    mSurvey.New();
    mEntries.ShowMoment(mSurvey.Draft(Stage::Initial));
}

void SurveyWindow::NewDailyDraft()
{
    mSurvey.Draft(Stage::Daily).NewDraft();
    SendMask("111111011");
    InitializeAllGrids(true);
    mCurDraft = &mSurvey.Draft(Stage::Daily);
    mEntries.ShowMoment(mSurvey.Draft(Stage::Daily));
    PutListCorrection(Stage::Daily, false);
    ui->dcbDate->setEnabled(true);
    ui->cmbTime->setEnabled(true);
    ui->cmdNewDailyDraft->show();
    ui->cmdNewDailyDraft->setEnabled(false);
    ClearTextBoxes();
    ui->lblHogSag->hide();
    ui->txtDeflection->clear();
    ui->dcbDate->SetText(QString());
    mLists.InitDateDataCombo();
    mLists.PickFirstBaseline();
    ui->txtDensity->setFocus();
}
