#include "reports/ReportPrinter.h"

#include "core/numeric/RuntimeError.h"
#include "reports/Report.h"
#include "reports/ReportPainter.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace
{
void PrintOnDefaultPrinter(const Report &report)
{
    const QPrinterInfo machine = QPrinterInfo::defaultPrinter();
    if (machine.isNull())
        throw RuntimeError(ErrorNumber::PrinterError);
    QPrinter printer(machine, QPrinter::HighResolution);
    PrintReportOn(printer, report);
}
} // namespace

void PrintReportOn(QPrinter &printer, const Report &report)
{
    // Whatever the printer is set to: across, the page would be set smaller.
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);
    printer.setDocName(QString::fromUtf8(report.Layout().title.data()));
    QPainter painter;
    if (!painter.begin(&printer))
        throw RuntimeError(ErrorNumber::PrinterError);
    const QSizeF page = printer.pageLayout().fullRectPixels(printer.resolution()).size();
    painter.setTransform(BlockOnPage(report, page, printer.resolution()));
    PaintReport(report, painter);
    if (!painter.end() || printer.printerState() == QPrinter::Error)
        throw RuntimeError(ErrorNumber::PrinterError);
}

void PrintReport(const Report &report)
{
    (*PrintPort())(report);
}

Port<PrintSource> &PrintPort()
{
    static Port<PrintSource> port(PrintOnDefaultPrinter);
    return port;
}
