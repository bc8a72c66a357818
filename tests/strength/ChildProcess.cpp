#include "tests/strength/ChildProcess.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

ChildProcess::ChildProcess(const std::function<int()> &work)
{
    std::fflush(nullptr);
    mProcess = fork();
    if (mProcess != 0)
        return;
    // No clean-up of what belongs to the parent.
    std::_Exit(work());
}

ChildProcess::~ChildProcess()
{
    if (!mEnded)
        static_cast<void>(Kill());
}

bool ChildProcess::Kill()
{
    kill(mProcess, SIGKILL);
    int status = 0;
    waitpid(mProcess, &status, 0);
    mEnded = true;
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

int ChildProcess::Wait(int seconds)
{
    int status = 0;
    for (int step = 0; step < seconds * 200; ++step) {
        if (waitpid(mProcess, &status, WNOHANG) == mProcess) {
            mEnded = true;
            return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        usleep(5000);
    }
    static_cast<void>(Kill());
    return -1;
}

ScopedPort<MsgBoxSource> AgreeToEverything(std::vector<std::string> &told)
{
    return {MsgBoxPort(), [&told](const Message &message) {
                told.push_back(message.text);
                return message.buttons == MsgButtons::Ok ? MsgAnswer::Ok : MsgAnswer::Yes;
            }};
}
