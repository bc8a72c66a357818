#include "core/MsgBox.h"

#include <stdexcept>

MsgAnswer MsgBox(const Message &message)
{
    return (*MsgBoxPort())(message);
}

void MsgBox(std::string_view text, MsgIcon icon, std::string_view caption)
{
    MsgBox(Message {.text = std::string(text), .icon = icon, .caption = std::string(caption)});
}

Port<MsgBoxSource> &MsgBoxPort()
{
    static Port<MsgBoxSource> port(
        [](const Message &) -> MsgAnswer { throw std::logic_error("no message box port is set"); });
    return port;
}
