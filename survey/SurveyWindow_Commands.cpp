#include "core/ReturnCode.h"
#include "frame/platform/Settings.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

#include <QScopedValueRollback>

namespace
{
constexpr std::string_view kDuplicateDraft = "You are trying to update two or more drafts with same Date & Time.\n\n"
                                             "Please correct it and try again.";
constexpr std::string_view kDuplicateSurvey
    = "Save aborted.\n\nYou already have a draft with specified Ship, VoyageID, and Port.";
constexpr std::string_view kNoChanges = "No changes to save.";
constexpr std::string_view kContactUs = "\n\nPlease contact us with the error no. on the titlebar of this dialog box.";

MsgAnswer AskToSave(const char *text, MsgIcon icon = MsgIcon::Exclamation)
{
    return MsgBox(
        Message {.text = text, .icon = icon, .buttons = MsgButtons::YesNoCancel, .defaultAnswer = MsgAnswer::Yes});
}

bool MayDelete(const char *text)
{
    return MsgBox(Message {.text = text,
                           .icon = MsgIcon::Exclamation,
                           .buttons = MsgButtons::YesNo,
                           .defaultAnswer = MsgAnswer::No})
        == MsgAnswer::Yes;
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

void TellDeleteFailure(std::string_view text, std::string_view caption)
{
    MsgBox(std::string(text).append(kContactUs), MsgIcon::Critical, caption);
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
    {
        const QScopedValueRollback noEvents(mNoEvents, true);
        ActivateTab(Stage::Initial);
    }
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

void SurveyWindow::DeleteInitial()
{
    if (!MayDelete("Deletion of Initial draft will also delete Final and all Daily drafts.\n\n"
                   "Are you sure to continue ?"))
        return;
    const std::int32_t code = mSurvey.Draft(Stage::Initial).DeleteDraft();
    if (code == ReturnCode::DeleteDraftFailed)
        TellDeleteFailure("An internal error has occured while deleting draft/s", "Keelmark-10000");
    if (code != ReturnCode::Success)
        return;
    if (GetSetting(mKind.settingsSection, "RecordID", "0") == std::to_string(mSurvey.RecordID()))
        SaveSetting(mKind.settingsSection, "RecordID", "0");
    NewDraft();
    ResetWorkspace(true);
    MsgBox("Drafts deleted successfully.", MsgIcon::Information);
}

void SurveyWindow::DeleteDaily()
{
    if (!MayDelete("Are you sure to delete the daily draft ?"))
        return;
    const std::int32_t code = mSurvey.Draft(Stage::Daily).DeleteDraft();
    if (code == ReturnCode::DeleteDraftFailed)
        TellDeleteFailure("An internal error has occured while deleting the current draft", "Keelmark-10000");
    if (code != ReturnCode::Success)
        return;
    NewDailyDraft();
    mLists.InitDateDataCombo();
    mLists.InitDateTimedatacombo();
    mLists.InitTimeDataCombo();
    MsgBox("One record has been deleted successfully.", MsgIcon::Information);
}

void SurveyWindow::DeleteFinal()
{
    if (!MayDelete("Are you sure to delete the final draft ?"))
        return;
    const std::int32_t code = mSurvey.Draft(Stage::Final).DeleteDraft();
    // No hyphen in this caption, unlike the other two.
    if (code == ReturnCode::DeleteDraftFailed)
        TellDeleteFailure("An internal error has occured while deleting the current draft", "Keelmark10000");
    if (code != ReturnCode::Success)
        return;
    SendMask("111111011");
    LoadDraft(Stage::Final);
    {
        const QScopedValueRollback noEvents(mNoEvents, true);
        SetListCorrection(Stage::Final, false);
    }
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
