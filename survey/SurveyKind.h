#pragma once

#include "core/Survey.h"
#include "survey/ResultsView.h"

#include <array>

class Form;
class QWidget;
class Report;
class StagePanel;
class SurveyLists;
struct ReportedHeader;

/// What a panel of cargo figures works with: the parts of its window.
struct SurveyParts {
    Form &form;
    const Ui::SurveyWindow &ui;
    Survey &survey;
    SurveyLists &lists;
    const ResultsView &results;
};

/// What differs between a loading and a discharging survey, each thing here and nowhere else; what the cargo figures
/// are is said by the panel.
struct SurveyKind {
    const char *name; ///< of the window class
    const char *title;
    SurveyDirection direction;
    const char *settingsSection; ///< holds the RecordID of the survey last saved
    const char *closeFailureCaption;
    const char *printFailureCaption;
    /// By tab: captions of a results grid that shows no figures yet.
    std::array<ResultsView::Captions, 3> freshCaptions;
    /// By tab: captions beside figures.
    std::array<ResultsView::Captions, 3> captions;
    const char *midshipStbdRange; ///< refusals of an entry that is out of range
    const char *aftStbdRange;
    const char *quantityRange;
    const char *keptFields; ///< text boxes that ClearTextBoxes leaves alone
    StagePanel *(*makePanel)(const SurveyParts &parts);
    Report &(*report)();
    void (*fillReport)(Report &report, const Survey &survey, const ReportedHeader &header);

    bool checksFigures; ///< a draft is valid only with a constant and a net displacement in their ranges
    bool checksBeforeAnswer; ///< New Daily checks the drafts whatever the answer, and starts one where a check fails
    bool collectsBeforeClosing; ///< what was typed since the last copy of the screen counts as a change
    bool anyDraftPrints; ///< not only an Initial one
    bool newWherePartlyFilled; ///< a survey whose drafts cannot be brought up begins as a new one does
    bool cargoLeftIsChange; ///< leaving the cargo changes the header
    bool resetsListCorrection; ///< an emptied window shows the list correction box of the Initial stage
    bool listsDatesOnDaily; ///< the Daily tab lists the dates anew
    bool zeroFillsQuantities; ///< items without a quantity read "0" beside others that have one
    bool tellsTabFailure;
    bool trapsLoadDraft;
    bool blankDensityBlanksDeflection; ///< and not the density
};
