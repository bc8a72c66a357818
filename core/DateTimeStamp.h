#pragma once

#include "core/Clock.h"
#include "core/numeric/Value.h"

#include <string>
#include <string_view>

/// The twelve digits yyyyMMddHHmm of "dd-MM-yyyy HH:mm", as a decimal. The text is taken apart by position and not
/// checked as a date: type mismatch (13) where the pieces are no digits.
[[nodiscard]] Value DateTimeToStamp(std::string_view text);

/// "dd-MM-yyyy" of a stamp.
[[nodiscard]] std::string StampToDate(const Value &stamp);
/// "HH:mm" of a stamp.
[[nodiscard]] std::string StampToTime(const Value &stamp);

/// "dd-MM-yyyy" and "HH:mm" of a moment.
[[nodiscard]] std::string DateText(const ClockTime &time);
[[nodiscard]] std::string TimeText(const ClockTime &time);
