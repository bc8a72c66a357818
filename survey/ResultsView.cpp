#include "survey/ResultsView.h"

#include "core/HullDeflection.h"
#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"

namespace
{
/// Row of the results grid and of clsDraft::FinalItems.
constexpr int kTotalDeductibles = 8;
constexpr int kNetDisplacement = 9;
constexpr int kLastRow = 11;

/// Decimal places of rows 0 to 9 of the results grid.
constexpr std::array<int, 10> kFinalPlaces {5, 4, 4, 4, 4, 5, 5, 5, 5, 6};

void SetColumnTexts(Grid &grid, int column, int firstRow, std::initializer_list<const char *> texts)
{
    for (const char *text : texts)
        grid.SetCell(firstRow++, column, QString::fromLatin1(text));
}

void SetRowTexts(Grid &grid, int row, int firstColumn, std::initializer_list<const char *> texts)
{
    for (const char *text : texts)
        grid.SetCell(row, firstColumn++, QString::fromLatin1(text));
}

void SetSize(Grid &grid, int rows, int columns, int fixedRows, int fixedColumns)
{
    grid.SetSize(rows, columns);
    grid.SetFixed(fixedRows, fixedColumns);
}

/// Puts a table of values into a grid, from a cell on.
void ShowTable(Grid &grid, int firstRow, int firstColumn, const auto &table)
{
    for (int row = firstRow; const auto &values : table) {
        for (int column = firstColumn; const Value &value : values)
            grid.SetCell(row, column++, ScreenText(value));
        ++row;
    }
}
} // namespace

ResultsView::ResultsView(const Ui::SurveyWindow &controls)
    : ui(controls)
{
}

void ResultsView::LayOut() const
{
    SetSize(*ui.fgrdHDT, 4, 7, 1, 1);
    SetSize(*ui.fgrdIpResult, 2, 6, 0, 1);
    SetSize(*ui.fgrdResult, 5, 2, 0, 1);
    SetSize(*ui.fgrdFinalResult, 12, 2, 0, 1);
}

void ResultsView::ShowFresh(const Stage &stage, const Captions &captions) const
{
    LayOut();
    ShowHeadings(stage, captions);
}

void ResultsView::ShowHeadings(const Stage &stage, const Captions &captions) const
{
    SetRowTexts(*ui.fgrdHDT, 0, 1, {"Hyd. Draft", "Displacement", "TPC", "LCF", "MCTC+50", "MCTC-50"});
    SetColumnTexts(*ui.fgrdHDT, 0, 1, {"Below", "Above", "Difference"});
    SetColumnTexts(*ui.fgrdIpResult, 0, 0, {"Interpolated Values", "Result"});
    SetColumnTexts(*ui.fgrdResult, 0, 0, {"TPC", "LCF", "MCTC+50", "MCTC-50", "dMCTC"});
    SetColumnTexts(*ui.fgrdFinalResult, 0, 0,
                   {"Displacement@TMD", "First Trim Correction", "Second Trim Correction", "Total Trim Correction",
                    "List Correction", "Displacement@even keel", "Density Correction", "True Displacement",
                    "Total Deductibles"});
    ShowCaptions(captions);
    ui.fgrdFinalResult->SetBold(kNetDisplacement, 0, true);
    ui.fgrdFinalResult->SetBold(kLastRow, 0, stage != Stage::Daily);
}

void ResultsView::ShowCaptions(const Captions &captions) const
{
    SetColumnTexts(*ui.fgrdFinalResult, 0, kNetDisplacement, {captions[0], captions[1], captions[2]});
}

void ResultsView::ClearListCorrection() const
{
    for (QLineEdit *field : {ui.txtIpFactorTPCP, ui.txtIpFactorTPCS, ui.txtIpValueTPCP, ui.txtIpValueTPCS,
                             ui.txtResultantTPCP, ui.txtResultantTPCS})
        field->clear();
    SetSize(*ui.fgrdListCorrection, 4, 4, 1, 0);
    SetRowTexts(*ui.fgrdListCorrection, 0, 0, {"Draft(P)", "TPC(P)", "Draft(S)", "TPC(S)"});
    for (int column = 0; column < 4; ++column)
        ui.fgrdListCorrection->AlignColumn(column, Qt::AlignRight | Qt::AlignTop);
}

