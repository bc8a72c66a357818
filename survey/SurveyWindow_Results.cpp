#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "core/ReturnCode.h"

#include "frame/controls/Colours.h"

#include <QSignalBlocker>

namespace
{
/// Decimal places of rows 0 to 8 of the results grid.
constexpr std::array<int, 9> kFinalPlaces {5, 4, 4, 4, 4, 5, 5, 5, 5};

Value ZeroIfEmpty(const Value &value)
{
    return value.IsAbsent() ? Value(std::int16_t {0}) : value;
}
} // namespace

Value SurveyWindow::RoundField(const Value &value, int places)
{
    return value.IsEmptyText() ? value : Round(value, places);
}

Value SurveyWindow::BlankIfZero(const Value &value)
{
    return value == Value(std::int16_t {0}) ? Value::EmptyText() : value;
}

bool SurveyWindow::Calculate()
{
    if (!ValidCalcInput())
        return false;
    const Stage stage = ActiveStage();
    CollectDraft(stage);
    if (DraftOf(stage).Calculate(kFullRun) == ReturnCode::NotCalculated) {
        ClearReadOnly();
        return false;
    }
    LoadDraft(stage);
    CheckResults(stage);
    return true;
}

bool SurveyWindow::ValidCalcInput()
{
    struct Entry {
        QWidget *control;
        QString text;
        const char *message;
    };
    const std::array<Entry, 8> entries {{
        {ui->dcbShip, ui->dcbShip->Text(), "Please select ship name."},
        {ui->txtDensity, ui->txtDensity->text(), "Please enter value for Density."},
        {ui->txtFwdPort, ui->txtFwdPort->text(), "Please enter value for Forward Port."},
        {ui->txtFwdStbd, ui->txtFwdStbd->text(), "Please enter value for Forward Starboard."},
        {ui->txtMidShipPort, ui->txtMidShipPort->text(), "Please enter value for Midship Port."},
        {ui->txtMidshipStbd, ui->txtMidshipStbd->text(), "Please enter value for Midship Starboard."},
        {ui->txtAftPort, ui->txtAftPort->text(), "Please enter value for Aft Port."},
        {ui->txtAftStbd, ui->txtAftStbd->text(), "Please enter value for Aft Starboard."},
    }};
    for (const Entry &entry : entries) {
        if (!IsBlank(entry.text))
            continue;
        TellExclamation(std::string("Incomplete data.").append(kTwoLineBreaks).append(entry.message));
        entry.control->setFocus();
        return false;
    }
    return true;
}

void SurveyWindow::LoadDraft(const Stage &stage)
{
    InitializeAllGrids(true);
    mQuantitiesWithheld = true;
    clsDraft &draft = DraftOf(stage);
    // A cargo that was changed stays.
    if (stage == Stage::Initial && !mHeaderDirty && mRsParticulars.State() == 1 && mRsParticulars.RecordCount() > 0) {
        mRsParticulars.MoveFirst();
        ui->txtCargo->setText(ScreenText(mRsParticulars.Fields("Cargo")));
        ui->txtCargo->home(false);
    }
    ShowEntries(draft);
    mNoEvents = true;
    SetListCorrection(stage, draft.ListCorrected());
    mNoEvents = false;
    ui->txtComments->setPlainText(QString::fromStdString(draft.Comments()));
    ShowDrafts(draft);
    if (!ui->txtTrueMeanDraft->text().isEmpty()) {
        ShowHydrostatics(draft);
        if (ListCorrectionOf(stage).isChecked())
            ShowListCorrection(draft);
        ShowFinalResult(draft);
        if (!ShowStageResults(stage, draft))
            return;
    }
    ShowDeductions(draft.Deductions());
}

void SurveyWindow::ShowEntries(clsDraft &draft)
{
    ShowValue(*ui->txtDensity, BlankIfZero(draft.SpecificGravity()));
    ShowValue(*ui->txtFwdPort, BlankIfZero(draft.FwdPort()));
    ShowValue(*ui->txtFwdStbd, BlankIfZero(draft.FwdStbd()));
    ShowValue(*ui->txtMidShipPort, BlankIfZero(draft.MidPort()));
    ShowValue(*ui->txtMidshipStbd, BlankIfZero(draft.MidStbd()));
    ShowValue(*ui->txtAftPort, BlankIfZero(draft.AftPort()));
    ShowValue(*ui->txtAftStbd, BlankIfZero(draft.AftStbd()));
    ui->mbxDate->SetText(QString::fromStdString(draft.DSDate()));
    ui->mbxTime->SetText(QString::fromStdString(draft.DSTime()));
}

