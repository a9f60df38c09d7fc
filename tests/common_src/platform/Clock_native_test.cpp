#include <gtest/gtest.h>

#include <ctime>

#include "common_src/platform/Clock.h"

namespace {

using ZelCommon::Platform::SystemClock;

TEST(SystemClockNative, Now_AgreesWithLocaltime) {
    const std::time_t before = std::time(nullptr);
    const auto now = SystemClock().Now();
    std::tm local{};
    localtime_r(&before, &local);
    EXPECT_EQ(now.year, local.tm_year + 1900);
    EXPECT_EQ(now.month, local.tm_mon + 1);
    EXPECT_EQ(now.day, local.tm_mday);
    EXPECT_EQ(now.dayOfWeek, local.tm_wday);
    EXPECT_EQ(now.hour, local.tm_hour);
    EXPECT_LT(now.milliseconds, 1000);
}

}  // namespace
