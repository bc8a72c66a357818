#pragma once

#include "core/numeric/Port.h"

#include <string>

/// How the machine writes numbers. All texts are UTF-8.
struct RegionalSettings {
    std::string decimalSeparator = ".";
    std::string groupSeparator = ",";
    std::string currencySymbol = "$";
};

/// The settings in force for the whole program; a point as decimal separator until others are set.
[[nodiscard]] const RegionalSettings &Regional();
[[nodiscard]] Port<RegionalSettings> &RegionalPort();
