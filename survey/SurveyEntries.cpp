#include "survey/SurveyEntries.h"

#include "core/Clock.h"
#include "core/DateTimeStamp.h"
#include "frame/controls/ScreenText.h"
#include "frame/platform/Form.h"
#include "survey/NumberRule.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"

#include <QDate>
#include <QRegularExpression>
#include <QTime>

namespace
{
/// A date box's text as a date: day first, or month first where the month would be past 12.
QDate DateOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d\\d)-(\\d\\d)-([1-9]\\d{3})$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    const int first = match.captured(1).toInt();
    const int second = match.captured(2).toInt();
    const int year = match.captured(3).toInt();
    return second > 12 ? QDate(year, first, second) : QDate(year, second, first);
}

constexpr const char *kMarkRange = "Please enter value  greater than 0 and less than 100.";

/// A number field, what of the draft stands in it, and its name in the question for it.
struct Entry {
    QLineEdit *Ui::SurveyWindow::*field;
    const Value &(clsDraft::*shown)() const;
    void (clsDraft::*take)(const Value &);
    const char *name;
};
constexpr std::array kEntries {
    Entry {&Ui::SurveyWindow::txtDensity, &clsDraft::SpecificGravity, &clsDraft::SpecificGravity, "Density"},
    Entry {&Ui::SurveyWindow::txtFwdPort, &clsDraft::FwdPort, &clsDraft::FwdPort, "Forward Port"},
    Entry {&Ui::SurveyWindow::txtFwdStbd, &clsDraft::FwdStbd, &clsDraft::FwdStbd, "Forward Starboard"},
    Entry {&Ui::SurveyWindow::txtMidShipPort, &clsDraft::MidPort, &clsDraft::MidPort, "Midship Port"},
    Entry {&Ui::SurveyWindow::txtMidshipStbd, &clsDraft::MidStbd, &clsDraft::MidStbd, "Midship Starboard"},
    Entry {&Ui::SurveyWindow::txtAftPort, &clsDraft::AftPort, &clsDraft::AftPort, "Aft Port"},
    Entry {&Ui::SurveyWindow::txtAftStbd, &clsDraft::AftStbd, &clsDraft::AftStbd, "Aft Starboard"},
};

NumberRule MarkRule(const char *name, const char *range)
{
    const std::string invalid = std::string("Invalid value for ").append(name).append(" draft.\n\n");
    return {.notANumber = invalid + "Please enter numeric value.", .outOfRange = invalid + range};
}
} // namespace

SurveyEntries::SurveyEntries(Form &form, const Ui::SurveyWindow &controls, const SurveyKind &kind)
    : mForm(form)
    , ui(controls)
    , mKind(kind)
{
    const struct {
        QLineEdit *field;
        const char *name;
        const char *range;
    } marks[] = {{ui.txtFwdPort, "Foward Port", kMarkRange},
                 {ui.txtFwdStbd, "Foward Starboard", kMarkRange},
                 {ui.txtMidShipPort, "Midship Port", kMarkRange},
                 {ui.txtMidshipStbd, "Midship Starboard", kind.midshipStbdRange},
                 {ui.txtAftPort, "Aft Port", kMarkRange},
                 {ui.txtAftStbd, "Aft Starboard", kind.aftStbdRange}};
    for (const auto &[mark, name, range] : marks)
        form.OnValidate(mark, [field = mark, rule = MarkRule(name, range)](bool &cancel) {
            if (!IsBlank(field->text()))
                static_cast<void>(TakeNumber(*field, rule, cancel));
        });
    form.OnValidate(ui.txtDensity, [this](bool &cancel) { txtDensity_Validate(cancel); });
    form.OnValidate(ui.mbxDate, [this](bool &cancel) { mbxDate_Validate(cancel); });
    form.OnValidate(ui.mbxTime, [this](bool &cancel) { mbxTime_Validate(cancel); });
}

void SurveyEntries::Show(const clsDraft &draft) const
{
    for (const Entry &entry : kEntries)
        ShowValue(*(ui.*entry.field), BlankIfZero((draft.*entry.shown)()));
    ShowMoment(draft);
}

void SurveyEntries::ShowMoment(const clsDraft &draft) const
{
    ui.mbxDate->SetText(QString::fromStdString(draft.DSDate()));
    ui.mbxTime->SetText(QString::fromStdString(draft.DSTime()));
}

void SurveyEntries::Collect(clsDraft &draft) const
{
    for (const Entry &entry : kEntries)
        (draft.*entry.take)(Entered(*(ui.*entry.field)));
    draft.DSDate(ui.mbxDate->Text().toStdString());
    draft.DSTime(ui.mbxTime->Text().toStdString());
}

bool SurveyEntries::AllFilled() const
{
    for (const auto &[member, shown, take, name] : kEntries) {
        QLineEdit *field = ui.*member;
        if (!IsBlank(field->text()))
            continue;
        TellExclamation(std::string("Incomplete data.\n\nPlease enter value for ").append(name).append("."));
        mForm.MoveFocus(field);
        return false;
    }
    return true;
}

void SurveyEntries::txtDensity_Validate(bool &cancel) const
{
    static const NumberRule rule {.places = 4,
                                  .high = 10,
                                  .notANumber = "Invalid density value.\n\nOnly numbers are allowed.",
                                  .outOfRange
                                  = "Invalid density value.\n\nPlease enter values  greater than 0 and less than 10."};
    if (!IsBlank(ui.txtDensity->text()))
        static_cast<void>(TakeNumber(*ui.txtDensity, rule, cancel));
    else
        (mKind.blankDensityBlanksDeflection ? ui.txtDeflection : ui.txtDensity)->clear();
}

void SurveyEntries::mbxDate_Validate(bool &cancel) const
{
    const QString text = ui.mbxDate->Text();
    const QDate date = DateOf(text);
    if (!date.isValid()) {
        TellExclamation("Invalid Date");
        cancel = true;
        ui.mbxDate->SetText(QString::fromStdString(DateText(Now())));
        ui.mbxDate->selectAll();
        return;
    }
    // Month first goes in day first, with no message.
    if (text.mid(3, 2).toInt() >= 13)
        ui.mbxDate->SetText(date.toString(QStringLiteral("dd-MM-yyyy")));
}

void SurveyEntries::mbxTime_Validate(bool &cancel) const
{
    const QTime time = QTime::fromString(ui.mbxTime->Text(), QStringLiteral("HH:mm"));
    if (time.isValid())
        return;
    TellExclamation("Invalid Time");
    cancel = true;
    ui.mbxTime->SetText(QString::fromStdString(TimeText(Now())));
    ui.mbxTime->selectAll();
}
