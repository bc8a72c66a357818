#include "core/numeric/RuntimeError.h"
#include "reports/Report.h"
#include "reports/ReportPainter.h"
#include "reports/ReportPdf.h"
#include "reports/ReportPrinter.h"
#include "tests/support/TestStore.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>

namespace
{
using testing::HasSubstr;
using testing::Not;

struct Word {
    double left;
    double right;
};

class ReportPdf : public testing::Test
{
protected:
    ReportPdf() { drptDSDispatch().Unload(); }
    ~ReportPdf() override { drptDSDispatch().Unload(); }

    void Save() { SavePdf(mReport, mFile); }
    [[nodiscard]] static QString Asked(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    [[nodiscard]] std::string Text() const
    {
        return Asked("pdftotext", {"-layout", mFile, "-"}).simplified().toStdString();
    }
    // Where a word stands, in twips from the left of the block.
    [[nodiscard]] Word Find(const QString &word) const
    {
        const QRegularExpression box("xMin=\"([0-9.]+)\" yMin=\"[0-9.]+\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">"
                                     + QRegularExpression::escape(word) + "<");
        const QRegularExpressionMatch found = box.match(Asked("pdftotext", {"-bbox", mFile, "-"}));
        EXPECT_TRUE(found.hasMatch()) << word.toStdString();
        const double margin = (UsualPage().sizePoints().width() * kTwipsPerPoint - mReport.Layout().width) / 2;
        return {found.captured(1).toDouble() * kTwipsPerPoint - margin,
                found.captured(2).toDouble() * kTwipsPerPoint - margin};
    }

    Report &mReport = drptDSDispatch();
    TestFolder mFolder;
    const QString mFile = QString::fromStdString((mFolder.Path() / "report.pdf").string());
};

TEST_F(ReportPdf, HoldsItsTextWhereTheLayoutHasIt)
{
    mReport.Caption("lblGrossTonnage", "28342.5");
    mReport.Caption("lblInitNGDisp", "23840.80539 MT");
    mReport.Caption("lblFinTPC", "42.517");
    mReport.Caption("lblFinComments", "Sécheresse\nbelow");
    Save();
    EXPECT_THAT(Text(), HasSubstr("Initial/Final Net Displacement 23840.80539 MT 0 MT"));
    EXPECT_THAT(Text(), HasSubstr("Sécheresse below"));
    EXPECT_NEAR(Find("CALL").left, 0, 2);
    EXPECT_NEAR(Find("28342.5").left, 4032, 2);
    EXPECT_NEAR(Find("42.517").right, 6408 + 1728, 2);
    EXPECT_NEAR(Find("INITIAL").right, 3384 + 1728, 2);
    EXPECT_NEAR(Find("Suyveyor").left, 1872, 2);
    const std::string fonts = Asked("pdffonts", {mFile}).toStdString();
    EXPECT_THAT(fonts, HasSubstr("yes"));
    EXPECT_THAT(fonts, Not(HasSubstr(" no  no ")));
}

TEST_F(ReportPdf, NoFigureIsCutAndNoTextLeavesItsLabel)
{
    mReport.Caption("lblInitTrueDisplacement", "-123456789.1234567891234567 MT");
    mReport.Caption("lblCargo", "Manganese ore in bulk, size 10 to 75 mm, moisture as declared by the shipper");
    mReport.Caption("lblFinComments", std::string(300, 'w') + " end");
    mReport.Caption("lblPortOfRegistry", "Port of a name that is very long indeed, Country of a long name too");
    Save();
    EXPECT_THAT(Text(), HasSubstr("-123456789.1234567891234567 MT"));
    EXPECT_NEAR(Find("-123456789.1234567891234567").left, 3384, 40);
    EXPECT_THAT(Text(), HasSubstr("Manganese ore"));
    EXPECT_THAT(Text(), HasSubstr("w\u2026"));
    EXPECT_THAT(Text(), Not(HasSubstr("shipper")));
    EXPECT_THAT(Text(), Not(HasSubstr("end")));
}

TEST_F(ReportPdf, APrinterSetAcrossPrintsUpright)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(mFile);
    printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, {}));
    PrintReportOn(printer, mReport);
    EXPECT_THAT(Asked("pdfinfo", {mFile}).toStdString(), HasSubstr("595 x 842 pts (A4)"));
}

TEST_F(ReportPdf, AFileThatCannotBeWrittenLeavesTheOldOne)
{
    Save();
    const qint64 size = QFile(mFile).size();
    EXPECT_GT(size, 5000);
    EXPECT_THROW(SavePdf(mReport, mFile + "/report.pdf"), RuntimeError);
    EXPECT_THROW(SavePdf(mReport, QString::fromStdString(mFolder.Path().string())), RuntimeError);
    EXPECT_EQ(QFile(mFile).size(), size);
}

TEST_F(ReportPdf, ItsNameTellsShipVoyageAndKind)
{
    EXPECT_EQ(PdfName(mReport), "Discharge Port Draft Survey Report.pdf");
    mReport.Caption("lblShipName2", "MV \"Star\"");
    mReport.Caption("lblVoyageID", "12/2024");
    EXPECT_EQ(PdfName(mReport), "MV _Star_ - 12_2024 - Discharge Port Draft Survey Report.pdf");
}
} // namespace
