#pragma once

#include "core/MsgBox.h"

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
/// Starts the program's own sequence anew from the clock.
void SeedRandom();
using RandomSource = std::function<double()>;
[[nodiscard]] Port<RandomSource> &RandomPort();

/// Takes the machine's decimal separator, group separator and currency sign into force.
void TakeRegionalSettings();

/// Shows a message box as a window.
MsgAnswer ShowMessageBoxWindow(const Message &message);
