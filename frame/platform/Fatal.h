#pragma once

#include "core/numeric/Port.h"
#include "core/numeric/RuntimeError.h"

#include <functional>

/// A run-time error that no trap took: EndProgram, unless another end is in place.
void Fatal(const RuntimeError &error);

/// Shows the platform's message, abandons the open transaction and ends the process at once with a status that is not
/// zero. Nothing is unloaded, asked or written.
[[noreturn]] void EndProgram(const RuntimeError &error);

using FatalSource = std::function<void(const RuntimeError &)>;
[[nodiscard]] Port<FatalSource> &FatalPort();
