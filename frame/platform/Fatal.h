#pragma once

#include "core/numeric/RuntimeError.h"

#include <functional>

/// A run-time error that no trap took: shows the platform's message, abandons the open transaction and ends the
/// process at once with a status that is not zero. Nothing is unloaded, asked or written.
void Fatal(const RuntimeError &error);

/// Another end than the process's, for tests; an empty function brings the program's own back.
using FatalPort = std::function<void(const RuntimeError &)>;
void SetFatalPort(FatalPort port);
