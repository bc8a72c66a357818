#include "survey_discharging/frmDSDispatch.h"

#include "frame/controls/Colours.h"
#include "frame/controls/ScreenText.h"
#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "survey/SurveyControls.h"
#include "ui_DischargingResults.h"

#include <QKeyEvent>

namespace
{
/// Stands in the store for a survey that has no constant.
constexpr double kNoConstant = 99999.9999;
constexpr int kCargoPlaces = 5;

/// A net displacement that was never calculated counts as 0.
Value Figure(const Value &value)
{
    return value.IsAbsent() ? Value(std::int16_t {0}) : value;
}

bool IsCloseKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_F4 && key.modifiers().testFlag(Qt::ControlModifier);
}

bool IsZero(const Value &value)
{
    return value.IsAbsent() || value == Value(std::int16_t {0});
}
} // namespace

frmDSDispatch::frmDSDispatch(QWidget *parent)
    : SurveyWindow(QStringLiteral("Draft Survey-[Discharging]"), parent)
    , mResults(std::make_unique<Ui::DischargingResults>())
{
    setObjectName(QStringLiteral("frmDSDispatch"));
    mResults->setupUi(&AddStageFrames());
    connect(mResults->cmbDailyDateTime, &QComboBox::activated, this, &frmDSDispatch::cmbDailyDateTime_Click);
    OnValidate(mResults->txtBLQty, [this](bool &cancel) { txtBLQty_Validate(cancel); });
    OnValidate(ui->txtCargo, [this](bool &) { mHeaderDirty = true; });
    FitStageFrames();
}

frmDSDispatch::~frmDSDispatch() = default;

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

QComboBox &frmDSDispatch::DailyDateTimes() const
{
    return *mResults->cmbDailyDateTime;
}

SurveyWindow::ResultCaptions frmDSDispatch::FreshCaptions(const Stage &stage) const
{
    if (stage == Stage::Initial)
        return {"Net Displacement", "Light Ship", "Cargo + Constant"};
    if (stage == Stage::Daily)
        return {"Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"};
    return {"Final Net Displacement", "Initial Displacement", "Total Cargo Discharged"};
}

void frmDSDispatch::ShowStageFrames(const Stage &stage)
{
    mResults->fmeAssumedConstant->setVisible(stage == Stage::Initial);
    mResults->fmeDailyDraftResult->setVisible(stage == Stage::Daily);
    mResults->fmeConstant->setVisible(stage == Stage::Final);
}

void frmDSDispatch::ResetFrames()
{
    // The list correction boxes stay as they are, and are meant to.
    ShowStageFrames(Stage::Initial);
    ui->fgrdResult->show();
}

QStringList frmDSDispatch::KeptFields() const
{
    return SurveyWindow::KeptFields() << QStringLiteral("txtAssumedConstant") << QStringLiteral("txtBLQty");
}

void frmDSDispatch::PrepareQuantities()
{
    for (int row = 0; row < ui->fgrdDeduction->rowCount(); ++row)
        ui->fgrdDeduction->SetCell(row, 1, QStringLiteral("0"));
}

void frmDSDispatch::LoadDraft(const Stage &stage)
try {
    SurveyWindow::LoadDraft(stage);
} catch (const RuntimeError &) {
    // The loading window's name stands here, and is meant to.
    MsgBox("frmDraftSurvey::LoadDraft");
}

bool frmDSDispatch::ShowStageResults(const Stage &stage, clsDraft &draft)
{
    if (stage == Stage::Initial)
        ShowInitialResults(draft.NetDisplacement());
    else if (stage == Stage::Daily)
        ShowDailyResults(draft.NetDisplacement());
    else
        ShowFinalResults(draft.NetDisplacement());
    return true;
}

void frmDSDispatch::ShowResultCell(const Value &cargo, QLineEdit *field)
{
    ShowFinalCell(11, cargo);
    if (field != nullptr)
        ShowValue(*field, cargo);
    if (cargo.IsEmptyText())
        return;
    ui->fgrdFinalResult->SetRed(11, 1, IsNegative(cargo));
    if (field != nullptr)
        SetRed(*field, IsNegative(cargo));
}

