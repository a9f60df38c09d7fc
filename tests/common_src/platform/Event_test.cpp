#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

#include "common_src/platform/Event.h"

namespace {

using ZelCommon::Platform::CreateAutoResetEvent;
using ZelCommon::Platform::IEvent;
using Clock = std::chrono::steady_clock;

std::unique_ptr<IEvent> NewEvent() {
    auto event = CreateAutoResetEvent();
    EXPECT_NE(event, nullptr);
    return event;
}

// Unsignalled when new; a set, however often repeated, lets exactly one wait through, and
// events are independent of each other.
TEST(AutoResetEvent, Set_LetsOneWaitThrough) {
    const auto event = NewEvent();
    const auto other = NewEvent();
    EXPECT_FALSE(event->Wait(0));
    event->Set();
    event->Set();
    EXPECT_FALSE(other->Wait(0));
    EXPECT_TRUE(event->Wait(0));
    EXPECT_FALSE(event->Wait(20));
}

TEST(AutoResetEvent, WaitWithoutSignal_TimesOutAfterTheGivenTime) {
    const auto event = NewEvent();
    const auto start = Clock::now();
    EXPECT_FALSE(event->Wait(80));
    // Windows timers may round a little below the asked time.
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(70));
}

TEST(AutoResetEvent, SetFromAnotherThread_WakesTheWaiterBeforeItsTimeout) {
    const auto event = NewEvent();
    const auto start = Clock::now();
    std::thread setter([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        event->Set();
    });
    const bool signalled = event->Wait(10000);
    const auto waited = Clock::now() - start;
    setter.join();
    EXPECT_TRUE(signalled);
    EXPECT_LT(waited, std::chrono::milliseconds(5000));
}

}  // namespace
