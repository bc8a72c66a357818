#include "survey_discharging/DischargingPanel.h"

#include "frame/controls/Colours.h"
#include "frame/controls/ScreenText.h"
#include "frame/platform/Form.h"
#include "survey/NumberRule.h"
#include "survey/SurveyLists.h"
#include "survey/SurveyMessages.h"
#include "ui_DischargingResults.h"

namespace
{
constexpr int kCargoPlaces = 5;
constexpr int kInitialRow = 10;
constexpr int kLightShipRow = 10;
constexpr int kLastRow = 11;

const NumberRule &BillOfLading()
{
    static const NumberRule rule {.places = kCargoPlaces,
                                  .lowAccepted = true,
                                  .high = 1000000,
                                  .notANumber
                                  = "Invalid value for Bill of Lading quantity.\n\nPlease enter numeric value.",
                                  .outOfRange = "Invalid value for Invalid value for Bill of Lading quantity.\n\n"
                                                "Please enter value  greater than 0 and less than 1000000."};
    return rule;
}
} // namespace

DischargingPanel::DischargingPanel(const SurveyParts &parts)
    : StagePanel(parts)
    , ui(std::make_unique<Ui::DischargingResults>())
{
    ui->setupUi(this);
    parts.form.OnValidate(ui->txtBLQty, [this](bool &cancel) { txtBLQty_Validate(cancel); });
}

DischargingPanel::~DischargingPanel() = default;

QComboBox &DischargingPanel::Baselines() const
{
    return *ui->cmbDailyDateTime;
}

void DischargingPanel::ShowFrames(const Stage &stage)
{
    ui->fmeAssumedConstant->setVisible(stage == Stage::Initial);
    ui->fmeDailyDraftResult->setVisible(stage == Stage::Daily);
    ui->fmeConstant->setVisible(stage == Stage::Final);
}

bool DischargingPanel::ShowResults(const Stage &stage, const clsDraft &draft)
{
    if (stage == Stage::Initial)
        ShowInitialResults(draft.NetDisplacement());
    else if (stage == Stage::Daily)
        ShowDailyResults(draft.NetDisplacement());
    else
        ShowFinalResults(draft.NetDisplacement());
    return true;
}

Value DischargingPanel::InitialNetDisplacement() const
{
    return ZeroIfAbsent(mParts.survey.Draft(Stage::Initial).NetDisplacement());
}

Value DischargingPanel::BillOfLadingQuantity() const
{
    return ui->txtBLQty->text().isEmpty() ? Value::Zero() : DecimalOf(ui->txtBLQty->text());
}

void DischargingPanel::ShowLastRow(const Value &cargo, QLineEdit *field)
{
    mParts.results.ShowCell(kLastRow, cargo);
    if (field != nullptr)
        ShowValue(*field, cargo);
    if (cargo.IsEmptyText())
        return;
    mParts.results.SetCellRed(kLastRow, IsNegative(cargo));
    if (field != nullptr)
        SetRed(*field, IsNegative(cargo));
}

void DischargingPanel::ShowInitialResults(const Value &netDisplacement)
{
    const Value lightShip = mParts.survey.Ship().LightShip();
    const Value cargoAndConstant = ZeroIfAbsent(netDisplacement) - lightShip;
    mParts.results.ShowCell(kLightShipRow, BlankIfZero(lightShip));
    ShowLastRow(BlankIfZero(cargoAndConstant), nullptr);
    if (const Value quantity = BillOfLadingQuantity(); !IsZero(quantity))
        ShowAssumedConstant(BlankIfZero(cargoAndConstant - quantity));
    if (mParts.survey.Constant() >= Value(100000))
        TellInvalidInput("Value of constant is too large.");
}

void DischargingPanel::ShowAssumedConstant(const Value &constant)
{
    ShowValue(*ui->txtAssumedConstant, constant);
    // Where none is left there is no number to look at, and the run ends here on purpose.
    SetRed(*ui->txtAssumedConstant, IsNegative(DecimalOf(ui->txtAssumedConstant->text())));
}

