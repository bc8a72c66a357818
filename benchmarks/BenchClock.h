#pragma once

#include <QCoreApplication>

#include <chrono>

constexpr double kFrameMicroseconds = 16000.0;

using Clock = std::chrono::steady_clock;

[[nodiscard]] inline double SecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Delivers what is waiting, the painting of every window included.
inline void PaintAll()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}
