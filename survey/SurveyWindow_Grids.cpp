#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "frame/controls/FloatingEditor.h"

namespace
{
constexpr std::array<const char *, 9> kFinalCaptions {
    "Displacement@TMD",      "First Trim Correction", "Second Trim Correction",
    "Total Trim Correction", "List Correction",       "Displacement@even keel",
    "Density Correction",    "True Displacement",     "Total Deductibles"};

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
} // namespace

void SurveyWindow::InitializeAllGrids(bool rebuild)
try {
    LayOutGrids();
    ShowFreshHeadings();
    if (rebuild) {
        mQuantitiesWithheld = false;
        RebuildDeductions();
    } else {
        ClearListCorrection();
    }
} catch (const RuntimeError &error) {
    TellSource(error, "InitializeAllGrids");
}

void SurveyWindow::LayOutGrids()
{
    ui->fgrdHDT->SetSize(4, 7);
    ui->fgrdHDT->SetFixed(1, 1);
    ui->fgrdIpResult->SetSize(2, 6);
    ui->fgrdIpResult->SetFixed(0, 1);
    ui->fgrdResult->SetSize(5, 2);
    ui->fgrdResult->SetFixed(0, 1);
    ui->fgrdFinalResult->SetSize(12, 2);
    ui->fgrdFinalResult->SetFixed(0, 1);
}

void SurveyWindow::ShowFreshHeadings()
{
    SetRowTexts(*ui->fgrdHDT, 0, 1, {"Hyd. Draft", "Displacement", "TPC", "LCF", "MCTC+50", "MCTC-50"});
    SetColumnTexts(*ui->fgrdHDT, 0, 1, {"Below", "Above", "Difference"});
    SetColumnTexts(*ui->fgrdIpResult, 0, 0, {"Interpolated Values", "Result"});
    SetColumnTexts(*ui->fgrdResult, 0, 0, {"TPC", "LCF", "MCTC+50", "MCTC-50", "dMCTC"});
    int row = 0;
    for (const char *caption : kFinalCaptions)
        ui->fgrdFinalResult->SetCell(row++, 0, QString::fromLatin1(caption));
    ShowFinalCaptions(FreshCaptions(ActiveStage()));
    ui->fgrdFinalResult->SetBold(9, 0, true);
    ui->fgrdFinalResult->SetBold(11, 0, ActiveStage() != Stage::Daily);
}

void SurveyWindow::ShowFinalCaptions(const ResultCaptions &captions)
{
    SetColumnTexts(*ui->fgrdFinalResult, 0, 9, {captions[0], captions[1], captions[2]});
}

void SurveyWindow::RebuildDeductions()
{
    mRsItems.Reopen("SELECT ItemID, ItemName FROM DeductionMaster", CursorType::Dynamic, LockType::BatchOptimistic);
    const int items = mRsItems.RecordCount();
    if (items == 0) {
        ui->fgrdDeduction->hide();
        txtGridTextbox->hide();
        ClearListCorrection();
        return;
    }
    Grid &grid = *ui->fgrdDeduction;
    const int current = std::min(grid.CurrentRow(), items - 1);
    grid.SetSize(items, 2);
    grid.SetFixed(0, 1);
    int row = 0;
    for (mRsItems.MoveFirst(); !mRsItems.AtEnd(); mRsItems.MoveNext())
        grid.SetCell(row++, 0, QString::fromStdString(mRsItems.Fields("ItemName").Text()));
    grid.PlaceCurrent(current, 1);
    txtGridTextbox->clear();
    txtGridTextbox->Place(grid, grid.CurrentRow(), grid.CurrentColumn());
    ClearListCorrection();
}

void SurveyWindow::ClearListCorrection()
{
    for (QLineEdit *field : {ui->txtIpFactorTPCP, ui->txtIpFactorTPCS, ui->txtIpValueTPCP, ui->txtIpValueTPCS,
                             ui->txtResultantTPCP, ui->txtResultantTPCS})
        field->clear();
    ui->fgrdListCorrection->SetSize(4, 4);
    ui->fgrdListCorrection->SetFixed(1, 0);
    SetRowTexts(*ui->fgrdListCorrection, 0, 0, {"Draft(P)", "TPC(P)", "Draft(S)", "TPC(S)"});
    for (int column = 0; column < 4; ++column)
        ui->fgrdListCorrection->AlignColumn(column, Qt::AlignRight | Qt::AlignTop);
}
