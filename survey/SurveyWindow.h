#pragma once

#include "core/MsgBox.h"
#include "core/clsDraft.h"
#include "core/clsShip.h"
#include "frame/platform/Form.h"
#include "frame/store/Recordset.h"
#include "survey/Stage.h"

#include <QStringList>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

class FloatingEditor;
class Report;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
struct ReportedSurvey;

namespace Ui
{
class SurveyWindow;
}

/// The window in which one survey is entered, calculated, saved and deleted: one voyage of one ship at one port, in
/// one direction. One set of controls serves the three stages; the active tab decides which draft they show.
///
/// All that loading and discharging have alike is here; the virtual functions name what differs.
class SurveyWindow : public Form
{
    Q_OBJECT

public:
    ~SurveyWindow() override;

    /// The ship's constant in tonnes as worked out from the Initial draft; 0 for a new survey, empty text where a
    /// calculation left none.
    [[nodiscard]] const Value &Constant() const { return mConstant; }
    void Constant(const Value &vNewConstant) { mConstant = vNewConstant; }

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

    void InitPortDataCombo();
    /// Tests mCurDraft together with the window; the first failure leaves its text in mMessage.
    [[nodiscard]] bool ValidDraft();
    /// Writes what changed in one transaction. Success, NothingToSave, DuplicateSurvey, DuplicateDraft,
    /// SaveDraftFailed or SurveySaveFailed; after any but Success the store and every flag are as before.
    [[nodiscard]] std::int32_t SaveDraft();
    /// The window's data as of a survey that does not exist yet.
    void NewDraft();
    /// Brings up the survey that a statement finds; report tells the user when there is none.
    void GetDraft(const std::string &sql, bool report);
    /// Blanks what a failed calculation left.
    void ClearReadOnly();

protected:
    /// One number field's rule: decimal places, accepted range and the texts of its two refusals.
    struct NumberRule {
        int places = 3;
        /// The smallest accepted value is low itself, or only what is above it.
        bool lowAccepted = false;
        std::int32_t low = 0;
        std::int32_t high = 100;
        std::string notANumber;
        std::string outOfRange;
    };
    /// Captions of rows 9 to 11 of the results grid.
    using ResultCaptions = std::array<const char *, 3>;

    SurveyWindow(const QString &caption, QWidget *parent);

    void changeEvent(QEvent *event) override;

    // What differs between loading and discharging.

    /// The word of IsLoading in statements: "True" or "False".
    [[nodiscard]] virtual std::string IsLoading() const = 0;
    /// Section of the settings that holds the RecordID of the survey last saved.
    [[nodiscard]] virtual std::string SettingsSection() const = 0;
    /// Box caption of a failed save at closing.
    [[nodiscard]] virtual std::string CloseFailureCaption() const = 0;
    /// The list of drafts whose cargo the Daily figures are compared with.
    [[nodiscard]] virtual QComboBox &DailyDateTimes() const = 0;
    virtual void cmbDailyDateTime_Click() = 0;
    /// Captions of a results grid that shows no figures yet.
    [[nodiscard]] virtual ResultCaptions FreshCaptions(const Stage &stage) const = 0;
    /// Rows 9 to 11 and the stage's own fields. False where the deductions are not to be shown afterwards.
    [[nodiscard]] virtual bool ShowStageResults(const Stage &stage, clsDraft &draft) = 0;
    /// The checks of the window's net values after a run; they only tell.
    virtual void CheckResults(const Stage &stage) = 0;
    /// The frames that belong to one stage only.
    virtual void ShowStageFrames(const Stage &stage) = 0;
    /// The frames as of an empty window.
    virtual void ResetFrames() = 0;
    /// Constant as the survey's row takes it, for a new row or for one that is there.
    [[nodiscard]] virtual std::string SavedConstant(bool isNewRow) const = 0;
    /// Text boxes that ClearTextBoxes leaves alone.
    [[nodiscard]] virtual QStringList KeptFields() const { return {QStringLiteral("txtCargo")}; }
    [[nodiscard]] virtual NumberRule RuleOf(const QString &field) const;
    /// An all-blank density was left.
    virtual void BlankDensityLeft();
    /// A draft with quantities is about to be shown on the blank grid.
    virtual void PrepareQuantities() { }
    /// The survey's row was found but its drafts cannot be brought up.
    virtual void LeavePartlyFilled();
    /// The Daily tab is about to show its draft.
    virtual void BeforeDailyShown() { }
    virtual void ReportTabFailure();
    /// Whether a new Daily draft starts after this answer to the question about unsaved changes.
    [[nodiscard]] virtual bool StartsNewDaily(MsgAnswer answer);
    /// What is wrong with the constant and the net displacement of mCurDraft; empty where nothing is.
    [[nodiscard]] virtual std::string WrongFigures() const;
    /// Closing copies the screen into the active draft before it looks for changes.
    virtual void CollectBeforeClosing();
    [[nodiscard]] virtual Report &OwnReport() const = 0;
    /// Puts the survey's figures into the window's report.
    virtual void FillReport(const ReportedSurvey &survey) const = 0;
    /// Box caption of a failed print or preview.
    [[nodiscard]] virtual std::string PrintFailureCaption() const = 0;
    /// There is something to put into the report's columns.
    [[nodiscard]] virtual bool AnyToPrint() const;
    /// Value of a ship as the drafts take it.
    [[nodiscard]] virtual Value ShipForDrafts(const Value &bound) const { return bound; }

