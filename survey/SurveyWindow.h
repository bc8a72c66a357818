#pragma once

#include "core/MsgBox.h"
#include "core/Survey.h"
#include "frame/platform/Form.h"
#include "survey/DeductionGrid.h"
#include "survey/HeaderFields.h"
#include "survey/ResultsView.h"
#include "survey/StagePanel.h"
#include "survey/SurveyEntries.h"
#include "survey/SurveyKind.h"
#include "survey/SurveyLists.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class QCheckBox;
class QLineEdit;

/// The window in which one survey is entered, calculated, saved and deleted: one voyage of one ship at one port, in
/// one direction. One set of controls serves the three stages; the active tab decides which draft they show.
///
/// It is put together from parts that own what they show: the survey, its lists, the deductions, the results, and a
/// panel of cargo figures. What loading and discharging do differently stands in SurveyKind and in their panels.
class SurveyWindow : public Form
{
    Q_OBJECT

public:
    ~SurveyWindow() override;

    void Constant(const Value &vNewConstant) { mSurvey.Constant(vNewConstant); }

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    bool Form_KeyPress(QKeyEvent &event) override;

    [[nodiscard]] QSize sizeHint() const override;

    void RNew() override;
    void RSave() override;
    void RDelete() override;
    using Form::RPrint;
    void RPrint(bool blnShowPreview) override;
    /// Asks about unsaved changes; cancel keeps the window open.
    void RClose(bool &cancel);

    void InitPortDataCombo() { mLists.InitPortDataCombo(); }
    /// Tests mCurDraft together with the window; the first failure leaves its text in mMessage.
    [[nodiscard]] bool ValidDraft();
    /// Survey::Save with the header on the screen. After success the survey is the one that opens next time.
    [[nodiscard]] std::int32_t SaveDraft();
    /// The window's data as of a survey that does not exist yet.
    void NewDraft();
    /// Brings up the survey that a statement finds; report tells the user when there is none.
    void GetDraft(const std::string &sql, bool report);
    /// Blanks what a failed calculation left.
    void ClearReadOnly();

protected:
    SurveyWindow(const SurveyKind &kind, QWidget *parent);

    void changeEvent(QEvent *event) override;
    bool Calculate();
    /// There is something to put into the report's columns.
    [[nodiscard]] virtual bool AnyToPrint() const;

private:
    void BuildWindow();
    void ConnectEvents();
    bool eventFilter(QObject *watched, QEvent *event) override;

    // Stages
    [[nodiscard]] const Stage &ActiveStage() const { return Stage::OfTab(mTab); }
    [[nodiscard]] QCheckBox &ListCorrectionOf(const Stage &stage) const;
    /// Shows a tab and nothing else; which one it was.
    int PutTab(const Stage &stage);
    /// Shows a tab by program, which runs the change of tab where it is another one.
    void ActivateTab(const Stage &stage);
    void sstDraftSurvey_Click(int previousTab);
    void ShowStageControls(const Stage &stage);
    void EnableSurveyTabs(bool enable);
    void ResetWorkspace(bool loadLast);
    void ClearTextBoxes();
    void ClearFields(const std::function<bool(const QLineEdit &)> &isToClear);
    void CollectDraft(const Stage &stage);

    // Calculation and results
    [[nodiscard]] bool ValidCalcInput();
    void LoadDraft(const Stage &stage);
    void ShowDraft(const Stage &stage);
    /// What a calculation gives. False where the draft's deductions are not to be shown afterwards.
    [[nodiscard]] bool ShowResults(const clsDraft &draft);
    void InitializeAllGrids(bool rebuild);

    // Lookup
    void cmdGetDrafts_Click();
    void FetchSurvey();
    void GetDailyDraft();
    void ShowFoundDrafts();
    void TellNoSurvey();

    // Entry
    void ListCorrection_Click(const Stage &stage);
    /// Sets a list correction box and nothing else. True where it has changed.
    bool PutListCorrection(const Stage &stage, bool on);

    // Saving
    [[nodiscard]] bool ValidDrafts();
    /// Survey::WorkOutDrafts, and the results in front as they are then.
    void WorkOutDrafts();
    void ShowSavedStage();
    void NewDailyDraft();
    void cmdNewDailyDraft_Click();
    /// Whether a new Daily draft starts after this answer to the question about unsaved changes.
    [[nodiscard]] bool StartsNewDaily(MsgAnswer answer);
    /// Saves on the way to a new Daily draft and tells what went wrong. True where it went well.
    [[nodiscard]] bool SaveBeforeNewDaily();
    /// Saves on the way to a new survey and tells what went wrong. True where it went well.
    [[nodiscard]] bool SaveBeforeNew();
    /// Asks and deletes; tells where that failed. True where the draft is gone.
    [[nodiscard]] bool DeleteDraft(const Stage &stage, const char *question, const char *failure, const char *caption);
    void DeleteInitial();
    void DeleteDaily();
    void DeleteFinal();

    const SurveyKind &mKind;
    const std::unique_ptr<Ui::SurveyWindow> ui;
    Survey mSurvey;
    SurveyLists mLists;
    const HeaderFields mHeader;
    const ResultsView mResults;
    const SurveyEntries mEntries;
    DeductionGrid mDeductions;
    StagePanel *mPanel = nullptr;
    clsDraft *mCurDraft = nullptr; ///< the draft being read or validated
    std::string mMessage; ///< left by ValidDraft
    int mTab = 0;
    bool mNoEvents = false; ///< the program itself changes controls: change and click handlers do nothing
};
