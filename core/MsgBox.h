#pragma once

#include "core/numeric/Port.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

enum class MsgIcon : std::uint8_t { None, Critical, Question, Exclamation, Information };
enum class MsgButtons : std::uint8_t { Ok, YesNo, YesNoCancel };
enum class MsgAnswer : std::uint8_t { Ok, Cancel, Yes, No };

inline constexpr std::string_view kProgramTitle = "Keelmark";

/// Separates the sentences of a two-part message.
inline constexpr std::string_view kTwoLineBreaks = "\n\n";

/// One modal message box: plain text, never markup.
struct Message {
    std::string text;
    MsgIcon icon = MsgIcon::None;
    std::string caption = std::string(kProgramTitle);
    MsgButtons buttons = MsgButtons::Ok;
    MsgAnswer defaultAnswer = MsgAnswer::Ok;
};

/// Shows the box and waits for the answer. A box closed by other means than a button answers Cancel where it has
/// that button, and Ok where it has no other.
MsgAnswer MsgBox(const Message &message);

/// A box with an OK button only. The caption is the program's title unless another is given.
void MsgBox(std::string_view text, MsgIcon icon = MsgIcon::None, std::string_view caption = kProgramTitle);

inline void TellExclamation(std::string_view text, std::string_view caption = kProgramTitle)
{
    MsgBox(text, MsgIcon::Exclamation, caption);
}

/// What shows the boxes: the program puts a window in place, a test a script. Without one, MsgBox throws
/// std::logic_error.
using MsgBoxSource = std::function<MsgAnswer(const Message &)>;
[[nodiscard]] Port<MsgBoxSource> &MsgBoxPort();

/// While one lives, no box is shown: each is answered by its default and only counts.
class UnsaidMessages
{
public:
    [[nodiscard]] bool Any() const noexcept { return mAny; }

private:
    // Counted in const ones too.
    mutable bool mAny = false;
    ScopedPort<MsgBoxSource> mUnsaid {MsgBoxPort(), [this](const Message &message) {
                                          mAny = true;
                                          return message.defaultAnswer;
                                      }};
};
