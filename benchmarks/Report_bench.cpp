#include "benchmarks/BenchClock.h"
#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "reports/Report.h"
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
    for (const ReportLabel &label : LoadportLayout().labels)
        if (label.name.starts_with("lbl"))
            drptDraftSurvey().Caption(label.name, "23840.80539 MT");
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
