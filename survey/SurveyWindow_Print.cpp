#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "reports/ReportPreview.h"
#include "reports/ReportPrinter.h"
#include "survey/SurveyMessages.h"
#include "survey/SurveyWindow.h"

namespace
{
constexpr std::string_view kPrintFailure = "Error while printing the report.\n\n"
                                           "Please contact us with the error number on the titlebar of this dialog box";
} // namespace

bool SurveyWindow::AnyToPrint() const
{
    return mSurvey.Draft(Stage::Initial).IsThere()
        || (mKind.anyDraftPrints && (mSurvey.Draft(Stage::Daily).IsThere() || mSurvey.Draft(Stage::Final).IsThere()));
}

void SurveyWindow::RPrint(bool blnShowPreview)
try {
    if (!Calculate())
        return;
    CollectDraft(ActiveStage());
    if (!AnyToPrint()) {
        TellExclamation(blnShowPreview ? "No valid draft for preview." : "No valid draft for printing.");
        return;
    }
    const ReportedHeader header = mHeader.Reported();
    try {
        mKind.fillReport(mKind.report(), mSurvey, header);
    } catch (const RuntimeError &) {
        // A page that is half filled is no report.
        HideReport(mKind.report());
        throw;
    }
    if (blnShowPreview) {
        ShowReport(mKind.report(), window());
        return;
    }
    HideReport(mKind.report());
    PrintReport(mKind.report());
} catch (const RuntimeError &) {
    MsgBox(kPrintFailure, MsgIcon::Critical, mKind.printFailureCaption);
}
