#include <windows.h>

#include <gtest/gtest.h>

#include "common_src/platform/Clock.h"

namespace {

using ZelCommon::Platform::SystemClock;

int64_t MillisecondsOfDay(uint16_t hour, uint16_t minute, uint16_t second, uint16_t millis) {
    return ((int64_t{hour} * 60 + minute) * 60 + second) * 1000 + millis;
}

TEST(SystemClockWin, Now_AgreesWithGetLocalTime) {
    SYSTEMTIME before{};
    ::GetLocalTime(&before);
    const auto now = SystemClock().Now();
    SYSTEMTIME after{};
    ::GetLocalTime(&after);
    ASSERT_EQ(before.wDay, after.wDay) << "ran across midnight; run again";
    EXPECT_EQ(now.year, before.wYear);
    EXPECT_EQ(now.month, before.wMonth);
    EXPECT_EQ(now.day, before.wDay);
    EXPECT_EQ(now.dayOfWeek, before.wDayOfWeek);
    const int64_t at = MillisecondsOfDay(now.hour, now.minute, now.second, now.milliseconds);
    EXPECT_GE(
        at, MillisecondsOfDay(before.wHour, before.wMinute, before.wSecond, before.wMilliseconds));
    EXPECT_LE(at,
              MillisecondsOfDay(after.wHour, after.wMinute, after.wSecond, after.wMilliseconds));
}

}  // namespace
