#pragma once

#include <QPageSize>
#include <QTransform>

class QPainter;
class Report;

/// The one drawing of a report, for screen, paper and PDF alike. The painter's unit is a twip, its origin the top left
/// of the block.
void PaintReport(const Report &report, QPainter &painter);

/// From twips of the block to pixels of a page: the block in the middle at true scale, smaller only where the page is
/// too small for it.
[[nodiscard]] QTransform BlockOnPage(const Report &report, const QSizeF &pagePixels, double pixelsPerInch);

/// A4, or Letter where the machine's region measures in inches.
[[nodiscard]] QPageSize UsualPage();

inline constexpr double kTwipsPerInch = 1440;
inline constexpr double kTwipsPerPoint = 20;
