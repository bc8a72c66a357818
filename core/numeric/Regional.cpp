#include "core/numeric/Regional.h"

const RegionalSettings &Regional()
{
    return *RegionalPort();
}

Port<RegionalSettings> &RegionalPort()
{
    static Port<RegionalSettings> port;
    return port;
}
