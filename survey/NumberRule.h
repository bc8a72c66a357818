#pragma once

#include <cstdint>
#include <string>

class QLineEdit;

/// One number field's rule: decimal places, accepted range and the texts of its two refusals.
struct NumberRule {
    int places = 3;
    /// The smallest accepted value is low itself, or only what is above it.
    bool lowAccepted = false;
    std::int32_t low = 0;
    std::int32_t high = 100;
    std::string notANumber;
    std::string outOfRange;
};

/// Checks and rounds a number entry by its rule; tells what is wrong, sets cancel to hold the focus and blanks the
/// field. True where the field holds an accepted number.
[[nodiscard]] bool TakeNumber(QLineEdit &field, const NumberRule &rule, bool &cancel);
