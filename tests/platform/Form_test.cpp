#include "frame/platform/Form.h"

#include "core/numeric/RuntimeError.h"
#include "tests/platform/Desk.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPointer>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class FakeFrame : public FrameLink
{
public:
    void SetMDIToolbar(std::string_view ButtonSettings) override { mHeard.emplace_back(ButtonSettings); }
    void SetHint(const QString &text) override { mHeard.push_back(text.toStdString()); }

    std::vector<std::string> mHeard;

private:
    ScopedPort<FrameLink *> mPort {FramePort(), this};
};

TEST(Form, IsLoadedUntilItsUnloadIsNotRefused)
{
    Desk desk;
    ASSERT_THAT(Forms::All(), ElementsAre(&desk.mForm, &desk.mOther));
    const QPointer<QMdiSubWindow> around = desk.mArea.activeSubWindow();
    const QPointer<Form> form = &desk.mForm;

    desk.mForm.mStay = true;
    EXPECT_FALSE(desk.mForm.Unload());
    EXPECT_FALSE(around->close());
    EXPECT_EQ(desk.mForm.mUnloads, 2);
    EXPECT_EQ(Forms::Count(), 2);
    EXPECT_TRUE(desk.mForm.isVisible());

    desk.mForm.mStay = false;
    EXPECT_TRUE(desk.mForm.Unload());
    EXPECT_THAT(Forms::All(), ElementsAre(&desk.mOther));
    EXPECT_TRUE(desk.mForm.Unload());
    EXPECT_EQ(desk.mForm.mUnloads, 3);
    Settle();
    EXPECT_FALSE(form);
    EXPECT_FALSE(around);
    EXPECT_EQ(desk.mArea.subWindowList().size(), 1);
}

TEST(Form, IsUnloadedOnceByItsSubWindowAndByItselfWhereItHasNone)
{
    auto *alone = new DeskForm;
    ShowActive(*alone);
    EXPECT_EQ(Forms::Count(), 1);
    EXPECT_TRUE(alone->Unload());
    EXPECT_EQ(alone->mUnloads, 1);
    EXPECT_EQ(Forms::Count(), 0);
    Settle();

    Desk desk;
    EXPECT_TRUE(desk.mArea.activeSubWindow()->close());
    EXPECT_EQ(desk.mForm.mUnloads, 1);
    EXPECT_THAT(Forms::All(), ElementsAre(&desk.mOther));
}

TEST(Form, HasNoOperationsOfItsOwn)
{
    Form form;
    for (const std::function<void()> &operation : std::initializer_list<std::function<void()>> {
             [&] { form.RNew(); }, [&] { form.RSave(); }, [&] { form.RDelete(); }, [&] { form.RPrint(); },
             [&] { form.RPrint(false); }})
        EXPECT_EQ(ErrorOf(operation), ErrorNumber::NoSuchOperation);
}

TEST(Form, KeepsTheMaskThatItSendsUnlessSentOnce)
{
    DeskForm form;
    form.SendMask("111111111");
    FakeFrame frame;
    EXPECT_EQ(form.ButtonMask(), "111111111");
    form.SendMask("011111011");
    form.SendMaskOnce("001001010");
    form.SetHint("A hint");
    EXPECT_THAT(frame.mHeard, ElementsAre("011111011", "001001010", "A hint"));
    EXPECT_EQ(form.ButtonMask(), "011111011");
}

TEST(Form, SendTabTakesEffectAfterTheHandlerAndForTheFocusThen)
{
    Desk desk;
    desk.mForm.SendTab();
    EXPECT_EQ(desk.Focus(), "txtFirst");
    desk.mForm.txtSecond.setFocus();
    Settle();
    EXPECT_EQ(desk.Focus(), "cmdGo");
    EXPECT_EQ(desk.mForm.mChecks, 0);
}
} // namespace
