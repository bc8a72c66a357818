#include "survey_loading/frmDraftSurvey.h"

#include "frame/controls/ScreenText.h"
#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "survey/SurveyControls.h"
#include "ui_LoadingResults.h"

#include "core/numeric/NumericText.h"

#include "frame/controls/Colours.h"

namespace
{
constexpr std::int32_t kConstantLimit = 100000;

Value Zero()
{
    return std::int16_t {0};
}

Value ZeroIfAbsent(const Value &value)
{
    return value.IsAbsent() ? Zero() : value;
}
} // namespace

frmDraftSurvey::frmDraftSurvey(QWidget *parent)
    : SurveyWindow(QStringLiteral("Draft Survey-[Loading]"), parent)
    , mResults(std::make_unique<Ui::LoadingResults>())
{
    setObjectName(QStringLiteral("frmDraftSurvey"));
    mResults->setupUi(&AddStageFrames());
    connect(mResults->cmbDailyDateTime, &QComboBox::activated, this, &frmDraftSurvey::cmbDailyDateTime_Click);
    OnValidate(mResults->txtCargoIntendedToLoad, [this](bool &cancel) { txtCargoIntendedToLoad_Validate(cancel); });
    FitStageFrames();
}

frmDraftSurvey::~frmDraftSurvey() = default;

QComboBox &frmDraftSurvey::DailyDateTimes() const
{
    return *mResults->cmbDailyDateTime;
}

SurveyWindow::ResultCaptions frmDraftSurvey::FreshCaptions(const Stage &stage) const
{
    if (stage == Stage::Final)
        return {"Final Net Displacement", "Net. Displacement", "Total Cargo Loaded"};
    return {"Net Displacement", "Light Ship", "Constant"};
}

void frmDraftSurvey::ShowStageFrames(const Stage &stage)
{
    mResults->fmeInitNetDisp->setVisible(stage == Stage::Initial);
    mResults->fmeDailyDraftResult->setVisible(stage == Stage::Daily);
    mResults->fmeFinalNetDisp->setVisible(stage == Stage::Final);
}

void frmDraftSurvey::ResetFrames()
{
    for (const Stage &stage : Stage::All())
        ListCorrectionOf(stage).setVisible(stage == Stage::Initial);
    // An empty window stands on its first stage: the other frames would lie over this one.
    ShowStageFrames(Stage::Initial);
    ui->fgrdResult->show();
}

bool frmDraftSurvey::ShowStageResults(const Stage &stage, clsDraft &draft)
{
    SetRed(*mResults->txtInitNetDisp, ui->fgrdFinalResult->IsRed(9, 1));
    if (stage == Stage::Daily)
        return ShowDailyResults(draft);
    if (stage == Stage::Final)
        return ShowFinalResults(draft);
    ShowInitialResults(draft);
    return true;
}

void frmDraftSurvey::ShowInitialResults(clsDraft &draft)
{
    ShowFinalCaptions({"Net Displacement", "LightShip", "Constant"});
    const Value lightShip = mShip.LightShip();
    const Value netDisplacement = draft.NetDisplacement();
    mConstant = ZeroIfAbsent(netDisplacement) - lightShip;
    const bool wrong = !LiesBetween(mConstant, 0, kConstantLimit);
    ShowFinalCell(10, lightShip);
    ShowFinalCell(11, mConstant);
    ui->fgrdFinalResult->SetRed(11, 1, wrong);
    ShowValue(*mResults->txtInitNetDisp, netDisplacement);
    ShowValue(*mResults->txtConstant, mConstant);
    SetRed(*mResults->txtConstant, wrong);
    if (mConstant >= Value(kConstantLimit))
        TellInvalidInput("Value of constant is too large.");
}

bool frmDraftSurvey::ShowDailyResults(clsDraft &draft)
{
    ShowFinalCaptions({"Net Displacement", "Light Ship", "Constant"});
    ui->fgrdFinalResult->SetBold(9, 0, true);
    const Value lightShip = mShip.LightShip();
    const Value netDisplacement = draft.NetDisplacement();
    // Where only the Initial draft has no figure, the quantities of this one are shown all the same.
    const bool noInitial = mInitDraft.NetDisplacement().IsAbsent();
    if (netDisplacement.IsAbsent() || netDisplacement == Zero() || noInitial) {
        mResults->txtPrevLoadedCargo->clear();
        ui->fgrdFinalResult->SetCell(10, 1, QString());
        ui->fgrdFinalResult->SetCell(11, 1, QString());
        return noInitial && !netDisplacement.IsAbsent() && netDisplacement != Zero();
    }
    const Value constant = mInitDraft.NetDisplacement() - lightShip;
    ShowFinalCell(10, lightShip);
    ShowFinalCell(11, constant);
    ShowCargoOnboard(Round((netDisplacement - lightShip) - constant, 5));
    return true;
}

void frmDraftSurvey::ShowCargoOnboard(const Value &cargo)
{
    QLineEdit &onboard = *mResults->txtTotCargoOnboard;
    ShowValue(onboard, cargo);
    const Value sinceLast = DecimalOrZero(onboard.text()) - DecimalOrZero(mResults->txtPrevLoadedCargo->text());
    ShowValue(*mResults->txtLastLoadedCargo, sinceLast);
    SetRed(*mResults->txtLastLoadedCargo, IsNegative(sinceLast));
    SetRed(onboard, IsNegative(cargo));
    if (IsNegative(cargo))
        TellInvalidInput("Invalid value of Total Cargo on board.");
    const QString intended = mResults->txtCargoIntendedToLoad->text();
    // The field's own check looks at another field first, so letters may stand here.
    if (!IsBlank(intended) && !IsNumericText(intended.toStdString()))
        mResults->txtBalCargoToLoad->clear();
    else if (!IsBlank(intended))
        ShowBalance(DecimalOf(intended) - cargo);
}

