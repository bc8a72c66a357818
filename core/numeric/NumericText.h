#pragma once

#include "core/numeric/Decimal.h"
#include "core/numeric/Regional.h"

#include <optional>
#include <string>
#include <string_view>

/// What a field takes for a number under the machine's regional settings: blanks around it; a leading or a trailing
/// sign; digits with group separators and one decimal separator; an exponent; a currency sign; parentheses for a
/// negative; hexadecimal (&H) and octal (&O, &) whole numbers. Empty text is no number.
[[nodiscard]] bool IsNumericText(std::string_view text, const RegionalSettings &regional = Regional());

/// The number that such a text stands for. Type mismatch (13) where IsNumericText is false for its form,
/// overflow (6) where it is out of a decimal's range.
[[nodiscard]] Decimal NumericTextToDecimal(std::string_view text, const RegionalSettings &regional = Regional());

/// The same; nothing where it is out of a decimal's range.
[[nodiscard]] std::optional<Decimal> TypedNumber(std::string_view text);

/// A field's number as a statement takes it: its digits as they stand, a point for the decimal separator. What a field
/// may hold beyond a sign, digits, one separator and an exponent has no place in a statement, so the result is always
/// one number and nothing else. Type mismatch (13) for any other text, overflow (6) out of a decimal's range.
[[nodiscard]] std::string FieldSqlText(std::string_view text, const RegionalSettings &regional = Regional());

/// The text without the blanks around it.
[[nodiscard]] std::string_view Trimmed(std::string_view text);