void DischargingPanel::ShowDailyResults(const Value &netDisplacement)
{
    const Value initial = InitialNetDisplacement();
    mParts.results.ShowCell(kInitialRow, BlankIfZero(Round(initial, kCargoPlaces)));
    ShowLastRow(BlankIfZero(Round(initial - ZeroIfAbsent(netDisplacement), kCargoPlaces)), ui->txtTotCargoDischarged);
    ui->txtBLQtyAtLoadPort->setText(ui->txtBLQty->text());
    // Where nothing has been discharged there is no number to take off, and the run ends here on purpose.
    const Value discharged = DecimalOf(ui->txtTotCargoDischarged->text());
    const Value onBoard = BillOfLadingQuantity() - discharged;
    ShowValue(*ui->txtTolCargoOnboard, BlankIfZero(onBoard));
    SetRed(*ui->txtTolCargoOnboard, IsNegative(onBoard));
    ShowValue(*ui->txtLastDischargedCargo, discharged - DecimalOrZero(ui->txtPrevDischargedCargo->text()));
}

void DischargingPanel::ShowFinalResults(const Value &netDisplacement)
{
    if (IsZero(netDisplacement)) {
        mParts.results.ShowCell(kInitialRow, Value::EmptyText());
        mParts.results.ShowCell(kLastRow, Value::EmptyText());
        return;
    }
    const Value initial = InitialNetDisplacement();
    mParts.results.ShowCell(kInitialRow, Round(initial, kCargoPlaces));
    ShowLastRow(Round(initial - netDisplacement, kCargoPlaces), ui->txtFinTotCargoDis);
    // The list's row and not the ship of the survey, and meant to be: they are the same ship.
    const Value constant = netDisplacement - mParts.lists.LightShipOfRow();
    ShowValue(*ui->txtConstant, constant);
    SetRed(*ui->txtConstant, IsNegative(constant));
}

void DischargingPanel::CheckNotNegative(const QLineEdit &field, std::string_view message)
{
    if (!field.text().isEmpty() && IsNegative(DecimalOf(field.text())))
        TellExclamation(message);
}

void DischargingPanel::Check(const Stage &stage)
{
    if (!LiesBetween(CurrentNetDisp(), 0, 1000000))
        TellInvalidInput("Invalid Net Displacement value.");
    if (stage == Stage::Daily) {
        CheckNotNegative(*ui->txtTotCargoDischarged,
                         "Invalid value for Total Cargo Discharged.\n\nPlease check your input values.");
        CheckNotNegative(*ui->txtTolCargoOnboard,
                         "Current value for Total cargo onboard is invalid.\n\nPlease check that B/L quantity is not "
                         "zero and that value of Total cargo discharged is not greater than B/L quantity.");
    } else if (stage == Stage::Final) {
        CheckNotNegative(*ui->txtFinTotCargoDis,
                         "Current value for Total cargo discharged is invalid.\n\nPlease check your input values.");
        CheckNotNegative(*ui->txtConstant, "Current value for Constant is invalid.\n\nPlease check your input values.");
    }
}

void DischargingPanel::txtBLQty_Validate(bool &cancel)
{
    QLineEdit &field = *ui->txtBLQty;
    if (IsBlank(field.text()) || !TakeNumber(field, BillOfLading(), cancel))
        return;
    const Value billOfLading = DecimalOf(field.text());
    if (!IsZero(billOfLading))
        ShowAssumedConstant(DecimalOrZero(mParts.results.LastRow()) - billOfLading);
}

void DischargingPanel::BaselinePicked()
{
    const Value netDisplacement = mParts.lists.BaselineNetDisplacement();
    if (IsZero(netDisplacement))
        return;
    ShowValue(*ui->txtPrevDischargedCargo,
              mParts.lists.InitialIsBaseline() ? Value::Zero() : InitialNetDisplacement() - netDisplacement);
    const QString discharged = ui->txtTotCargoDischarged->text();
    if (!discharged.isEmpty())
        ShowValue(*ui->txtLastDischargedCargo, DecimalOf(discharged) - DecimalOf(ui->txtPrevDischargedCargo->text()));
}
