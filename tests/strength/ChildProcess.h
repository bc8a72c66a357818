#pragma once

#include "core/MsgBox.h"

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

/// A copy of this process that does some work on its own and ends. What this process has open it must open anew.
class ChildProcess
{
public:
    /// The copy ends with the work's answer as its status.
    explicit ChildProcess(const std::function<int()> &work);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Ends it as a failure of the machine would: at once, whatever it does. False where it had ended by itself.
    [[nodiscard]] bool Kill();
    /// Its status; -1 where a signal ended it, or where it did not end within that time and was killed.
    [[nodiscard]] int Wait(int seconds);

private:
    pid_t mProcess;
    bool mEnded = false;
};

/// Answers every message box Yes or OK and keeps the texts, while what it gives lives.
[[nodiscard]] ScopedPort<MsgBoxSource> AgreeToEverything(std::vector<std::string> &told);
