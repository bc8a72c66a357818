#include "core/MsgBox.h"

#include <stdexcept>
#include <utility>

namespace
{
MsgBoxPort &Port()
{
    static MsgBoxPort port;
    return port;
}
} // namespace

MsgAnswer MsgBox(const Message &message)
{
    if (!Port())
        throw std::logic_error("no message box port is set");
    return Port()(message);
}

void MsgBox(std::string_view text, MsgIcon icon, std::string_view caption)
{
    MsgBox(Message {.text = std::string(text), .icon = icon, .caption = std::string(caption)});
}

MsgBoxPort SetMsgBoxPort(MsgBoxPort port)
{
    return std::exchange(Port(), std::move(port));
}

UnsaidMessages::UnsaidMessages()
    : mShown(SetMsgBoxPort([this](const Message &message) {
        mAny = true;
        return message.defaultAnswer;
    }))
{
}

UnsaidMessages::~UnsaidMessages()
{
    SetMsgBoxPort(std::move(mShown));
}