void frmDraftSurvey::ShowBalance(const Value &balance)
{
    ShowValue(*mResults->txtBalCargoToLoad, balance);
    SetRed(*mResults->txtBalCargoToLoad, IsNegative(balance));
    if (IsNegative(balance))
        TellExclamation("You have exceeded the quantity of cargo intended to load on ship.");
}

bool frmDraftSurvey::ShowFinalResults(clsDraft &draft)
{
    ShowFinalCaptions({"Final Net Displacement", "Initial Net Displacement", "Total Cargo Loaded"});
    const Value netDisplacement = draft.NetDisplacement();
    // Where only the Initial draft has no figure, the quantities of this one are shown all the same.
    const bool noInitial = mInitDraft.NetDisplacement().IsAbsent();
    if (netDisplacement.IsAbsent() || netDisplacement == Zero() || noInitial) {
        ui->fgrdFinalResult->SetCell(10, 1, QString());
        ui->fgrdFinalResult->SetCell(11, 1, QString());
        return noInitial && !netDisplacement.IsAbsent() && netDisplacement != Zero();
    }
    const Value cargo = Round(netDisplacement - mInitDraft.NetDisplacement(), 5);
    ShowFinalCell(10, Round(mInitDraft.NetDisplacement(), 5));
    ShowFinalCell(11, cargo);
    ui->fgrdFinalResult->SetRed(11, 1, IsNegative(cargo));
    ShowValue(*mResults->txtFinalNetDisp, netDisplacement);
    SetRed(*mResults->txtFinalNetDisp, IsNegative(netDisplacement));
    ShowValue(*mResults->txtTotCargoLoaded, cargo);
    SetRed(*mResults->txtTotCargoLoaded, IsNegative(cargo));
    return true;
}

void frmDraftSurvey::CheckResults(const Stage &)
{
    if (!mCurrentNetDisp.IsAbsent() && !LiesBetween(mCurrentNetDisp, 0, 1000000)) {
        TellInvalidInput("Invalid Net Displacement value.");
        return;
    }
    // Row 11 on every tab, so that on the Final tab the constant takes the cargo loaded, and is meant to.
    const QString text = ui->fgrdFinalResult->Cell(11, 1);
    mConstant = text.isEmpty() ? Value::EmptyText() : DecimalOf(text);
    if (!text.isEmpty() && !LiesBetween(mConstant, 0, kConstantLimit))
        TellInvalidInput("Invalid constant value.");
}

std::string frmDraftSurvey::SavedConstant(bool) const
{
    return mConstant.SqlText();
}

SurveyWindow::NumberRule frmDraftSurvey::RuleOf(const QString &field) const
{
    if (field != QLatin1String("txtCargoIntendedToLoad"))
        return SurveyWindow::RuleOf(field);
    return {.lowAccepted = true,
            .high = 1000000,
            .notANumber = "Invalid value for Cargo intended to load.\n\nPlease enter numeric value.",
            .outOfRange = "Invalid value for Cargo intended to load.\n\n"
                          "Please enter value  greater than 0 and less than 1000000."};
}

void frmDraftSurvey::txtCargoIntendedToLoad_Validate(bool &cancel)
{
    // The forward starboard mark is looked at and not this field, and is meant to be.
    if (ui->txtFwdStbd->text().isEmpty())
        return;
    QLineEdit &field = *mResults->txtCargoIntendedToLoad;
    if (IsBlank(field.text()) || !TakeNumber(field, RuleOf(field.objectName()), cancel))
        return;
    const Value intended = DecimalOf(field.text());
    const QString onboard = mResults->txtTotCargoOnboard->text();
    if (onboard.isEmpty())
        ShowValue(*mResults->txtBalCargoToLoad, intended);
    else
        ShowBalance(intended - DecimalOf(onboard));
}

void frmDraftSurvey::cmbDailyDateTime_Click()
{
    if (ui->txtTrueMeanDraft->text().isEmpty())
        return;
    if (mConstant.IsEmptyText()) {
        // Without a constant there is no figure, rather than one that is wrong by all of it.
        mResults->txtPrevLoadedCargo->clear();
        mResults->txtLastLoadedCargo->clear();
        return;
    }
    const QComboBox &list = *mResults->cmbDailyDateTime;
    mRsDailyList.MoveFirst();
    if (list.currentText() != QLatin1String("Initial Draft"))
        mRsDailyList.Move(list.currentIndex(), Recordset::kBookmarkFirst);
    const Value previous = mRsDailyList.Fields("NetDisplacement") - mShip.LightShip() - mConstant;
    ShowValue(*mResults->txtPrevLoadedCargo, previous);
    const QString onboard = mResults->txtTotCargoOnboard->text();
    if (onboard.isEmpty())
        return;
    const Value sinceThen = DecimalOf(onboard) - DecimalOf(mResults->txtPrevLoadedCargo->text());
    ShowValue(*mResults->txtLastLoadedCargo, sinceThen);
    SetRed(*mResults->txtLastLoadedCargo, IsNegative(sinceThen));
}

Report &frmDraftSurvey::OwnReport() const
{
    return drptDraftSurvey();
}

void frmDraftSurvey::FillReport(const ReportedSurvey &survey) const
{
    FillLoadportReport(drptDraftSurvey(), survey);
}
