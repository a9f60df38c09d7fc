#include <gtest/gtest.h>

#include "common_src/platform/WindowMessaging.h"

namespace {

using ZelCommon::Platform::SystemWindowMessaging;

TEST(SystemWindowMessagingNative, NoWindowIsFoundOrReached) {
    EXPECT_EQ(SystemWindowMessaging().FindByTitle(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}"), 0u);
    EXPECT_EQ(SystemWindowMessaging().FindByClass(L"Outlook Express Browser Class"), 0u);
    EXPECT_FALSE(SystemWindowMessaging().Post(0x1234, 1033, 0, 0));
    EXPECT_EQ(SystemWindowMessaging().Send(0x1234, 1033, 0, 0), 0);
}

}  // namespace
