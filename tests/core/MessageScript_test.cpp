#include "tests/support/MessageScript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace
{
const Message kSave = {.text = "Save?", .icon = MsgIcon::Question, .buttons = MsgButtons::YesNoCancel};
}

TEST(MessageScript, AnswersWhatIsExpectedAndFailsForAllElse)
{
    MessageScript script;
    script.Expect(kSave, MsgAnswer::No);
    script.Expect({.text = "Saved."});
    EXPECT_EQ(MsgBox(kSave), MsgAnswer::No);
    MsgBox("Saved.");
    EXPECT_EQ(script.Shown().size(), 2U);

    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(MsgBox(kSave), MsgAnswer::Cancel), "not expected");
    Message other = kSave;
    other.defaultAnswer = MsgAnswer::Cancel;
    script.Expect(other, MsgAnswer::Yes);
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(MsgBox(kSave), MsgAnswer::Cancel), "this one came");
    script.Expect(kSave, MsgAnswer::Yes);
    EXPECT_NONFATAL_FAILURE(script.ExpectNoneLeft(), "never came");
    EXPECT_NONFATAL_FAILURE(script.Expect(kSave, MsgAnswer::Ok), "no button");
    EXPECT_EQ(MsgBox(kSave), MsgAnswer::Ok);
}
