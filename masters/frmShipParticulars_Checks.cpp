#include "core/MsgBox.h"
#include "core/numeric/NumericText.h"
#include "frame/controls/ScreenText.h"
#include "masters/frmShipParticulars.h"
#include "ui_frmShipParticulars.h"

#include <optional>

namespace
{
constexpr std::string_view kCaption = "Ship Particulars";
constexpr std::int64_t kTenDigits = 10000000000;
} // namespace

const std::array<frmShipParticulars::NumberRule, 13> frmShipParticulars::kNumberRules {{
    {&Ui::frmShipParticulars::txtFwdX, -1000, 1000, 4, 4,
     "Invalid value.\n\nValue of Fwd-X can be  greater than -1000 and less than 1000."},
    {&Ui::frmShipParticulars::txtMidX, -1000, 1000, 4, 4,
     "Invalid value.\n\nValue of Mid-X can be  greater than -1000 and less than 1000."},
    {&Ui::frmShipParticulars::txtAftX, -1000, 1000, 4, 4,
     "Invalid value.\n\nValue of Aft-X can be  greater than -1000 and less than 1000."},
    {&Ui::frmShipParticulars::txtOfficialNo, 0, kTenDigits, -1, 0,
     "Official No. can only be a number  greater than 0 and less than 10000000000."},
    {&Ui::frmShipParticulars::txtIMONo, 0, kTenDigits, -1, 0,
     "IMO No. can only be a number  greater than 0 and less than 10000000000."},
    {&Ui::frmShipParticulars::txtLOA, 0, 1000, 2, 2,
     "LOA can only be a positive number greater than 0 and less than 1000."},
    {&Ui::frmShipParticulars::txtLBP, 0, 1000, 2, 2,
     "LBP can only be a positive number greater than 0 and less than 1000."},
    {&Ui::frmShipParticulars::txtBreadth, 0, 1000, 3, 3,
     "Breadth can only be a positive number greater than 0 and less than 1000."},
    {&Ui::frmShipParticulars::txtLightShip, 0, 1000000, 4, 4,
     "Value of Light Ship can only be a positive number greater than 0 and less than 1000000."},
    {&Ui::frmShipParticulars::txtGrossTonnage, 0, 1000000, 1, 1,
     "Gross Tonnage can only be a positive number  greater than 0 and less than 1000000."},
    {&Ui::frmShipParticulars::txtNetTonnage, 0, 1000000, 1, 1,
     "Net Tonnage can only be a positive number greater than 0 and less than 1000000."},
    {&Ui::frmShipParticulars::txtSummerDeadweight, 0, 1000000, 3, 3,
     "Summer Deadweight can only be a positive number greater than 0 and less than 1000000."},
    {&Ui::frmShipParticulars::txtSummerDraft, 0, 100, 4, 4,
     "Summer Draft can only be a positive number greater than 0 and less than 100."},
}};

const std::array<frmShipParticulars::TextField, 15> frmShipParticulars::kTextFields {{
    {&Ui::frmShipParticulars::txtOfficialNo, "OfficialNo", true, "Please enter the Official No."},
    {&Ui::frmShipParticulars::txtSummerDraft, "SummerDraft", true, "Please enter the Summer Draft."},
    {&Ui::frmShipParticulars::txtSummerDeadweight, "SummerDeadweight", true, "Please enter the Summer Dead Weight."},
    {&Ui::frmShipParticulars::txtCallSign, "CallSign", false, "Please enter the Call Sign."},
    {&Ui::frmShipParticulars::txtFlag, "Flag", false, "Please enter the Flag."},
    {&Ui::frmShipParticulars::txtIMONo, "IMONo", true, "Please enter the IMO No."},
    {&Ui::frmShipParticulars::txtGrossTonnage, "GrossTonnage", true, "Please enter the Gross Tonnage."},
    {&Ui::frmShipParticulars::txtNetTonnage, "NetTonnage", true, "Please enter the Net Tonnage."},
    {&Ui::frmShipParticulars::txtLBP, "LBP", true, "Please enter the LBP."},
    {&Ui::frmShipParticulars::txtLOA, "LOA", true, "Please enter the LOA."},
    {&Ui::frmShipParticulars::txtBreadth, "Breadth", true, "Please enter the Breadth."},
    {&Ui::frmShipParticulars::txtFwdX, "FwdX", true, "Please enter the Fwd-X."},
    {&Ui::frmShipParticulars::txtMidX, "MidX", true, "Please enter the Mid-X."},
    {&Ui::frmShipParticulars::txtAftX, "AftX", true, "Please enter the Aft-X."},
    {&Ui::frmShipParticulars::txtLightShip, "LightShip", true, "Please enter the Light Ship."},
}};

QLineEdit &frmShipParticulars::FieldOf(const NumberRule &rule) const
{
    return *((*ui).*rule.field);
}

void frmShipParticulars::ConnectChecks()
{
    for (const NumberRule &rule : kNumberRules)
        OnValidate(&FieldOf(rule), [this, &rule](bool &cancel) { cancel = !Accepts(rule); });
}

bool frmShipParticulars::Accepts(const NumberRule &rule)
{
    QLineEdit &field = FieldOf(rule);
    const auto refuse = [&field](std::string_view message) {
        MsgBox(message, MsgIcon::Exclamation, kCaption);
        field.clear();
        return false;
    };
    const std::string text = field.text().trimmed().toStdString();
    if (text.empty())
        return true;
    if (!IsNumericText(text))
        return refuse("Invalid value. Only numbers are allowed.");
    std::optional<Decimal> number = TypedNumber(text);
    if (number && rule.places >= 0)
        number = number->Round(rule.places);
    if (!number || *number <= Decimal(rule.above) || *number >= Decimal(rule.below))
        return refuse(rule.message);
    ShowValue(field, Value(number->Round(rule.shownPlaces)));
    return true;
}

bool frmShipParticulars::ValidValues()
{
    for (const NumberRule &rule : kNumberRules) {
        if (!Accepts(rule))
            return false;
    }
    return true;
}

bool frmShipParticulars::ValidShip()
{
    const auto missing = [this](QWidget *field, const char *message) {
        mFormMessage = message;
        MoveFocus(field);
        return false;
    };
    if (IsBlank(ui->cmbShipName->Text()))
        return missing(ui->cmbShipName, "Please enter ship name.");
    if (ui->dcbPortOfRegistry->Text().isEmpty())
        return missing(ui->dcbPortOfRegistry, "Please choose the Port of Registry");
    for (const TextField &required : kTextFields) {
        QLineEdit *box = (*ui).*required.box;
        // Meant: a blank counts as an entry here.
        if (box->text().isEmpty())
            return missing(box, required.demand);
    }
    return true;
}
