#include "survey_discharging/frmDSDispatch.h"

#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "survey_discharging/DischargingPanel.h"

#include <QKeyEvent>

namespace
{
constexpr SurveyKind kDischarging {
    .name = "frmDSDispatch",
    .title = "Draft Survey-[Discharging]",
    .direction = {.isLoading = "False", .noConstant = "99999.9999"},
    .settingsSection = "Draft Survey Discharging",
    .closeFailureCaption = "Keelmark-20100",
    .printFailureCaption = "Keelmark-10066",
    .freshCaptions = {{{"Net Displacement", "Light Ship", "Cargo + Constant"},
                       {"Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"},
                       {"Final Net Displacement", "Initial Displacement", "Total Cargo Discharged"}}},
    .captions = {{{"Net Displacement", "LightShip", "Cargo + Constant"},
                  {"Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"},
                  {"Final Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"}}},
    .midshipStbdRange = "Please enter value greater than 0 and less than 100.",
    .aftStbdRange = "Please enter value  greater than 0 and less 100.",
    .quantityRange = "Value of deduction can be greater than  0 and less than 100000.",
    .keptFields = "txtCargo txtAssumedConstant txtBLQty",
    .makePanel = [](const SurveyParts &parts) -> StagePanel * { return new DischargingPanel(parts); },
    .report = drptDSDispatch,
    .fillReport = FillDischargePortReport,
    .checksFigures = false,
    .checksBeforeAnswer = true,
    .collectsBeforeClosing = false,
    .anyDraftPrints = true,
    .newWherePartlyFilled = true,
    .cargoLeftIsChange = true,
    .resetsListCorrection = false,
    .listsDatesOnDaily = true,
    .zeroFillsQuantities = true,
    .tellsTabFailure = false,
    .trapsLoadDraft = true,
    .blankDensityBlanksDeflection = true,
};

bool IsCloseKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_F4 && key.modifiers().testFlag(Qt::ControlModifier);
}
} // namespace

frmDSDispatch::frmDSDispatch(QWidget *parent)
    : SurveyWindow(kDischarging, parent)
{
}

bool frmDSDispatch::event(QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !IsCloseKey(*static_cast<QKeyEvent *>(event)))
        return SurveyWindow::event(event);
    // The key comes to the window and not to the menu's Close, whose errors end the program.
    event->accept();
    return true;
}

bool frmDSDispatch::Form_KeyPress(QKeyEvent &event)
{
    if (!IsCloseKey(event))
        return SurveyWindow::Form_KeyPress(event);
    UnloadIgnoringErrors();
    return true;
}
