#include <gtest/gtest.h>

#include <editor/display.h>

namespace {

TEST(Display, IsUpdatedByTheInstalledHook)
{
    int calls = 0;
    kdedSetUpdateDisplayHook([&] { ++calls; });
    kdedUpdateDisplay();
    kdedUpdateDisplay();
    kdedSetUpdateDisplayHook({});
    EXPECT_EQ(calls, 2);
}

TEST(Display, IsLeftAloneWithoutAHook)
{
    int calls = 0;
    kdedSetUpdateDisplayHook([&] { ++calls; });
    EXPECT_TRUE(kdedSetUpdateDisplayHook({}));
    kdedUpdateDisplay();
    EXPECT_EQ(calls, 0);
}

TEST(Display, LetsAHookTakeItselfAway)
{
    int calls = 0;
    kdedSetUpdateDisplayHook([&] {
        kdedSetUpdateDisplayHook({});
        ++calls;
    });
    kdedUpdateDisplay();
    kdedUpdateDisplay();
    EXPECT_EQ(calls, 1);
}

} // namespace
