#include "reports/ReportPdf.h"

#include "core/numeric/RuntimeError.h"
#include "reports/Report.h"
#include "reports/ReportPainter.h"

#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>

namespace
{
constexpr int kDotsPerInch = 600;

QString TitleOf(const Report &report)
{
    return QString::fromUtf8(report.Layout().title.data(), static_cast<qsizetype>(report.Layout().title.size()));
}

RuntimeError NotWritten(const QSaveFile &file)
{
    return {ErrorNumber::FileNotWritten, file.errorString().toStdString()};
}

void WritePage(const Report &report, QSaveFile &file)
{
    QPdfWriter writer(&file);
    writer.setResolution(kDotsPerInch);
    writer.setPageLayout(QPageLayout(UsualPage(), QPageLayout::Portrait, {}));
    writer.setTitle(TitleOf(report));
    writer.setCreator(QStringLiteral("Keelmark"));
    QPainter painter;
    if (!painter.begin(&writer))
        throw NotWritten(file);
    painter.setTransform(BlockOnPage(report, QSizeF(writer.width(), writer.height()), kDotsPerInch));
    PaintReport(report, painter);
}
} // namespace

void SavePdf(const Report &report, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw NotWritten(file);
    WritePage(report, file);
    if (!file.commit())
        throw NotWritten(file);
}

QString PdfName(const Report &report)
{
    QStringList parts;
    for (const char *label : {"lblShipName2", "lblVoyageID"}) {
        const QString part = QString::fromStdString(report.Caption(label)).simplified();
        if (!part.isEmpty())
            parts += part;
    }
    parts += TitleOf(report);
    static const QRegularExpression unfit(QStringLiteral(R"([/\\:*?"<>|\x00-\x1f])"));
    return parts.join(QStringLiteral(" - ")).replace(unfit, QStringLiteral("_")) + QStringLiteral(".pdf");
}
