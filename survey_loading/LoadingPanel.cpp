#include "survey_loading/LoadingPanel.h"

#include "core/numeric/NumericText.h"
#include "frame/controls/Colours.h"
#include "frame/controls/ScreenText.h"
#include "frame/platform/Form.h"
#include "survey/NumberRule.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyLists.h"
#include "survey/SurveyMessages.h"
#include "ui_LoadingResults.h"

#include <optional>

namespace
{
constexpr std::int32_t kConstantLimit = 100000;
constexpr int kLightShipRow = 10;
constexpr int kInitialRow = 10;
constexpr int kConstantRow = 11;
constexpr int kCargoRow = 11;

const NumberRule &CargoIntended()
{
    static const NumberRule rule {.lowAccepted = true,
                                  .high = 1000000,
                                  .notANumber
                                  = "Invalid value for Cargo intended to load.\n\nPlease enter numeric value.",
                                  .outOfRange = "Invalid value for Cargo intended to load.\n\n"
                                                "Please enter value  greater than 0 and less than 1000000."};
    return rule;
}
} // namespace

LoadingPanel::LoadingPanel(const SurveyParts &parts)
    : StagePanel(parts)
    , ui(std::make_unique<Ui::LoadingResults>())
{
    ui->setupUi(this);
    parts.form.OnValidate(ui->txtCargoIntendedToLoad,
                          [this](bool &cancel) { txtCargoIntendedToLoad_Validate(cancel); });
}

LoadingPanel::~LoadingPanel() = default;

QComboBox &LoadingPanel::Baselines() const
{
    return *ui->cmbDailyDateTime;
}

void LoadingPanel::ShowFrames(const Stage &stage)
{
    ui->fmeInitNetDisp->setVisible(stage == Stage::Initial);
    ui->fmeDailyDraftResult->setVisible(stage == Stage::Daily);
    ui->fmeFinalNetDisp->setVisible(stage == Stage::Final);
}

bool LoadingPanel::ShowResults(const Stage &stage, const clsDraft &draft)
{
    SetRed(*ui->txtInitNetDisp, mParts.results.IsNetDisplacementRed());
    if (stage == Stage::Daily)
        return ShowDailyResults(draft.NetDisplacement());
    if (stage == Stage::Final)
        return ShowFinalResults(draft.NetDisplacement());
    ShowInitialResults(draft.NetDisplacement());
    return true;
}

void LoadingPanel::ShowInitialResults(const Value &netDisplacement)
{
    const Value lightShip = mParts.survey.Ship().LightShip();
    const Value constant = ZeroIfAbsent(netDisplacement) - lightShip;
    mParts.survey.Constant(constant);
    const bool wrong = !LiesBetween(constant, 0, kConstantLimit);
    mParts.results.ShowCell(kLightShipRow, lightShip);
    mParts.results.ShowCell(kConstantRow, constant);
    mParts.results.SetCellRed(kConstantRow, wrong);
    ShowValue(*ui->txtInitNetDisp, netDisplacement);
    ShowValue(*ui->txtConstant, constant);
    SetRed(*ui->txtConstant, wrong);
    if (constant >= Value(kConstantLimit))
        TellInvalidInput("Value of constant is too large.");
}

bool LoadingPanel::BlankWithout(const Value &netDisplacement)
{
    const bool initialAbsent = mParts.survey.Draft(Stage::Initial).NetDisplacement().IsAbsent();
    if (!IsZero(netDisplacement) && !initialAbsent)
        return false;
    mParts.results.ShowCell(10, Value::EmptyText());
    mParts.results.ShowCell(11, Value::EmptyText());
    // Without an Initial figure what stands here is another survey's.
    if (initialAbsent)
        for (QLineEdit *field : {ui->txtTotCargoOnboard, ui->txtLastLoadedCargo, ui->txtBalCargoToLoad,
                                 ui->txtFinalNetDisp, ui->txtTotCargoLoaded})
            field->clear();
    return true;
}

bool LoadingPanel::ShowDailyResults(const Value &netDisplacement)
{
    if (BlankWithout(netDisplacement)) {
        ui->txtPrevLoadedCargo->clear();
        // Where only the Initial draft has no figure, the quantities of this one are shown all the same.
        return !IsZero(netDisplacement);
    }
    const Value lightShip = mParts.survey.Ship().LightShip();
    const Value constant = mParts.survey.Draft(Stage::Initial).NetDisplacement() - lightShip;
    mParts.results.ShowCell(kLightShipRow, lightShip);
    mParts.results.ShowCell(kConstantRow, constant);
    ShowCargoOnboard(Round((netDisplacement - lightShip) - constant, 5));
    return true;
}

