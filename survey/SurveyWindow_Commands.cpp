#include "core/ReturnCode.h"
#include "frame/platform/Settings.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

namespace
{
constexpr std::string_view kDuplicateDraft = "You are trying to update two or more drafts with same Date & Time.\n\n"
                                             "Please correct it and try again.";
constexpr std::string_view kDuplicateSurvey
    = "Save aborted.\n\nYou already have a draft with specified Ship, VoyageID, and Port.";
constexpr const char *kOneFailed = "An internal error has occured while deleting the current draft";
constexpr std::string_view kNoChanges = "No changes to save.";
constexpr std::string_view kContactUs = "\n\nPlease contact us with the error no. on the titlebar of this dialog box.";

MsgAnswer AskToSave(const char *text, MsgIcon icon = MsgIcon::Exclamation)
{
    return MsgBox(
        Message {.text = text, .icon = icon, .buttons = MsgButtons::YesNoCancel, .defaultAnswer = MsgAnswer::Yes});
}

/// A save's code as a 16-bit number: overflow (6) for DuplicateDraft, as closing and New Daily are known for.
std::int16_t Narrowed(std::int32_t code)
{
    return Value(code).ToInteger();
}

std::string CodeCaption(std::int32_t code)
{
    return std::string(kProgramTitle) + std::to_string(code);
}

void TellSaveFailure(std::string_view caption)
{
    MsgBox(std::string("An internal error has occured while updating draft/s").append(kContactUs), MsgIcon::Exclamation,
           caption);
}
} // namespace

void SurveyWindow::RSave()
try {
    if (!mResults.HasNetDisplacement()) {
        TellExclamation("Incomplete data...!\n\nPlease enter all the details and press calculate before saving.");
        return;
    }
    CollectDraft(ActiveStage());
    WorkOutDrafts();
    if (!ValidDrafts())
        return;
    const std::int32_t code = SaveDraft();
    switch (code) {
    case ReturnCode::Success:
        TellExclamation("Record/s updated successfully.");
        SendMask("111111111");
        ShowSavedStage();
        break;
    case ReturnCode::DuplicateDraft:
        TellExclamation(kDuplicateDraft);
        break;
    case ReturnCode::NothingToSave:
        TellExclamation(kNoChanges);
        break;
    case ReturnCode::DuplicateSurvey:
        TellExclamation(kDuplicateSurvey);
        break;
    default:
        TellSaveFailure(CodeCaption(code));
    }
} catch (const RuntimeError &) {
    MsgBox("frmDraftSurvey::RSave");
}

void SurveyWindow::ShowSavedStage()
{
    if (ActiveStage() == Stage::Initial) {
        EnableSurveyTabs(true);
        mLists.InitVoyageIDDataCombo();
        mLists.InitDateTimedatacombo();
    } else if (ActiveStage() == Stage::Daily) {
        ui->cmdNewDailyDraft->show();
        ui->cmdNewDailyDraft->setEnabled(true);
        mLists.InitDateDataCombo();
        mLists.InitTimeDataCombo();
        mLists.InitDateTimedatacombo();
    }
}

bool SurveyWindow::StartsNewDaily(MsgAnswer answer)
{
    const bool saves = answer == MsgAnswer::Yes;
    if (saves)
        WorkOutDrafts();
    if ((saves || mKind.checksBeforeAnswer) && !ValidDrafts())
        return mKind.checksBeforeAnswer;
    return saves ? SaveBeforeNewDaily() : answer == MsgAnswer::No;
}

bool SurveyWindow::SaveBeforeNewDaily()
{
    switch (Narrowed(SaveDraft())) {
    case ReturnCode::Success:
        mLists.InitDateDataCombo();
        mLists.InitTimeDataCombo();
        mLists.InitDateTimedatacombo();
        return true;
    case ReturnCode::NothingToSave:
        TellExclamation(kNoChanges);
        return false;
    default:
        TellSaveFailure(kProgramTitle);
        return false;
    }
}

void SurveyWindow::cmdNewDailyDraft_Click()
{
    CollectDraft(ActiveStage());
    if (!mSurvey.AnyToSave() || StartsNewDaily(AskToSave("Save changes to daily draft")))
        NewDailyDraft();
}

void SurveyWindow::RNew()
{
    CollectDraft(ActiveStage());
    if (mSurvey.AnyToSave()) {
        const MsgAnswer answer = AskToSave("Save changes to draft/s");
        if (answer == MsgAnswer::Cancel || (answer == MsgAnswer::Yes && !SaveBeforeNew()))
            return;
    }
    NewDraft();
    ResetWorkspace(false);
    PutTab(Stage::Initial);
    mResults.ShowHeadings(Stage::Initial, mKind.freshCaptions[0]);
    ui->dcbShip->setFocus();
}

