#pragma once

#include "core/numeric/Value.h"

#include <QLineEdit>
#include <QString>

/// A value's default text for the screen, under the machine's regional settings.
[[nodiscard]] inline QString ScreenText(const Value &value)
{
    return QString::fromStdString(value.Text());
}

inline void ShowValue(QLineEdit &field, const Value &value)
{
    field.setText(ScreenText(value));
}

/// What stands in a field, as a text.
[[nodiscard]] inline Value Entered(const QLineEdit &field)
{
    return field.text().toStdString();
}

[[nodiscard]] inline bool IsBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

/// The decimal of a field's text. Type mismatch (13) where it is no number.
[[nodiscard]] inline Value DecimalOf(const QString &text)
{
    return Value(text.toStdString()).ToDecimal();
}

/// The decimal of a text, 0 where it is blank.
[[nodiscard]] inline Value DecimalOrZero(const QString &text)
{
    return IsBlank(text) ? Value(Decimal()) : DecimalOf(text);
}
