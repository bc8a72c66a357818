#include "tests/support/MessageScript.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <sstream>

namespace
{
constexpr std::array kIcons = {"none", "critical", "question", "exclamation", "information"};
constexpr std::array kButtons = {"OK", "Yes/No", "Yes/No/Cancel"};
constexpr std::array kAnswers = {"OK", "Cancel", "Yes", "No"};

std::string Describe(const Message &message)
{
    std::ostringstream text;
    text << "  text:    " << message.text << "\n  icon:    " << kIcons.at(static_cast<std::size_t>(message.icon))
         << "\n  caption: " << message.caption
         << "\n  buttons: " << kButtons.at(static_cast<std::size_t>(message.buttons))
         << "\n  default: " << kAnswers.at(static_cast<std::size_t>(message.defaultAnswer)) << '\n';
    return text.str();
}

bool Same(const Message &left, const Message &right)
{
    return left.text == right.text && left.icon == right.icon && left.caption == right.caption
        && left.buttons == right.buttons && left.defaultAnswer == right.defaultAnswer;
}

bool Offers(MsgButtons buttons, MsgAnswer answer)
{
    switch (answer) {
    case MsgAnswer::Ok:
        return buttons == MsgButtons::Ok;
    case MsgAnswer::Cancel:
        return buttons == MsgButtons::YesNoCancel;
    default:
        return buttons != MsgButtons::Ok;
    }
}

MsgAnswer Least(MsgButtons buttons)
{
    for (const MsgAnswer answer : {MsgAnswer::Cancel, MsgAnswer::No}) {
        if (Offers(buttons, answer))
            return answer;
    }
    return MsgAnswer::Ok;
}
} // namespace

void MessageScript::Expect(const Message &message, MsgAnswer answer, const std::source_location &where)
{
    if (!Offers(message.buttons, answer))
        ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
            << "The box has no button for the answer " << kAnswers.at(static_cast<std::size_t>(answer)) << ":\n"
            << Describe(message);
    mScenes.push_back({message, answer, where});
}

void MessageScript::ExpectNoneLeft()
{
    for (const Scene &scene : mScenes)
        ADD_FAILURE_AT(scene.where.file_name(), static_cast<int>(scene.where.line()))
            << "This message box never came:\n"
            << Describe(scene.message);
    mScenes.clear();
}

MsgAnswer MessageScript::Show(const Message &message)
{
    mShown.push_back(message);
    if (mScenes.empty()) {
        ADD_FAILURE() << "A message box came that was not expected:\n" << Describe(message);
        return Least(message.buttons);
    }
    const Scene scene = mScenes.front();
    mScenes.pop_front();
    if (Same(scene.message, message))
        return scene.answer;
    ADD_FAILURE_AT(scene.where.file_name(), static_cast<int>(scene.where.line()))
        << "Expected the message box\n"
        << Describe(scene.message) << "but this one came\n"
        << Describe(message);
    return Least(message.buttons);
}
