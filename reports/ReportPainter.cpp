#include "reports/ReportPainter.h"

#include "reports/Report.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace
{
constexpr double kLeastPoints = 6;
constexpr double kRoomOfLine = 0.9; ///< of its height, which descenders seldom fill

QFont FontOf(const ReportLabel &label)
{
    QFont font;
    font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setBold(label.bold);
    // A font as large as the twips it is measured in, and no hints: lines break alike on every device.
    font.setPixelSize(qRound(label.points * kTwipsPerPoint));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Qt::Alignment Horizontal(LabelAlignment alignment)
{
    return alignment == LabelAlignment::Right ? Qt::AlignRight
        : alignment == LabelAlignment::Centre ? Qt::AlignHCenter
                                              : Qt::AlignLeft;
}

double StartOf(LabelAlignment alignment, double room)
{
    return alignment == LabelAlignment::Right ? room : alignment == LabelAlignment::Centre ? room / 2 : 0;
}

bool HoldsFigure(const QString &text)
{
    return std::ranges::any_of(text, [](QChar letter) { return letter.isDigit(); });
}

/// What of a text finds room beside an ellipsis. What is not to be seen is not there to be searched either.
QString Cut(const QString &text, const QFont &font, double width)
{
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, width);
}

/// One line. A text that is too wide is set smaller, a figure as far as it takes: a digit cut off would be a wrong
/// figure. Other texts are cut when they would no longer be legible.
void PaintLine(const ReportLabel &label, QString text, QPainter &painter)
{
    QFont font = FontOf(label);
    double width = QFontMetricsF(font).horizontalAdvance(text);
    if (width > label.width) {
        const double least = HoldsFigure(text) ? 1 : kLeastPoints * kTwipsPerPoint;
        font.setPixelSize(static_cast<int>(std::max(font.pixelSize() * label.width / width, least)));
        text = Cut(text, font, label.width);
        width = QFontMetricsF(font).horizontalAdvance(text);
    }
    painter.setFont(font);
    const double baseline = label.top + QFontMetricsF(FontOf(label)).ascent();
    painter.drawText(QPointF(label.left + StartOf(label.alignment, label.width - width), baseline), text);
}

/// As many lines as find room in the label's height, save for a trifle, and nothing outside it.
void PaintLines(const ReportLabel &label, const QString &text, QPainter &painter)
{
    const QFont font = FontOf(label);
    QTextLayout layout(text, font);
    QTextOption option(Horizontal(label.alignment));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double height = 0;
    int shown = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.width);
        line.setPosition(QPointF(0, height));
        if (height + kRoomOfLine * line.height() <= label.height)
            ++shown;
        height += line.height();
    }
    layout.endLayout();
    painter.save();
    painter.setClipRect(QRectF(label.left, label.top, label.width, label.height), Qt::IntersectClip);
    const bool cut = shown < layout.lineCount();
    for (int i = 0; i < shown - (cut ? 1 : 0); ++i)
        layout.lineAt(i).draw(&painter, QPointF(label.left, label.top));
    if (cut && shown > 0) {
        const QTextLine last = layout.lineAt(shown - 1);
        const QString rest = text.mid(last.textStart()).replace(QChar::LineSeparator, QLatin1Char(' '));
        const QString left = Cut(rest.left(last.textLength()).trimmed() + QStringLiteral(" \u2026"), font, label.width);
        painter.setFont(font);
        const double room = label.width - QFontMetricsF(font).horizontalAdvance(left);
        painter.drawText(QPointF(label.left + StartOf(label.alignment, room), label.top + last.y() + last.ascent()),
                         left);
    }
    painter.restore();
}

QString OnOneLine(QString text)
{
    for (QChar &letter : text) {
        if (letter.isSpace())
            letter = QLatin1Char(' ');
    }
    return text;
}

void PaintLabel(const ReportLabel &label, const std::string &caption, QPainter &painter)
{
    if (caption.empty())
        return;
    QString text = QString::fromStdString(caption);
    const bool isOneLine = label.height < 2 * label.points * kTwipsPerPoint;
    if (isOneLine)
        PaintLine(label, OnOneLine(text), painter);
    else
        PaintLines(label, text.replace(QLatin1Char('\n'), QChar::LineSeparator), painter);
}
} // namespace

void PaintReport(const Report &report, QPainter &painter)
{
    painter.setPen(Qt::black);
    const auto &labels = report.Layout().labels;
    for (std::size_t i = 0; i < labels.size(); ++i)
        PaintLabel(labels[i], report.CaptionAt(i), painter);
}

QTransform BlockOnPage(const Report &report, const QSizeF &pagePixels, double pixelsPerInch)
{
    const ReportLayout &layout = report.Layout();
    const double fitting = std::min(pagePixels.width() / layout.width, pagePixels.height() / layout.height);
    const double scale = std::min(pixelsPerInch / kTwipsPerInch, fitting);
    return QTransform(scale, 0, 0, scale, (pagePixels.width() - scale * layout.width) / 2,
                      (pagePixels.height() - scale * layout.height) / 2);
}

QPageSize UsualPage()
{
    const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(inches ? QPageSize::Letter : QPageSize::A4);
}
