#include "frame/platform/Fatal.h"

#include "core/MsgBox.h"
#include "frame/store/Connection.h"

#include <cstdio>
#include <cstdlib>

namespace
{
// Numbers that do not fit 16 bits are known by their hexadecimal form.
std::string NumberText(std::int32_t number)
{
    std::string text = std::to_string(number);
    if (number >= 0 && number <= 0xFFFF)
        return text;
    char hexadecimal[16];
    std::snprintf(hexadecimal, sizeof hexadecimal, " (%08X)", static_cast<unsigned>(number));
    return text + hexadecimal;
}

void AbandonTransaction()
{
    try {
        if (gConnection && gConnection->IsOpen() && gConnection->InTransaction())
            gConnection->RollbackTrans();
    } catch (const RuntimeError &) {
        // The end of the process abandons it too.
    }
}
} // namespace

void EndProgram(const RuntimeError &error)
{
    // The box lets other events run, and they may fail as well.
    static bool ending = false;
    if (!ending) {
        ending = true;
        AbandonTransaction();
        MsgBox("Run-time error '" + NumberText(error.Number()) + "':" + std::string(kTwoLineBreaks)
                   + error.Description(),
               MsgIcon::Critical);
    }
    std::_Exit(EXIT_FAILURE);
}

void Fatal(const RuntimeError &error)
{
    (*FatalPort())(error);
}

Port<FatalSource> &FatalPort()
{
    static Port<FatalSource> port(EndProgram);
    return port;
}
