#include "core/numeric/Regional.h"

#include <utility>

namespace
{
RegionalSettings &Current()
{
    static RegionalSettings settings;
    return settings;
}
} // namespace

const RegionalSettings &Regional()
{
    return Current();
}

void SetRegional(RegionalSettings settings)
{
    Current() = std::move(settings);
}
