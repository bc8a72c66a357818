#pragma once

#include <functional>

class Report;

/// Prints a report on the default printer, without a dialog. PrinterError (482) where there is none, or where it does
/// not take the page.
void PrintReport(const Report &report);

/// What prints; a test sets its own. An empty one is the machine's printer, and the port that was set before is handed
/// back.
using PrintPort = std::function<void(const Report &)>;
PrintPort SetPrintPort(PrintPort port);
