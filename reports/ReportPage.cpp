#include "reports/ReportPage.h"

#include "reports/Report.h"
#include "reports/ReportPainter.h"

#include <QPainter>

namespace
{
constexpr int kGround = 16; ///< around the sheet, in pixels
constexpr int kShadow = 2;
} // namespace

ReportPage::ReportPage(const Report &report, QWidget *parent)
    : QWidget(parent)
    , mReport(report)
    , mPaper(UsualPage())
{
}

void ReportPage::Zoom(double zoom)
{
    mZoom = zoom;
    resize(sizeHint());
    update();
}

QSizeF ReportPage::Sheet() const
{
    return mPaper.size(QPageSize::Inch) * logicalDpiX();
}

double ReportPage::ZoomForWidth(int pixels) const
{
    return (pixels - 2 * kGround) / Sheet().width();
}

double ReportPage::ZoomForHeight(int pixels) const
{
    return (pixels - 2 * kGround) / Sheet().height();
}

QSize ReportPage::sizeHint() const
{
    return (Sheet() * mZoom).toSize() + QSize(2 * kGround, 2 * kGround);
}

void ReportPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF sheet(QPointF(kGround, kGround), Sheet() * mZoom);
    painter.fillRect(sheet.translated(kShadow, kShadow), palette().color(QPalette::Shadow));
    painter.fillRect(sheet, Qt::white);
    painter.translate(sheet.topLeft());
    painter.setTransform(BlockOnPage(mReport, sheet.size(), logicalDpiX() * mZoom), true);
    PaintReport(mReport, painter);
}