    /// The widget that the frames of the stages are set up in, and their looks once they are.
    [[nodiscard]] QWidget &AddStageFrames();
    void FitStageFrames();

    // Stages
    [[nodiscard]] const Stage &ActiveStage() const { return Stage::OfTab(mTab); }
    [[nodiscard]] clsDraft &DraftOf(const Stage &stage);
    [[nodiscard]] QCheckBox &ListCorrectionOf(const Stage &stage) const;
    /// Shows a tab by program, which runs the change of tab where it is another one and mNoEvents is down.
    void ActivateTab(const Stage &stage);
    void sstDraftSurvey_Click(int previousTab);
    void ResetWorkspace(bool loadLast);
    void ClearTextBoxes();
    void CollectDraft(const Stage &stage);
    void EnableSurveyTabs(bool enable);

    // Calculation and results
    bool Calculate();
    [[nodiscard]] bool ValidCalcInput();
    virtual void LoadDraft(const Stage &stage);
    void InitializeAllGrids(bool rebuild);
    void ShowFinalCaptions(const ResultCaptions &captions);
    void ShowFinalCell(int row, const Value &value);
    [[nodiscard]] static Value RoundField(const Value &value, int places);
    /// Empty text in place of 0.
    [[nodiscard]] static Value BlankIfZero(const Value &value);

    // Lists and lookup
    void InitShipDataCombo();
    void InitVoyageIDDataCombo();
    void InitDateDataCombo();
    void InitTimeDataCombo();
    void InitDateTimedatacombo();
    [[nodiscard]] bool ValidSelection();
    void dcbShip_Change();
    void dcbShip_Validate(bool &cancel);
    void dcbVoyageID_Change();
    void dcbPort_Change();
    void dcbDate_Change();
    void cmbTime_Click();
    void cmdGetDrafts_Click();

    // Entry
    void NumberField_Validate(QLineEdit &field, bool &cancel);
    void txtDensity_Validate(bool &cancel);
    void mbxDate_Validate(bool &cancel);
    void mbxTime_Validate(bool &cancel);
    void ListCorrection_Click(const Stage &stage);
    void ClearListCorrection();
    /// Sets a list correction box by program, which runs its click where it changes and mNoEvents is down.
    void SetListCorrection(const Stage &stage, bool on);
    /// Checks and rounds a number entry by its rule; tells what is wrong, holds the focus and blanks the field.
    /// True where the field holds an accepted number.
    [[nodiscard]] static bool TakeNumber(QLineEdit &field, const NumberRule &rule, bool &cancel);

    [[nodiscard]] ReportedSurvey Reported();

