#pragma once

#include "core/numeric/Port.h"

#include <functional>

class QPrinter;
class Report;

/// Prints a report on the default printer, without a dialog. PrinterError (482) where there is none, or where it does
/// not take the page.
void PrintReport(const Report &report);

/// Prints a report on this printer, upright, whatever the printer is set to. PrinterError (482) where it does not take
/// the page.
void PrintReportOn(QPrinter &printer, const Report &report);

/// What prints: the default printer unless another is set.
using PrintSource = std::function<void(const Report &)>;
[[nodiscard]] Port<PrintSource> &PrintPort();