void SurveyWindow::ShowDrafts(clsDraft &draft)
{
    ShowValue(*ui->txtFwdMean, RoundField(draft.FwdMean(), 3));
    ShowValue(*ui->txtMidshipMean, RoundField(draft.MidMean(), 3));
    ShowValue(*ui->txtAftMean, RoundField(draft.AftMean(), 3));
    if (draft.IsThere())
        ShowDeflection(draft);
    ShowValue(*ui->txtApparentTrim, RoundField(draft.ApparentTrim(), 7));
    ShowValue(*ui->txtFwdCorrection, RoundField(draft.FwdCorrection(), 3));
    ShowValue(*ui->txtMidshipCorrection, RoundField(draft.MidCorrection(), 3));
    ShowValue(*ui->txtAftCorrection, RoundField(draft.AftCorrection(), 3));
    ShowValue(*ui->txtFwdTrueDraft, RoundField(draft.FwdTrueDraft(), 3));
    ShowValue(*ui->txtMidshipTrueDraft, RoundField(draft.MidTrueDraft(), 3));
    ShowValue(*ui->txtAftTrueDraft, RoundField(draft.AftTrueDraft(), 3));
    ShowValue(*ui->txtTrueTrim, RoundField(draft.TrueTrim(), 3));
    ShowValue(*ui->txtTrueMeanDraft, RoundField(draft.TrueMeanDraft(), 8));
}

void SurveyWindow::ShowDeflection(clsDraft &draft)
{
    // Deflection in centimetres: midships below the mean of the ends is a sag.
    const Value two = std::int16_t {2};
    const Value deflection = Value(std::int16_t {50})
        * ((ZeroIfEmpty(draft.MidMean()) * two - ZeroIfEmpty(draft.AftMean())) - ZeroIfEmpty(draft.FwdMean()));
    const bool level = deflection == Value(std::int16_t {0});
    ui->lblHogSag->setVisible(!level);
    if (level) {
        ui->txtDeflection->setText(QStringLiteral("0"));
        return;
    }
    ui->lblHogSag->setText(IsNegative(deflection) ? QStringLiteral("Hog") : QStringLiteral("Sag"));
    ShowValue(*ui->txtDeflection, Abs(deflection));
}

void SurveyWindow::ShowHydrostatics(clsDraft &draft)
{
    const auto rows = draft.HDT();
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 6; ++column)
            ui->fgrdHDT->SetCell(row + 1, column + 1,
                                 ScreenText(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));

    ShowValue(*ui->txtIpFactor, RoundField(draft.IpFactor(), 7));
    ShowValue(*ui->txtMCTCPlus50IpFactor, RoundField(draft.MCTCPlus50IpFactor(), 7));
    ShowValue(*ui->txtMCTCMinus50IpFactor, RoundField(draft.MCTCMinus50IpFactor(), 7));

    const auto results = draft.IpResult();
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 5; ++column)
            ui->fgrdIpResult->SetCell(
                row, column + 1, ScreenText(results[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));

    for (int row = 0; row < 4; ++row)
        ui->fgrdResult->SetCell(row, 1, ScreenText(results[1][static_cast<std::size_t>(row) + 1]));
    const Value &plus50 = results[1][3];
    const Value &minus50 = results[1][4];
    const bool both = !plus50.IsEmptyText() && !minus50.IsEmptyText();
    ui->fgrdResult->SetCell(4, 1, both ? ScreenText(plus50 - minus50) : QString());
}

void SurveyWindow::ShowListCorrection(clsDraft &draft)
{
    const auto rows = draft.HDTListCorr();
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            ui->fgrdListCorrection->SetCell(
                row + 1, column, ScreenText(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));
    ShowValue(*ui->txtIpFactorTPCP, draft.IpFactorTPCP());
    ShowValue(*ui->txtIpFactorTPCS, draft.IpFactorTPCS());
    ShowValue(*ui->txtIpValueTPCP, draft.IpValueTPCP());
    ShowValue(*ui->txtIpValueTPCS, draft.IpValueTPCS());
    ShowValue(*ui->txtResultantTPCP, draft.ResultantTPCP());
    ShowValue(*ui->txtResultantTPCS, draft.ResultantTPCS());
}

void SurveyWindow::ShowFinalResult(clsDraft &draft)
{
    const auto items = draft.FinalResult();
    for (std::size_t row = 0; row < kFinalPlaces.size(); ++row)
        ShowFinalCell(static_cast<int>(row), RoundField(items[row], kFinalPlaces[row]));
    mCurrentNetDisp = items[9];
    ShowFinalCell(9, RoundField(items[9], 6));
    ui->fgrdFinalResult->SetRed(9, 1, !LiesBetween(items[9], 0, 1000000));
}

void SurveyWindow::ShowFinalCell(int row, const Value &value)
{
    ui->fgrdFinalResult->SetCell(row, 1, ScreenText(value));
}