    // Deductions
    void ShowDeductions(Recordset &deductions);

    // Saving
    [[nodiscard]] bool ValidDrafts();
    /// Before a save: a net displacement in the store belongs to the marks beside it. Works out anew, without a word,
    /// each draft to be saved that has one; where that cannot be, the draft stays as it was.
    void WorkOutDrafts();
    [[nodiscard]] bool AnyToSave() const;
    void NewDailyDraft();
    void cmdNewDailyDraft_Click();
    /// Saves on the way to a new Daily draft and tells what went wrong. True where it went well.
    [[nodiscard]] bool SaveBeforeNewDaily();
    /// SaveDraft's code as a 16-bit number: overflow (6) for DuplicateDraft, as this routine's callers are known for.
    [[nodiscard]] std::int16_t SaveDraftNarrowed();
    static void TellSaveFailure(std::string_view caption);

    static void TellExclamation(std::string_view text);
    static void TellInvalidInput(std::string_view text);
    static void TellSource(const RuntimeError &error, std::string_view source);

    std::unique_ptr<Ui::SurveyWindow> ui;
    clsShip mShip;
    clsDraft mInitDraft;
    clsDraft mDailyDraft;
    clsDraft mFinalDraft;
    clsDraft *mCurDraft = nullptr; ///< the draft being read or validated
    Recordset mRsShip; ///< its current row is the picked ship
    Recordset mRsVoyage;
    Recordset mRsPort;
    Recordset mRsItems; ///< row r of the deductions grid is row r here
    Recordset mRsDate;
    Recordset mRsTime;
    Recordset mRsDailyList;
    Recordset mRsParticulars; ///< the survey's own row
    Value mConstant;
    Value mCurrentNetDisp; ///< net displacement last shown
    std::int32_t mRecordID = -1; ///< -1 when no survey is open
    bool mHeaderDirty = false; ///< ship, voyage, port or cargo changed since the last load or save
    std::int16_t mMode = 0; ///< 0: the survey has no row yet, 1: it has
    std::string mMessage; ///< left by ValidDraft
    bool mNoEvents = false; ///< the program itself changes controls: change and click handlers do nothing

private:
    static constexpr std::int16_t kFullRun = 0; ///< of clsDraft::Calculate
    struct SaveState;

    void BuildWindow();
    void ConnectEvents();
    void SetTabOrder();
    bool eventFilter(QObject *watched, QEvent *event) override;

    void ShowStageControls(const Stage &stage);
    void ShowEntries(clsDraft &draft);
    void ShowDeflection(clsDraft &draft);
    void ShowDrafts(clsDraft &draft);
    void ShowHydrostatics(clsDraft &draft);
    void ShowListCorrection(clsDraft &draft);
    void ShowFinalResult(clsDraft &draft);
    void LayOutGrids();
    void ShowFreshHeadings();
    void RebuildDeductions();

    void FillTimes(const QString &date);
    void FetchSurvey();
    void GetDailyDraft();
    void ShowFoundSurvey();
    void TellNoSurvey();

    void fgrdDeduction_EnterCell();
    void fgrdDeduction_LeaveCell();
    void txtGridTextbox_Validate(bool &cancel);
    void txtGridTextbox_KeyPress();
    bool txtGridTextbox_KeyDown(const QKeyEvent &event);
    void MoveDeductionRow(int step);
    void ClearDeductions();
    void CollectDeductions(const Stage &stage);

    void WriteParticulars();
    /// After a save was rolled back: the row of a survey that is not in the store must not lend its cargo.
    void ForgetUnsavedRow();
    [[nodiscard]] std::int32_t WriteDrafts();
    [[nodiscard]] std::int32_t GetNewRecordID();
    void DeleteInitial();
    void DeleteDaily();
    void DeleteFinal();
    void ShowSavedStage();

    int mTab = 0;
    bool mRefusalBlanked = false; ///< the editor is blank from a refusal and not by the user
    bool mQuantitiesWithheld = false; ///< blank cells are not shown quantities, and no zeros
    FloatingEditor *txtGridTextbox = nullptr;
};
