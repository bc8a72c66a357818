#include "core/numeric/RuntimeError.h"
#include "frame/platform/Settings.h"
#include "reports/Report.h"
#include "reports/ReportPrinter.h"
#include "survey_discharging/frmDSDispatch.h"
#include "survey_loading/frmDraftSurvey.h"
#include "tests/survey/SurveyDesk.h"

namespace
{
constexpr const char *kPrintFailure = "Error while printing the report.\n\n"
                                      "Please contact us with the error number on the titlebar of this dialog box";

class Printing : public SurveyDesk
{
protected:
    explicit Printing(ChildWindow kind = ChildWindow::Loading, ChildFactory factory = {})
        : SurveyDesk(kind, std::move(factory))
    {
    }
    ~Printing() override
    {
        drptDraftSurvey().Unload();
        drptDSDispatch().Unload();
    }
    [[nodiscard]] static QWidget *Preview() { return Frame().findChild<QWidget *>("ReportPreview"); }
    void PressPrint() { PressKey(Frame(), Qt::Key_P, Qt::ControlModifier); }
    // What labels of the report show, with a bar between.
    [[nodiscard]] static std::string Labels(const Report &report, const std::vector<const char *> &names)
    {
        std::string texts;
        for (const char *name : names)
            texts += report.Caption(name) + "|";
        return texts;
    }

    const Report *mPrinted = nullptr;
    bool mPrinterGone = false;

private:
    ScopedPort<PrintSource> mPrinter {PrintPort(), [this](const Report &report) {
                                          if (mPrinterGone)
                                              throw RuntimeError(ErrorNumber::PrinterError);
                                          mPrinted = &report;
                                      }};
};

TEST_F(Printing, SendsInitialAndFinalToThePrinter)
{
    StoreSurvey();
    Open();
    Run("INSERT INTO Port (PortName, Country) VALUES ('Saldanha', 'South Africa')");
    Run("UPDATE Ship SET PortOfRegistry = 2");
    Click(The("cmdGetDrafts"));
    PressPrint();
    ASSERT_EQ(mPrinted, &drptDraftSurvey());
    EXPECT_EQ(mPrinted->Caption("lblPortOfRegistry"), "Saldanha, South Africa");
    EXPECT_EQ(Labels(*mPrinted, {"lblShipName", "lblPortName", "lblConstant", "lblInitFO", "lblInitDeflection"}),
              "MV WORKED|Richards Bay, |341.68513 MT|350 MT|Hog 5 cm|");
    EXPECT_EQ(Labels(*mPrinted, {"lblFinDate", "lblFinNGDisp", "lblFinDeflection", "lblTotCargoLoaded"}),
              "|0 MT|0 cm||");

    // Both miscellaneous items go to one label; the Final total shows the net displacement; the hull is straight.
    ClickTab("Final");
    FillMarks("1.015 8 8 8.3 8.3 8.6 8.6");
    FillCell(6, "7");
    FillCell(7, "2.5");
    Calculate();
    const std::string final = Cell("fgrdFinalResult", 9, 1);
    PressPrint();
    EXPECT_EQ(Labels(*mPrinted, {"lblFinMisc1", "lblFinMisc2", "lblFinTotDeductibles2", "lblFinDeflection"}),
              "2.5 MT|0 MT|9.5 MT|0 cm|");
    EXPECT_EQ(mPrinted->Caption("lblFinTotDeductibles"), final + " MT");
    EXPECT_EQ(mPrinted->Caption("lblTotCargoLoaded"), Text("txtTotCargoLoaded") + " MT");

    PressPreview();
    // An open preview would show an earlier survey than its report holds.
    ShowActive(Frame());
    PressPrint();
    EXPECT_FALSE(Preview()->isVisible());
    PressPreview();
    EXPECT_TRUE(Preview()->isVisible());

    // The next survey's page bears nothing of this one, also where this one's print failed and its preview is open.
    mPrinterGone = true;
    ShowActive(Frame());
    ExpectTold(
        kPrintFailure, [this] { PressPrint(); }, MsgIcon::Critical, "Keelmark-10067");
    mPrinterGone = false;
    ClickTab("Initial");
    Click(The("cmdGetDrafts"));
    PressPrint();
    EXPECT_EQ(Labels(*mPrinted, {"lblFinMisc1", "lblFinNGDisp", "lblFinDate", "lblTotCargoLoaded"}), "0 MT|0 MT|||");
}

TEST_F(Printing, TellsWhereItCannotPrintAndLeavesTheWindowAlone)
{
    AddShip();
    Open();
    ExpectTold("Incomplete data.\n\nPlease select ship name.", [this] { PressPrint(); });
    EnterWorked();
    const std::string shown = Texts({"txtTrueMeanDraft", "txtConstant", "dcbVoyageID", "dcbPort"});
    mPrinterGone = true;
    ExpectTold(
        kPrintFailure, [this] { PressPrint(); }, MsgIcon::Critical, "Keelmark-10067");
    EXPECT_EQ(Texts({"txtTrueMeanDraft", "txtConstant", "dcbVoyageID", "dcbPort"}), shown);
    EXPECT_FALSE(mPrinted);
    mPrinterGone = false;
    PressPrint();
    EXPECT_TRUE(mPrinted);
}

/// A window whose drafts are none, as no user can bring about: what is calculated is a draft to print.
class WithoutDrafts : public frmDraftSurvey
{
    [[nodiscard]] bool AnyToPrint() const override { return false; }
};

class PrintingNothing : public Printing
{
protected:
    PrintingNothing()
        : Printing(ChildWindow::Loading, [] { return new WithoutDrafts; })
    {
    }
};

TEST_F(PrintingNothing, IsTold)
{
    StoreSurvey();
    Open();
    ExpectTold("No valid draft for printing.", [this] { PressPrint(); });
    ExpectTold("No valid draft for preview.", [this] { PressPreview(); });
    EXPECT_FALSE(mPrinted);
}

class PrintingDischarging : public Printing
{
protected:
    PrintingDischarging()
        : Printing(ChildWindow::Discharging, [] { return new frmDSDispatch; })
    {
    }
};

TEST_F(PrintingDischarging, HasTheConstantOfTheFinalDraftOnly)
{
    StoreSurvey();
    Run("UPDATE DraftParticulars SET IsLoading = False");
    SaveSetting("Draft Survey Discharging", "RecordID", "1");
    Open();
    PressPrint();
    ASSERT_EQ(mPrinted, &drptDSDispatch());
    EXPECT_EQ(Labels(*mPrinted, {"lblReportTitle", "lblConstant", "lblTotCargoLoaded", "lblFinNGDisp"}),
              "DISCHARGE PORT DRAFT SURVEY REPORT|||0 MT|");
    // What the calculation tells comes first and stops nothing; what follows fails under this window's own number.
    ClickTab("Final");
    FillMarks(kDailyMarks);
    mPrinterGone = true;
    Tell("Current value for Total cargo discharged is invalid.\n\nPlease check your input values.");
    ExpectTold(
        kPrintFailure, [this] { PressPrint(); }, MsgIcon::Critical, "Keelmark-10066");
    EXPECT_EQ(Labels(*mPrinted, {"lblTotCargoLoaded", "lblConstant"}), "-1869.62026 MT|2211.30539 MT|");
}
} // namespace
