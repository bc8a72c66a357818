#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "reports/Report.h"
#include "reports/ReportFilling.h"
#include "reports/ReportPreview.h"
#include "reports/ReportPrinter.h"

namespace
{
constexpr std::string_view kPrintFailure = "Error while printing the report.\n\n"
                                           "Please contact us with the error number on the titlebar of this dialog box";

/// "Name, Country" of a port by its key. NoCurrentRow where the recordset has none of that key.
std::string PortText(Recordset &ports, const Value &portID)
{
    const auto find
        = [&] { ports.Find("PortID = " + portID.SqlText(), 0, Recordset::kSearchForward, Recordset::kBookmarkFirst); };
    find();
    // One that was added since the list of ports was filled.
    if (ports.AtEnd()) {
        ports.Requery();
        find();
    }
    const Value country = ports.Fields("Country");
    return ports.Fields("PortName").Text() + ", " + (country.IsNull() ? std::string() : country.Text());
}

ReportedShip Reported(const clsShip &ship, Recordset &ports)
{
    return {.name = ship.ShipName(),
            .callSign = ship.CallSign(),
            .flag = ship.Flag(),
            .portOfRegistry = PortText(ports, ship.PortOfRegistry()),
            .officialNo = ship.OfficialNo(),
            .grossTonnage = ship.GrossTonnage(),
            .netTonnage = ship.NetTonnage(),
            .summerDraft = ship.SummerDraft(),
            .summerDeadweight = ship.SummerDeadweight(),
            .loa = ship.LOA(),
            .lbp = ship.LBP(),
            .breadth = ship.Breadth(),
            .fwdX = ship.FwdX(),
            .aftX = ship.AftX(),
            .lightShip = ship.LightShip()};
}

std::vector<std::pair<std::int32_t, Value>> Reported(Recordset &deductions)
{
    std::vector<std::pair<std::int32_t, Value>> reported;
    if (deductions.RecordCount() > 0) {
        for (deductions.MoveFirst(); !deductions.AtEnd(); deductions.MoveNext())
            reported.emplace_back(deductions.Fields("ItemID").ToLong(), deductions.Fields("Quantity"));
    }
    return reported;
}

ReportedDraft Reported(clsDraft &draft)
{
    return {.date = draft.DSDate(),
            .time = draft.DSTime(),
            .comments = draft.Comments(),
            .density = draft.SpecificGravity(),
            .deductions = Reported(draft.Deductions()),
            .fwdMean = draft.FwdMean(),
            .midMean = draft.MidMean(),
            .aftMean = draft.AftMean(),
            .fwdCorrection = draft.FwdCorrection(),
            .aftCorrection = draft.AftCorrection(),
            .fwdTrueDraft = draft.FwdTrueDraft(),
            .aftTrueDraft = draft.AftTrueDraft(),
            .midPort = draft.MidPort(),
            .midStbd = draft.MidStbd(),
            .trueMeanDraft = draft.TrueMeanDraft(),
            .hydrostatics = draft.IpResult()[1],
            .finalResult = draft.FinalResult()};
}
} // namespace

bool SurveyWindow::AnyToPrint() const
{
    return mInitDraft.IsThere();
}

ReportedSurvey SurveyWindow::Reported()
{
    ReportedSurvey survey {.ship = ::Reported(mShip, mRsPort),
                           .voyage = ui->dcbVoyageID->Text().toStdString(),
                           .cargo = ui->txtCargo->text().toStdString(),
                           .port = {},
                           .initial = ::Reported(mInitDraft),
                           .final = {}};
    if (!ui->dcbPort->Text().isEmpty())
        survey.port = PortText(mRsPort, ui->dcbPort->BoundValue());
    if (mFinalDraft.IsThere())
        survey.final = ::Reported(mFinalDraft);
    return survey;
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
    FillReport(Reported());
    if (blnShowPreview) {
        ShowReport(OwnReport(), window());
        return;
    }
    HideReport(OwnReport());
    PrintReport(OwnReport());
} catch (const RuntimeError &) {
    // Half filled, it may hold figures of two surveys.
    HideReport(OwnReport());
    MsgBox(kPrintFailure, MsgIcon::Critical, PrintFailureCaption());
}
