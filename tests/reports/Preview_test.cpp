#include "core/numeric/RuntimeError.h"
#include "reports/Report.h"
#include "reports/ReportPreview.h"
#include "reports/ReportPrinter.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QWheelEvent>

namespace
{
class Preview : public testing::Test
{
protected:
    Preview()
    {
        ShowReport(mReport, &mDesk);
        mPreview = mDesk.findChild<ReportPreview *>();
        ShowActive(*mPreview);
    }
    ~Preview() override { mReport.Unload(); }
    [[nodiscard]] std::string Told() const { return mPreview->findChild<QLabel *>("Told")->text().toStdString(); }
    void PressControl(Qt::Key key) { PressKey(*mPreview, key, Qt::ControlModifier); }

    MessageScript mMessages;
    QWidget mDesk;
    Report &mReport = drptDraftSurvey();
    QPointer<ReportPreview> mPreview;
    TestFolder mFolder;
    QString mPath;
    QString mProposed;
    bool mPrinterGone = false;
    std::string mPrinted;

private:
    ScopedPort<SavePathSource> mDialog {SavePathPort(), [this](QWidget *, const QString &proposed) {
                                            mProposed = proposed;
                                            return mPath;
                                        }};
    ScopedPort<PrintSource> mPrinter {PrintPort(), [this](const Report &report) {
                                          if (mPrinterGone)
                                              throw RuntimeError(ErrorNumber::PrinterError);
                                          mPrinted += report.Caption("lblVoyageID") + ";";
                                      }};
};

TEST_F(Preview, ZoomsByKeysAndFitsThePage)
{
    const double page = mPreview->Zoom();
    EXPECT_LT(page, 1);
    PressControl(Qt::Key_1);
    const double width = mPreview->Zoom();
    EXPECT_GT(width, page);
    PressControl(Qt::Key_0);
    EXPECT_EQ(mPreview->Zoom(), page);
    mPreview->Zoom(0.6);
    PressControl(Qt::Key_Plus);
    EXPECT_EQ(mPreview->Zoom(), 0.75);
    PressControl(Qt::Key_Minus);
    PressControl(Qt::Key_Minus);
    EXPECT_EQ(mPreview->Zoom(), 0.25);
    PressControl(Qt::Key_Minus);
    EXPECT_EQ(mPreview->Zoom(), 0.25);
    mPreview->Zoom(100);
    EXPECT_EQ(mPreview->Zoom(), 4);
}

TEST_F(Preview, PrintsSavesAndTellsWhatWentWrong)
{
    mReport.Caption("lblVoyageID", "V1");
    PressControl(Qt::Key_P);
    EXPECT_EQ(mPrinted, "V1;");
    EXPECT_EQ(Told(), "Sent to the printer.");
    mPrinterGone = true;
    mMessages.Expect({.text = "Error while printing the report.\n\nPlease check the default printer, or save the "
                              "report as PDF.",
                      .icon = MsgIcon::Critical});
    PressControl(Qt::Key_P);

    PressControl(Qt::Key_S); // thought better of it
    EXPECT_TRUE(mProposed.endsWith("V1 - Loadport Draft Survey Report.pdf"));
    mPath = QString::fromStdString((mFolder.Path() / "one.pdf").string());
    PressControl(Qt::Key_S);
    EXPECT_EQ(Told(), "Saved as " + mPath.toStdString());
    EXPECT_TRUE(QFile::exists(mPath));
    mPath += "/two.pdf";
    mMessages.Expect({.text = "The report could not be saved as\n" + mPath.toStdString() + "\n\nNot a directory",
                      .icon = MsgIcon::Exclamation});
    PressControl(Qt::Key_S);
}

TEST_F(Preview, StaysOneUntilItIsClosed)
{
    ShowReport(mReport, &mDesk);
    EXPECT_EQ(mDesk.findChildren<ReportPreview *>().size(), 1);
    PressKey(*mPreview, Qt::Key_Escape);
    Settle();
    EXPECT_FALSE(mPreview);
    ShowReport(mReport, &mDesk);
    EXPECT_EQ(mDesk.findChildren<ReportPreview *>().size(), 1);
}
} // namespace