void frmDSDispatch::ShowInitialResults(const Value &netDisplacement)
{
    ShowFinalCaptions({"Net Displacement", "LightShip", "Cargo + Constant"});
    const Value lightShip = mShip.LightShip();
    const Value cargoAndConstant = Figure(netDisplacement) - lightShip;
    ShowFinalCell(10, BlankIfZero(lightShip));
    ShowResultCell(BlankIfZero(cargoAndConstant), nullptr);
    const Value billOfLading = DecimalOrZero(mResults->txtBLQty->text());
    if (!IsZero(billOfLading))
        ShowAssumedConstant(BlankIfZero(cargoAndConstant - billOfLading));
    if (mConstant >= Value(100000))
        TellInvalidInput("Value of constant is too large.");
}

void frmDSDispatch::ShowAssumedConstant(const Value &constant)
{
    ShowValue(*mResults->txtAssumedConstant, constant);
    SetRed(*mResults->txtAssumedConstant, constant.IsNumber() && IsNegative(constant));
}

void frmDSDispatch::ShowDailyResults(const Value &netDisplacement)
{
    ShowFinalCaptions({"Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"});
    const Value initial = Figure(mInitDraft.NetDisplacement());
    ShowFinalCell(10, BlankIfZero(Round(initial, kCargoPlaces)));
    ShowResultCell(BlankIfZero(Round(initial - Figure(netDisplacement), kCargoPlaces)),
                   mResults->txtTotCargoDischarged);
    mResults->txtBLQtyAtLoadPort->setText(mResults->txtBLQty->text());
    // Where nothing has been discharged there is no number to take off, and the run ends here on purpose.
    const Value discharged = DecimalOf(mResults->txtTotCargoDischarged->text());
    const Value onBoard = DecimalOrZero(mResults->txtBLQty->text()) - discharged;
    ShowValue(*mResults->txtTolCargoOnboard, BlankIfZero(onBoard));
    SetRed(*mResults->txtTolCargoOnboard, IsNegative(onBoard));
    ShowValue(*mResults->txtLastDischargedCargo, discharged - DecimalOrZero(mResults->txtPrevDischargedCargo->text()));
}

void frmDSDispatch::ShowFinalResults(const Value &netDisplacement)
{
    ShowFinalCaptions({"Final Net Displacement", "Initial Net Displacement", "Total Cargo Discharged"});
    if (IsZero(netDisplacement)) {
        ui->fgrdFinalResult->SetCell(10, 1, QString());
        ui->fgrdFinalResult->SetCell(11, 1, QString());
        return;
    }
    const Value initial = Figure(mInitDraft.NetDisplacement());
    ShowFinalCell(10, Round(initial, kCargoPlaces));
    ShowResultCell(Round(initial - netDisplacement, kCargoPlaces), mResults->txtFinTotCargoDis);
    // The list's row and not the ship of the survey, and meant to be: they are the same ship.
    const Value constant = netDisplacement - mRsShip.Fields("LightShip");
    ShowValue(*mResults->txtConstant, constant);
    SetRed(*mResults->txtConstant, IsNegative(constant));
}

void frmDSDispatch::CheckNotNegative(const QLineEdit &field, std::string_view message)
{
    if (!field.text().isEmpty() && IsNegative(DecimalOf(field.text())))
        TellExclamation(message);
}

void frmDSDispatch::CheckResults(const Stage &stage)
{
    if (!LiesBetween(mCurrentNetDisp, 0, 1000000))
        TellInvalidInput("Invalid Net Displacement value.");
    if (stage == Stage::Daily) {
        CheckNotNegative(*mResults->txtTotCargoDischarged,
                         "Invalid value for Total Cargo Discharged.\n\nPlease check your input values.");
        CheckNotNegative(*mResults->txtTolCargoOnboard,
                         "Current value for Total cargo onboard is invalid.\n\nPlease check that B/L quantity is not "
                         "zero and that value of Total cargo discharged is not greater than B/L quantity.");
    } else if (stage == Stage::Final) {
        CheckNotNegative(*mResults->txtFinTotCargoDis,
                         "Current value for Total cargo discharged is invalid.\n\nPlease check your input values.");
        CheckNotNegative(*mResults->txtConstant,
                         "Current value for Constant is invalid.\n\nPlease check your input values.");
    }
}

