#pragma once

#include "core/numeric/Value.h"

/// Hull deflection in centimetres by the three means in metres: how far midships lies below the mean of the ends
/// (sag), negative where it lies above (hog). Not rounded.
[[nodiscard]] inline Value HullDeflection(const Value &forward, const Value &midships, const Value &aft)
{
    return Value(std::int16_t {50}) * ((midships * Value(std::int16_t {2}) - aft) - forward);
}

[[nodiscard]] inline const char *DeflectionWord(const Value &deflection)
{
    return deflection < Value::Zero() ? "Hog" : "Sag";
}
