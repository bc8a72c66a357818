#pragma once

#include <cstdint>
#include <vector>

/// While it lives, a run-time error that no trap took is recorded here instead of ending the program. Without one,
/// such an error fails the test.
class FatalRecorder
{
public:
    FatalRecorder();
    ~FatalRecorder();
    FatalRecorder(const FatalRecorder &) = delete;
    FatalRecorder &operator=(const FatalRecorder &) = delete;

    /// The numbers so far, in their order.
    [[nodiscard]] const std::vector<std::int32_t> &Numbers() const { return mNumbers; }

    /// What holds where there is no recorder.
    static void FailTests();

private:
    std::vector<std::int32_t> mNumbers;
};