SurveyWindow::NumberRule frmDSDispatch::RuleOf(const QString &field) const
{
    if (field == QLatin1String("txtBLQty"))
        return {.places = kCargoPlaces,
                .lowAccepted = true,
                .high = 1000000,
                .notANumber = "Invalid value for Bill of Lading quantity.\n\nPlease enter numeric value.",
                .outOfRange = "Invalid value for Invalid value for Bill of Lading quantity.\n\n"
                              "Please enter value  greater than 0 and less than 1000000."};
    NumberRule rule = SurveyWindow::RuleOf(field);
    if (field == QLatin1String("txtMidshipStbd"))
        rule.outOfRange = "Invalid value for Midship Starboard draft.\n\n"
                          "Please enter value greater than 0 and less than 100.";
    else if (field == QLatin1String("txtAftStbd"))
        rule.outOfRange = "Invalid value for Aft Starboard draft.\n\n"
                          "Please enter value  greater than 0 and less 100.";
    else if (field == QLatin1String("txtGridTextbox"))
        rule.outOfRange = "Invalid value.\n\nValue of deduction can be greater than  0 and less than 100000.";
    return rule;
}

void frmDSDispatch::BlankDensityLeft()
{
    // The deflection and not the density, and meant to be.
    ui->txtDeflection->clear();
}

void frmDSDispatch::txtBLQty_Validate(bool &cancel)
{
    QLineEdit &field = *mResults->txtBLQty;
    if (IsBlank(field.text()) || !TakeNumber(field, RuleOf(field.objectName()), cancel))
        return;
    const Value billOfLading = DecimalOf(field.text());
    if (!IsZero(billOfLading))
        ShowAssumedConstant(DecimalOrZero(ui->fgrdFinalResult->Cell(11, 1)) - billOfLading);
}

void frmDSDispatch::cmbDailyDateTime_Click()
{
    const QComboBox &list = DailyDateTimes();
    const bool initialPicked = list.currentText() == QLatin1String("Initial Draft");
    mRsDailyList.MoveFirst();
    if (!initialPicked)
        mRsDailyList.Move(list.currentIndex(), Recordset::kBookmarkFirst);
    const Value netDisplacement = mRsDailyList.Fields("NetDisplacement");
    if (IsZero(netDisplacement))
        return;
    const Value previous
        = initialPicked ? Value(std::int16_t {0}) : Figure(mInitDraft.NetDisplacement()) - netDisplacement;
    ShowValue(*mResults->txtPrevDischargedCargo, previous);
    const QString discharged = mResults->txtTotCargoDischarged->text();
    if (!discharged.isEmpty())
        ShowValue(*mResults->txtLastDischargedCargo,
                  DecimalOf(discharged) - DecimalOf(mResults->txtPrevDischargedCargo->text()));
}

void frmDSDispatch::LeavePartlyFilled()
{
    const std::int32_t found = mRecordID;
    NewDraft();
    // The survey has its row, and can be completed.
    mRecordID = found;
    mMode = 1;
}

bool frmDSDispatch::StartsNewDaily(MsgAnswer answer)
{
    if (answer == MsgAnswer::Yes)
        WorkOutDrafts();
    if (!ValidDrafts())
        return true;
    return answer == MsgAnswer::Yes ? SaveBeforeNewDaily() : answer == MsgAnswer::No;
}

std::string frmDSDispatch::SavedConstant(bool isNewRow) const
{
    return isNewRow || IsZero(mConstant) ? Value(kNoConstant).SqlText() : mConstant.SqlText();
}

bool frmDSDispatch::AnyToPrint() const
{
    return mInitDraft.IsThere() || mDailyDraft.IsThere() || mFinalDraft.IsThere();
}

Report &frmDSDispatch::OwnReport() const
{
    return drptDSDispatch();
}

void frmDSDispatch::FillReport(const ReportedSurvey &survey) const
{
    FillDischargePortReport(drptDSDispatch(), survey);
}
