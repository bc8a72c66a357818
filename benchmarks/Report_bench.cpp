#include "benchmarks/BenchClock.h"
#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"

#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "reports/ReportPainter.h"
#include "reports/ReportPdf.h"
#include "reports/ReportPreview.h"

#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryDir>

namespace
{
/// The loading report with a figure on every label.
Report &FilledReport()
{
    const Value figure(23840.80539);
    ReportedSurvey survey;
    ReportedShip &ship = survey.ship;
    ship.name = "MV Worked";
    ship.callSign = ship.flag = ship.portOfRegistry = "Richards Bay";
    for (Value *value :
         {&ship.officialNo, &ship.grossTonnage, &ship.netTonnage, &ship.summerDraft, &ship.summerDeadweight, &ship.loa,
          &ship.lbp, &ship.breadth, &ship.fwdX, &ship.aftX, &ship.lightShip})
        *value = figure;
    ReportedDraft &draft = survey.initial;
    draft.date = "12-03-2024";
    draft.time = "06:30";
    draft.comments = "Calm, no swell; marks read from a boat on both sides";
    for (Value *value :
         {&draft.density, &draft.fwdMean, &draft.midMean, &draft.aftMean, &draft.fwdCorrection, &draft.aftCorrection,
          &draft.fwdTrueDraft, &draft.aftTrueDraft, &draft.midPort, &draft.midStbd, &draft.trueMeanDraft})
        *value = figure;
    draft.hydrostatics.fill(figure);
    draft.finalResult.fill(figure);
    for (const std::int32_t item : {2, 3, 24, 25, 26, 27, 28})
        draft.deductions.emplace_back(item, figure);
    survey.final = draft;
    FillLoadportReport(drptDraftSurvey(), survey);
    return drptDraftSurvey();
}

void SaveReport(benchmark::State &state)
{
    const QTemporaryDir folder;
    const Report &report = FilledReport();
    for (auto unused : state)
        SavePdf(report, folder.filePath(QStringLiteral("report.pdf")));
}

enum class Page { Empty, OneWordInEachFont };

/// A page of that size, written as safely.
void SavePage(benchmark::State &state, Page page)
{
    const QTemporaryDir folder;
    for (auto unused : state) {
        QSaveFile file(folder.filePath(QStringLiteral("empty.pdf")));
        if (!file.open(QIODevice::WriteOnly))
            BenchFailure("empty.pdf");
        {
            QPdfWriter writer(&file);
            writer.setResolution(600);
            writer.setPageLayout(QPageLayout(UsualPage(), QPageLayout::Portrait, {}));
            QPainter painter(&writer);
            for (const bool bold : {false, true}) {
                if (page == Page::Empty)
                    break;
                QFont font(QStringLiteral("Arial"), 10);
                font.setBold(bold);
                painter.setFont(font);
                painter.drawText(1000, 1000, QStringLiteral("word"));
            }
        }
        if (!file.commit())
            BenchFailure("empty.pdf");
    }
}

void PreviewToPage(benchmark::State &state)
{
    QWidget desk;
    for (auto unused : state) {
        Report &report = FilledReport();
        const auto start = Clock::now();
        ShowReport(report, &desk);
        PaintAll();
        state.SetIterationTime(SecondsSince(start));
        desk.findChild<ReportPreview *>()->close();
        PaintAll();
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("report to PDF/keelmark", SaveReport);
    benchmark::RegisterBenchmark("report to PDF/yardstick", SavePage, Page::Empty);
    RatioTable::Row("report to PDF", "an empty page to PDF", 3.0);
    // What Qt's embedding of two fonts leaves of that.
    benchmark::RegisterBenchmark("report to PDF, fonts apart/keelmark", SaveReport);
    benchmark::RegisterBenchmark("report to PDF, fonts apart/yardstick", SavePage, Page::OneWordInEachFont);
    RatioTable::Row("report to PDF, fonts apart", "one word in each font to PDF", 3.0);
    benchmark::RegisterBenchmark("preview to first page/keelmark", PreviewToPage)->UseManualTime();
    RatioTable::Row("preview to first page", kFrameMicroseconds, "one frame of 16 ms", 1.0);
    return true;
}();
} // namespace