void LoadingPanel::ShowCargoOnboard(const Value &cargo)
{
    ShowValue(*ui->txtTotCargoOnboard, cargo);
    ShowCargoSince(DecimalOrZero(ui->txtTotCargoOnboard->text()) - DecimalOrZero(ui->txtPrevLoadedCargo->text()));
    SetRed(*ui->txtTotCargoOnboard, IsNegative(cargo));
    if (IsNegative(cargo))
        TellInvalidInput("Invalid value of Total Cargo on board.");
    const std::string intended = ui->txtCargoIntendedToLoad->text().toStdString();
    if (IsBlank(ui->txtCargoIntendedToLoad->text()))
        return;
    // The field's own check looks at another field first, so letters may stand here, or a number beyond all decimals.
    const std::optional<Decimal> number = IsNumericText(intended) ? TypedNumber(intended) : std::nullopt;
    if (number)
        ShowBalance(Value(*number) - cargo);
    else
        ui->txtBalCargoToLoad->clear();
}

void LoadingPanel::ShowCargoSince(const Value &cargo)
{
    ShowValue(*ui->txtLastLoadedCargo, cargo);
    SetRed(*ui->txtLastLoadedCargo, IsNegative(cargo));
}

void LoadingPanel::ShowBalance(const Value &balance)
{
    ShowValue(*ui->txtBalCargoToLoad, balance);
    SetRed(*ui->txtBalCargoToLoad, IsNegative(balance));
    if (IsNegative(balance))
        TellExclamation("You have exceeded the quantity of cargo intended to load on ship.");
}

bool LoadingPanel::ShowFinalResults(const Value &netDisplacement)
{
    if (BlankWithout(netDisplacement))
        return !IsZero(netDisplacement);
    const Value initial = mParts.survey.Draft(Stage::Initial).NetDisplacement();
    const Value cargo = Round(netDisplacement - initial, 5);
    mParts.results.ShowCell(kInitialRow, Round(initial, 5));
    mParts.results.ShowCell(kCargoRow, cargo);
    mParts.results.SetCellRed(kCargoRow, IsNegative(cargo));
    ShowValue(*ui->txtFinalNetDisp, netDisplacement);
    SetRed(*ui->txtFinalNetDisp, IsNegative(netDisplacement));
    ShowValue(*ui->txtTotCargoLoaded, cargo);
    SetRed(*ui->txtTotCargoLoaded, IsNegative(cargo));
    return true;
}

void LoadingPanel::Check(const Stage &)
{
    if (!CurrentNetDisp().IsAbsent() && !LiesBetween(CurrentNetDisp(), 0, 1000000)) {
        TellInvalidInput("Invalid Net Displacement value.");
        return;
    }
    // Row 11 on every tab, so that on the Final tab the constant takes the cargo loaded, and is meant to.
    const QString text = mParts.results.LastRow();
    mParts.survey.Constant(text.isEmpty() ? Value::EmptyText() : DecimalOf(text));
    if (!text.isEmpty() && !LiesBetween(mParts.survey.Constant(), 0, kConstantLimit))
        TellInvalidInput("Invalid constant value.");
}

void LoadingPanel::txtCargoIntendedToLoad_Validate(bool &cancel)
{
    // The forward starboard mark is looked at and not this field, and is meant to be.
    if (mParts.ui.txtFwdStbd->text().isEmpty())
        return;
    QLineEdit &field = *ui->txtCargoIntendedToLoad;
    if (IsBlank(field.text()) || !TakeNumber(field, CargoIntended(), cancel))
        return;
    const Value intended = DecimalOf(field.text());
    const QString onboard = ui->txtTotCargoOnboard->text();
    if (onboard.isEmpty())
        ShowValue(*ui->txtBalCargoToLoad, intended);
    else
        ShowBalance(intended - DecimalOf(onboard));
}

void LoadingPanel::BaselinePicked()
{
    if (!mParts.results.IsCalculated())
        return;
    const bool initialAbsent = mParts.survey.Draft(Stage::Initial).NetDisplacement().IsAbsent();
    if (initialAbsent || mParts.survey.Constant().IsEmptyText()) {
        // Without a constant there is no figure, rather than one that is wrong by all of it.
        ui->txtPrevLoadedCargo->clear();
        ui->txtLastLoadedCargo->clear();
        return;
    }
    ShowValue(*ui->txtPrevLoadedCargo,
              mParts.lists.BaselineNetDisplacement() - mParts.survey.Ship().LightShip() - mParts.survey.Constant());
    const QString onboard = ui->txtTotCargoOnboard->text();
    if (!onboard.isEmpty())
        ShowCargoSince(DecimalOf(onboard) - DecimalOf(ui->txtPrevLoadedCargo->text()));
}
