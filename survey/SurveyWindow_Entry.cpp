#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include "core/DateTimeStamp.h"
#include "core/ReturnCode.h"
#include "core/numeric/NumericText.h"

#include "frame/controls/FloatingEditor.h"

#include <QApplication>
#include <QDate>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTime>

namespace
{
constexpr std::int16_t kShortRun = 1;

/// Names of the marks as the messages of their fields bear them.
std::string MarkName(const QString &field)
{
    static const QHash<QString, const char *> names {
        {"txtFwdPort", "Foward Port"},           {"txtFwdStbd", "Foward Starboard"}, {"txtMidShipPort", "Midship Port"},
        {"txtMidshipStbd", "Midship Starboard"}, {"txtAftPort", "Aft Port"},         {"txtAftStbd", "Aft Starboard"},
    };
    return names.value(field, "");
}

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

/// The decimal of a typed number; nothing where it lies out of a decimal's range.
std::optional<Value> RoundedEntry(const std::string &text, int places)
{
    try {
        return Round(Value(NumericTextToDecimal(text)), places);
    } catch (const RuntimeError &error) {
        if (error.Number() != ErrorNumber::Overflow)
            throw;
        return std::nullopt;
    }
}
} // namespace

bool SurveyWindow::Form_KeyPress(QKeyEvent &event)
{
    QWidget *active = QApplication::focusWidget();
    if ((event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) || active == nullptr)
        return false;
    if (active == txtGridTextbox) {
        txtGridTextbox_KeyPress();
        return true;
    }
    if (active == ui->txtAftStbd && txtGridTextbox->isVisible()) {
        if (MayLeave(active)) {
            ui->fgrdDeduction->SetCurrent(0, 1);
            txtGridTextbox->setFocus();
        }
        return true;
    }
    SendTab();
    return true;
}

SurveyWindow::NumberRule SurveyWindow::RuleOf(const QString &field) const
{
    if (field == QLatin1String("txtDensity"))
        return {.places = 4,
                .high = 10,
                .notANumber = "Invalid density value.\n\nOnly numbers are allowed.",
                .outOfRange = "Invalid density value.\n\nPlease enter values  greater than 0 and less than 10."};
    if (field == QLatin1String("txtGridTextbox"))
        return {.places = 4,
                .lowAccepted = true,
                .high = 100000,
                .notANumber = "Invalid quantity.\n\nPlease enter numeric value only.",
                .outOfRange = "Invalid value.\n\nValue of deduction can be  greater than 0 and less than 100000."};
    const std::string invalid = "Invalid value for " + MarkName(field) + " draft.\n\n";
    return {.notANumber = invalid + "Please enter numeric value.",
            .outOfRange = invalid + "Please enter value  greater than 0 and less than 100."};
}

bool SurveyWindow::TakeNumber(QLineEdit &field, const NumberRule &rule, bool &cancel)
{
    const auto refuse = [&](const std::string &message) {
        TellExclamation(message);
        cancel = true;
        field.clear();
        return false;
    };
    const std::string text = field.text().trimmed().toStdString();
    if (!IsNumericText(text))
        return refuse(rule.notANumber);
    const std::optional<Value> value = RoundedEntry(text, rule.places);
    if (!value)
        return refuse(rule.outOfRange);
    // The rounded value stands in the field while a message is up.
    ShowValue(field, *value);
    const bool aboveLow = rule.lowAccepted ? *value >= Value(rule.low) : *value > Value(rule.low);
    if (!aboveLow || *value >= Value(rule.high))
        return refuse(rule.outOfRange);
    return true;
}

void SurveyWindow::NumberField_Validate(QLineEdit &field, bool &cancel)
{
    if (!IsBlank(field.text()))
        static_cast<void>(TakeNumber(field, RuleOf(field.objectName()), cancel));
}

void SurveyWindow::txtDensity_Validate(bool &cancel)
{
    if (IsBlank(ui->txtDensity->text()))
        BlankDensityLeft();
    else
        static_cast<void>(TakeNumber(*ui->txtDensity, RuleOf(ui->txtDensity->objectName()), cancel));
}

void SurveyWindow::BlankDensityLeft()
{
    ui->txtDensity->clear();
}

void SurveyWindow::mbxDate_Validate(bool &cancel)
{
    const QString text = ui->mbxDate->Text();
    const QDate date = DateOf(text);
    if (!date.isValid()) {
        TellExclamation("Invalid Date");
        cancel = true;
        ui->mbxDate->SetText(QString::fromStdString(DateText(Now())));
        ui->mbxDate->selectAll();
        return;
    }
    // Month first goes in day first, with no message.
    if (text.mid(3, 2).toInt() >= 13)
        ui->mbxDate->SetText(date.toString(QStringLiteral("dd-MM-yyyy")));
}

void SurveyWindow::mbxTime_Validate(bool &cancel)
{
    const QTime time = QTime::fromString(ui->mbxTime->Text(), QStringLiteral("HH:mm"));
    if (time.isValid())
        return;
    TellExclamation("Invalid Time");
    cancel = true;
    ui->mbxTime->SetText(QString::fromStdString(TimeText(Now())));
    ui->mbxTime->selectAll();
}

void SurveyWindow::SetListCorrection(const Stage &stage, bool on)
{
    QCheckBox &box = ListCorrectionOf(stage);
    if (box.isChecked() == on)
        return;
    {
        const QSignalBlocker quiet(box);
        box.setChecked(on);
    }
    ListCorrection_Click(stage);
}

void SurveyWindow::ListCorrection_Click(const Stage &stage)
{
    if (ui->txtTrueMeanDraft->text().isEmpty() || mNoEvents)
        return;
    clsDraft &draft = DraftOf(stage);
    const bool on = ListCorrectionOf(stage).isChecked();
    if (!on)
        ClearListCorrection();
    draft.ListCorrected(on);
    CollectDraft(stage);
    if (draft.Calculate(kShortRun) == ReturnCode::NotCalculated)
        ClearReadOnly();
    else
        LoadDraft(stage);
}
