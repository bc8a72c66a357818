#include "core/Clock.h"

#include <ctime>

namespace
{
ClockTime MachineTime()
{
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}
} // namespace

ClockTime Now()
{
    return (*ClockPort())();
}

Port<ClockSource> &ClockPort()
{
    static Port<ClockSource> port(MachineTime);
    return port;
}
