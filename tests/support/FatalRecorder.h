#pragma once

#include "frame/platform/Fatal.h"

#include <cstdint>
#include <vector>

/// While it lives, a run-time error that no trap took is recorded here instead of ending the program. Without one,
/// such an error fails the test.
class FatalRecorder
{
public:
    /// The numbers so far, in their order.
    [[nodiscard]] const std::vector<std::int32_t> &Numbers() const { return mNumbers; }

private:
    std::vector<std::int32_t> mNumbers;
    ScopedPort<FatalSource> mPort {FatalPort(),
                                   [this](const RuntimeError &error) { mNumbers.push_back(error.Number()); }};
};
