#include "core/DateTimeStamp.h"

#include <algorithm>
#include <cstdio>

namespace
{
/// Characters of a text by their 1-based position; what lies past its end is left out.
std::string_view Mid(std::string_view text, std::size_t position, std::size_t count)
{
    return position > text.size() ? std::string_view() : text.substr(position - 1, count);
}

std::string_view Right(std::string_view text, std::size_t count)
{
    return text.substr(text.size() - std::min(count, text.size()));
}
} // namespace

Value DateTimeToStamp(std::string_view text)
{
    std::string digits;
    for (const std::string_view piece :
         {Mid(text, 7, 4), Mid(text, 4, 2), Mid(text, 1, 2), Mid(text, 12, 2), Right(text, 2)})
        digits += piece;
    return Value(Value(digits).ToDecimal());
}

std::string StampToDate(const Value &stamp)
{
    const std::string text = stamp.SqlText();
    return std::string(Mid(text, 7, 2)).append("-").append(Mid(text, 5, 2)).append("-").append(Mid(text, 1, 4));
}

std::string StampToTime(const Value &stamp)
{
    const std::string text = stamp.SqlText();
    return std::string(Mid(text, 9, 2)).append(":").append(Right(text, 2));
}

std::string DateText(const ClockTime &time)
{
    char text[40];
    std::snprintf(text, sizeof text, "%02d-%02d-%04d", time.day, time.month, time.year);
    return text;
}

std::string TimeText(const ClockTime &time)
{
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d", time.hour, time.minute);
    return text;
}
