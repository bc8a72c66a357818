#include "survey/NumberRule.h"

#include "core/numeric/NumericText.h"
#include "frame/controls/ScreenText.h"
#include "survey/SurveyMessages.h"

#include <optional>

bool TakeNumber(QLineEdit &field, const NumberRule &rule, bool &cancel)
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
    const std::optional<Decimal> typed = TypedNumber(text);
    if (!typed)
        return refuse(rule.outOfRange);
    // The rounded value stands in the field while a message is up.
    const Value value = Round(Value(*typed), rule.places);
    ShowValue(field, value);
    const bool aboveLow = rule.lowAccepted ? value >= Value(rule.low) : value > Value(rule.low);
    if (!aboveLow || value >= Value(rule.high))
        return refuse(rule.outOfRange);
    return true;
}
