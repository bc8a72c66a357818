#include "survey/HeaderFields.h"

#include "core/ReturnCode.h"
#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyLists.h"
#include "survey/SurveyMessages.h"

HeaderFields::HeaderFields(const Ui::SurveyWindow &controls, Survey &survey, SurveyLists &lists)
    : ui(controls)
    , mSurvey(survey)
    , mLists(lists)
{
}

SurveyHeader HeaderFields::Read() const
{
    return {.shipID = ui.dcbShip->BoundValue(),
            .voyageID = ui.dcbVoyageID->Text().toStdString(),
            .portID = ui.dcbPort->BoundValue(),
            .cargo = ui.txtCargo->text().toStdString()};
}

ReportedHeader HeaderFields::Reported() const
{
    const SurveyHeader header = Read();
    ReportedHeader reported {.voyage = header.voyageID,
                             .cargo = header.cargo,
                             .portOfRegistry = mLists.PortText(mSurvey.Ship().PortOfRegistry()),
                             .port = {}};
    if (!header.portID.IsAbsent())
        reported.port = mLists.PortText(header.portID);
    return reported;
}

void HeaderFields::ShowPicks(const SurveyHeader &header) const
{
    ui.dcbShip->SetBoundValue(header.shipID);
    ShipPicked();
    ui.dcbVoyageID->SetText(QString::fromStdString(header.voyageID));
    ui.dcbPort->SetBoundValue(header.portID);
    mSurvey.HeaderDirty(true);
}

void HeaderFields::ShowCargo(const std::string &cargo) const
{
    ui.txtCargo->setText(QString::fromStdString(cargo));
    ui.txtCargo->home(false);
}

void HeaderFields::Blank() const
{
    for (DataCombo *picker : {ui.dcbShip, ui.dcbVoyageID, ui.dcbPort})
        picker->SetText(QString());
    ui.txtCargo->clear();
}

void HeaderFields::Enable(bool enable) const
{
    for (QWidget *field : std::initializer_list<QWidget *> {ui.dcbShip, ui.dcbVoyageID, ui.dcbPort, ui.txtCargo})
        field->setEnabled(enable);
}

void HeaderFields::ShipPicked() const
{
    const Value bound = ui.dcbShip->BoundValue();
    if (bound.IsAbsent())
        return;
    mLists.FindShip(bound);
    if (!mSurvey.SetShip(bound))
        MsgBox("Unable to retrieve ship particulars.");
}

void HeaderFields::CheckShip(bool &cancel) const
{
    if (ui.dcbShip->Text().isEmpty())
        return;
    clsHydrostaticData table;
    const std::int32_t code = table.InitHDT(ui.dcbShip->BoundValue().ToLong());
    if (code == ReturnCode::NoHydrostaticData) {
        TellExclamation("No Hydrostatic Data exists corresponding to the selected ship.\n\n"
                        "Please provide Hydrostatic data for this ship and try again.");
        cancel = true;
    } else if (code == ReturnCode::InitHDTFailed) {
        MsgBox("An internal error has occured while initializing Hydrostatic Data for this ship.\n\n"
               "Please contact us with the error no. on the titlebar of this dialog box.",
               MsgIcon::Exclamation, std::string(kProgramTitle) + std::to_string(code));
        cancel = true;
    }
}

bool HeaderFields::ValidSelection() const
{
    const std::pair<DataCombo *, const char *> picks[]
        = {{ui.dcbShip, "Ship name has not been provided.\n\nPlease select a ship and try again."},
           {ui.dcbVoyageID, "Voyage-ID has left empty.\n\nPlease select a Voyage-ID and try again."},
           {ui.dcbPort, "No port has been specified for draft.\n\nPlease select a port and try again."}};
    for (const auto &[picker, message] : picks) {
        if (!picker->Text().isEmpty())
            continue;
        TellExclamation(message);
        return false;
    }
    return true;
}

const char *HeaderFields::Missing() const
{
    if (ui.dcbShip->Text().isEmpty())
        return "Please select ship name.";
    if (ui.dcbVoyageID->Text().isEmpty())
        return "Please enter/select Voyage-ID.";
    if (ui.dcbPort->Text().isEmpty())
        return "Please select port name.";
    if (ui.txtCargo->text().isEmpty())
        return "Please enter value for cargo.";
    return nullptr;
}
