#include "survey_loading/frmDraftSurvey.h"

#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "survey_loading/LoadingPanel.h"

namespace
{
constexpr SurveyKind kLoading {
    .name = "frmDraftSurvey",
    .title = "Draft Survey-[Loading]",
    .direction = {.isLoading = "True", .noConstant = ""},
    .settingsSection = "Draft Survey Loading",
    .closeFailureCaption = "Keelmark-20101",
    .printFailureCaption = "Keelmark-10067",
    .freshCaptions = {{{"Net Displacement", "Light Ship", "Constant"},
                       {"Net Displacement", "Light Ship", "Constant"},
                       {"Final Net Displacement", "Net. Displacement", "Total Cargo Loaded"}}},
    .captions = {{{"Net Displacement", "LightShip", "Constant"},
                  {"Net Displacement", "Light Ship", "Constant"},
                  {"Final Net Displacement", "Initial Net Displacement", "Total Cargo Loaded"}}},
    .midshipStbdRange = "Please enter value  greater than 0 and less than 100.",
    .aftStbdRange = "Please enter value  greater than 0 and less than 100.",
    .quantityRange = "Value of deduction can be  greater than 0 and less than 100000.",
    .keptFields = "txtCargo",
    .makePanel = [](const SurveyParts &parts) -> StagePanel * { return new LoadingPanel(parts); },
    .report = drptDraftSurvey,
    .fillReport = FillLoadportReport,
    .checksFigures = true,
    .checksBeforeAnswer = false,
    .collectsBeforeClosing = true,
    .anyDraftPrints = false,
    .newWherePartlyFilled = false,
    .cargoLeftIsChange = false,
    .resetsListCorrection = true,
    .listsDatesOnDaily = false,
    .zeroFillsQuantities = false,
    .tellsTabFailure = true,
    .trapsLoadDraft = false,
    .blankDensityBlanksDeflection = false,
};
} // namespace

frmDraftSurvey::frmDraftSurvey(QWidget *parent)
    : SurveyWindow(kLoading, parent)
{
}
