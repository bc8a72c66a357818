#pragma once

#include <functional>
#include <optional>

/// What the platform tells of a lock key; nothing where it does not tell.
struct LockKeys {
    std::optional<bool> capsLock;
    std::optional<bool> numLock;
};
[[nodiscard]] LockKeys ReadLockKeys();

/// The next random number in [0, 1).
[[nodiscard]] double RandomNumber();
/// Starts the sequence anew from the clock.
void SeedRandom();
/// Another source of random numbers, for tests; an empty function brings the program's own back.
void SetRandomPort(std::function<double()> source);

/// Takes the machine's decimal separator, group separator and currency sign into force.
void TakeRegionalSettings();

/// Shows message boxes as windows from now on.
void UseMessageBoxWindows();
