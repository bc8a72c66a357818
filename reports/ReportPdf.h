#pragma once

#include <QString>

class Report;

/// Writes a report as a PDF of one page at 600 dpi, its text searchable and its fonts embedded. The file is written
/// whole or not at all: one that was there before stays where writing fails. FileNotWritten (75) then, whose
/// description tells the cause.
void SavePdf(const Report &report, const QString &path);

/// A file name without folder: ship, voyage and kind of report, without what file names cannot hold.
[[nodiscard]] QString PdfName(const Report &report);