void ResultsView::ShowDrafts(const clsDraft &draft) const
{
    ShowValue(*ui.txtFwdMean, RoundIfPresent(draft.FwdMean(), 3));
    ShowValue(*ui.txtMidshipMean, RoundIfPresent(draft.MidMean(), 3));
    ShowValue(*ui.txtAftMean, RoundIfPresent(draft.AftMean(), 3));
    if (draft.IsThere())
        ShowDeflection(draft);
    ShowValue(*ui.txtApparentTrim, RoundIfPresent(draft.ApparentTrim(), 7));
    ShowValue(*ui.txtFwdCorrection, RoundIfPresent(draft.FwdCorrection(), 3));
    ShowValue(*ui.txtMidshipCorrection, RoundIfPresent(draft.MidCorrection(), 3));
    ShowValue(*ui.txtAftCorrection, RoundIfPresent(draft.AftCorrection(), 3));
    ShowValue(*ui.txtFwdTrueDraft, RoundIfPresent(draft.FwdTrueDraft(), 3));
    ShowValue(*ui.txtMidshipTrueDraft, RoundIfPresent(draft.MidTrueDraft(), 3));
    ShowValue(*ui.txtAftTrueDraft, RoundIfPresent(draft.AftTrueDraft(), 3));
    ShowValue(*ui.txtTrueTrim, RoundIfPresent(draft.TrueTrim(), 3));
    ShowValue(*ui.txtTrueMeanDraft, RoundIfPresent(draft.TrueMeanDraft(), 8));
}

void ResultsView::ShowDeflection(const clsDraft &draft) const
{
    const Value deflection
        = HullDeflection(ZeroIfAbsent(draft.FwdMean()), ZeroIfAbsent(draft.MidMean()), ZeroIfAbsent(draft.AftMean()));
    const bool level = IsZero(deflection);
    ui.lblHogSag->setVisible(!level);
    if (level) {
        ui.txtDeflection->setText(QStringLiteral("0"));
        return;
    }
    ui.lblHogSag->setText(QString::fromLatin1(DeflectionWord(deflection)));
    ShowValue(*ui.txtDeflection, Abs(deflection));
}

void ResultsView::ShowFigures(const clsDraft &draft, bool listCorrected) const
{
    ShowHydrostatics(draft);
    if (listCorrected)
        ShowListCorrection(draft);
    for (int row = 0; const int places : kFinalPlaces) {
        ShowCell(row, RoundIfPresent(draft.FinalResult()[static_cast<std::size_t>(row)], places));
        ++row;
    }
    SetCellRed(kNetDisplacement, !LiesBetween(draft.NetDisplacement(), 0, 1000000));
}

void ResultsView::ShowHydrostatics(const clsDraft &draft) const
{
    ShowTable(*ui.fgrdHDT, 1, 1, draft.HDT());
    ShowValue(*ui.txtIpFactor, RoundIfPresent(draft.IpFactor(), 7));
    ShowValue(*ui.txtMCTCPlus50IpFactor, RoundIfPresent(draft.MCTCPlus50IpFactor(), 7));
    ShowValue(*ui.txtMCTCMinus50IpFactor, RoundIfPresent(draft.MCTCMinus50IpFactor(), 7));
    ShowTable(*ui.fgrdIpResult, 0, 1, draft.IpResult());

    const auto &results = draft.IpResult()[1];
    for (int row = 0; row < 4; ++row)
        ui.fgrdResult->SetCell(row, 1, ScreenText(results[static_cast<std::size_t>(row) + 1]));
    const Value &plus50 = results[3];
    const Value &minus50 = results[4];
    const bool both = !plus50.IsEmptyText() && !minus50.IsEmptyText();
    ui.fgrdResult->SetCell(4, 1, both ? ScreenText(plus50 - minus50) : QString());
}

void ResultsView::ShowListCorrection(const clsDraft &draft) const
{
    ShowTable(*ui.fgrdListCorrection, 1, 0, draft.HDTListCorr());
    ShowValue(*ui.txtIpFactorTPCP, draft.IpFactorTPCP());
    ShowValue(*ui.txtIpFactorTPCS, draft.IpFactorTPCS());
    ShowValue(*ui.txtIpValueTPCP, draft.IpValueTPCP());
    ShowValue(*ui.txtIpValueTPCS, draft.IpValueTPCS());
    ShowValue(*ui.txtResultantTPCP, draft.ResultantTPCP());
    ShowValue(*ui.txtResultantTPCS, draft.ResultantTPCS());
}

void ResultsView::ShowCell(int row, const Value &value) const
{
    ui.fgrdFinalResult->SetCell(row, 1, ScreenText(value));
}

void ResultsView::SetCellRed(int row, bool red) const
{
    ui.fgrdFinalResult->SetRed(row, 1, red);
}

bool ResultsView::IsCalculated() const
{
    return !ui.txtTrueMeanDraft->text().isEmpty();
}

bool ResultsView::HasNetDisplacement() const
{
    return !ui.fgrdFinalResult->Cell(kNetDisplacement, 1).isEmpty();
}

QString ResultsView::LastRow() const
{
    return ui.fgrdFinalResult->Cell(kLastRow, 1);
}

bool ResultsView::IsNetDisplacementRed() const
{
    return ui.fgrdFinalResult->IsRed(kNetDisplacement, 1);
}

QString ResultsView::TotalDeductibles() const
{
    return ui.fgrdFinalResult->Cell(kTotalDeductibles, 1);
}
