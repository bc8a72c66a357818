#pragma once

#include <functional>

class QPrinter;
class Report;

/// Prints a report on the default printer, without a dialog. PrinterError (482) where there is none, or where it does
/// not take the page.
void PrintReport(const Report &report);

/// Prints a report on this printer, upright, whatever the printer is set to. PrinterError (482) where it does not take
/// the page.
void PrintReportOn(QPrinter &printer, const Report &report);

/// What prints; a test sets its own. An empty one is the machine's printer, and the port that was set before is handed
/// back.
using PrintPort = std::function<void(const Report &)>;
PrintPort SetPrintPort(PrintPort port);