bool SurveyWindow::SaveBeforeNew()
{
    WorkOutDrafts();
    if (!ValidDrafts())
        return false;
    const std::int32_t code = SaveDraft();
    if (code == ReturnCode::DuplicateDraft)
        TellExclamation(kDuplicateDraft);
    else if (code == ReturnCode::NothingToSave)
        TellExclamation(kNoChanges);
    else if (code != ReturnCode::Success)
        TellSaveFailure(CodeCaption(code));
    return code == ReturnCode::Success;
}

void SurveyWindow::RDelete()
{
    if (ActiveStage() == Stage::Initial)
        DeleteInitial();
    else if (ActiveStage() == Stage::Daily)
        DeleteDaily();
    else
        DeleteFinal();
}

bool SurveyWindow::DeleteDraft(const Stage &stage, const char *question, const char *failure, const char *caption)
{
    const Message asked {
        .text = question, .icon = MsgIcon::Exclamation, .buttons = MsgButtons::YesNo, .defaultAnswer = MsgAnswer::No};
    if (MsgBox(asked) != MsgAnswer::Yes)
        return false;
    const std::int32_t code = mSurvey.Draft(stage).DeleteDraft();
    if (code == ReturnCode::DeleteDraftFailed)
        MsgBox(std::string(failure).append(kContactUs), MsgIcon::Critical, caption);
    return code == ReturnCode::Success;
}

void SurveyWindow::DeleteInitial()
{
    if (!DeleteDraft(Stage::Initial,
                     "Deletion of Initial draft will also delete Final and all Daily drafts.\n\n"
                     "Are you sure to continue ?",
                     "An internal error has occured while deleting draft/s", "Keelmark-10000"))
        return;
    if (GetSetting(mKind.settingsSection, "RecordID", "0") == std::to_string(mSurvey.RecordID()))
        SaveSetting(mKind.settingsSection, "RecordID", "0");
    NewDraft();
    ResetWorkspace(true);
    MsgBox("Drafts deleted successfully.", MsgIcon::Information);
}

void SurveyWindow::DeleteDaily()
{
    if (!DeleteDraft(Stage::Daily, "Are you sure to delete the daily draft ?", kOneFailed, "Keelmark-10000"))
        return;
    NewDailyDraft();
    mLists.InitDateDataCombo();
    mLists.InitDateTimedatacombo();
    mLists.InitTimeDataCombo();
    MsgBox("One record has been deleted successfully.", MsgIcon::Information);
}

void SurveyWindow::DeleteFinal()
{
    // No hyphen in this caption, unlike the other two.
    if (!DeleteDraft(Stage::Final, "Are you sure to delete the final draft ?", kOneFailed, "Keelmark10000"))
        return;
    SendMask("111111011");
    LoadDraft(Stage::Final);
    PutListCorrection(Stage::Final, false);
    ui->dcbDate->setEnabled(false);
    ui->cmbTime->setEnabled(false);
    ui->cmdNewDailyDraft->hide();
    MsgBox("One record has been deleted successfully.", MsgIcon::Information);
}

void SurveyWindow::RClose(bool &cancel)
{
    cancel = false;
    if (mKind.collectsBeforeClosing)
        CollectDraft(ActiveStage());
    const bool anyToSave = mSurvey.AnyToSave();
    if (!mSurvey.HeaderDirty() && !anyToSave)
        return;
    if (anyToSave)
        CollectDraft(ActiveStage());
    const MsgAnswer answer = AskToSave("Save changes to the draft/s", MsgIcon::Question);
    if (answer != MsgAnswer::Yes) {
        cancel = answer != MsgAnswer::No;
        return;
    }
    const bool selected = mHeader.ValidSelection();
    WorkOutDrafts();
    const bool valid = ValidDrafts();
    if (!selected || !valid) {
        cancel = true;
        return;
    }
    const std::int16_t code = Narrowed(SaveDraft());
    cancel = code != ReturnCode::Success;
    if (code == ReturnCode::NothingToSave)
        TellExclamation(kNoChanges);
    else if (code == ReturnCode::DuplicateSurvey)
        TellExclamation(kDuplicateSurvey);
    else if (code != ReturnCode::Success)
        TellSaveFailure(mKind.closeFailureCaption);
}
