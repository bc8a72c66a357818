#pragma once

#include "core/MsgBox.h"

#include <deque>
#include <source_location>
#include <vector>

/// The user at the message boxes: while it lives, every MsgBox is answered from here.
///
///     MessageScript messages;
///     messages.Expect({.text = "Save changes?", .icon = MsgIcon::Question, .buttons = MsgButtons::YesNo},
///     MsgAnswer::No);
///
/// A box that was not expected next, or that differs in anything, fails the test, and so does an expected one that
/// never came. Such a box gets the answer that changes least (Cancel, else No, else Ok), so that the test comes to an
/// end.
class MessageScript
{
public:
    ~MessageScript() { ExpectNoneLeft(); }

    /// Adds a box to those to come, in their order, and what the user presses on it.
    void Expect(const Message &message, MsgAnswer answer = MsgAnswer::Ok,
                const std::source_location &where = std::source_location::current());
    /// Fails for each expected box that has not come yet and forgets it. The end of the script does the same.
    void ExpectNoneLeft();
    /// Every box so far, in the order shown.
    [[nodiscard]] const std::vector<Message> &Shown() const { return mShown; }

private:
    struct Scene {
        Message message;
        MsgAnswer answer;
        std::source_location where;
    };

    MsgAnswer Show(const Message &message);

    std::deque<Scene> mScenes;
    std::vector<Message> mShown;
    ScopedPort<MsgBoxSource> mPort {MsgBoxPort(), [this](const Message &message) { return Show(message); }};
};
