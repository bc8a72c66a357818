#pragma once

#include "core/numeric/Port.h"

#include <functional>

/// Local date and time of the machine, as a calendar shows it.
struct ClockTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The present local time, from the machine's clock unless another source is in place.
[[nodiscard]] ClockTime Now();

using ClockSource = std::function<ClockTime()>;
[[nodiscard]] Port<ClockSource> &ClockPort();
