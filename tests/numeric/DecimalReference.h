#pragma once

#include <string>

/// Decimal arithmetic by hand, on strings of digits: slow, and nothing in common with the words it is held against.
struct DecimalReference {
    std::string digits; ///< no leading zeros; empty for zero
    int scale = 0;
    bool negative = false;

    /// Exact.
    [[nodiscard]] static DecimalReference Sum(const DecimalReference &left, const DecimalReference &right);
    [[nodiscard]] static DecimalReference Product(const DecimalReference &left, const DecimalReference &right);
    /// To 60 places, with a last digit of 1 more where there is a remainder.
    [[nodiscard]] static DecimalReference Quotient(const DecimalReference &left, const DecimalReference &right);

    /// Every digit, with a point: what Decimal::Parse reads.
    [[nodiscard]] std::string AllDigits() const;
    /// What Decimal::Text gives after rounding into 96 bits and 28 places; "overflow" where it does not fit.
    [[nodiscard]] std::string FittedText() const;
};
