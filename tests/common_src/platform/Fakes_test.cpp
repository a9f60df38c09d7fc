#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeWindowMessaging.h"

namespace {

using ZelCommon::Fakes::FakeClock;
using ZelCommon::Fakes::FakeDebuggerOutput;
using ZelCommon::Fakes::FakeWindowMessaging;
using Delivery = FakeWindowMessaging::Delivery;
using Message = FakeWindowMessaging::Message;

TEST(FakeClock, Advance_CrossesMidnightMonthAndYear) {
    FakeClock clock(FakeClock::At(2023, 12, 31, 23, 59, 59, 999));
    EXPECT_EQ(clock.Now().dayOfWeek, 0);  // a Sunday
    clock.Advance(1);
    const auto t = clock.Now();
    EXPECT_EQ(t.year, 2024);
    EXPECT_EQ(t.month, 1);
    EXPECT_EQ(t.day, 1);
    EXPECT_EQ(t.hour, 0);
    EXPECT_EQ(t.minute, 0);
    EXPECT_EQ(t.second, 0);
    EXPECT_EQ(t.milliseconds, 0);
    EXPECT_EQ(t.dayOfWeek, 1);
    clock.Set(FakeClock::At(2024, 2, 28, 12));
    clock.Advance(24ull * 3600 * 1000);
    EXPECT_EQ(clock.Now().month, 2);
    EXPECT_EQ(clock.Now().day, 29);
}

TEST(FakeClock, Sleep_IsRecordedAndMovesTimeOnlyWhenAsked) {
    FakeClock clock(FakeClock::At(2024, 1, 31, 10));
    clock.Sleep(500);
    EXPECT_EQ(clock.Now().milliseconds, 0);
    clock.SetAdvanceOnSleep(true);
    clock.Sleep(1500);
    EXPECT_EQ(clock.Now().second, 1);
    EXPECT_EQ(clock.Now().milliseconds, 500);
    EXPECT_EQ(clock.Sleeps(), (std::vector<uint32_t>{500, 1500}));
}

TEST(FakeDebuggerOutput, KeepsTextsInOrderFromManyThreads) {
    FakeDebuggerOutput output;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&output] {
            for (int i = 0; i < 100; ++i) {
                output.Write(L"x");
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(output.Texts().size(), 400u);
    output.Clear();
    output.Write(L"a");
    output.Write(L"b");
    EXPECT_EQ(output.Texts(), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST(FakeWindowMessaging, FindsWindowsByTitleOrClass) {
    FakeWindowMessaging windows;
    const auto agent = windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
    const auto browser = windows.AddWindow(L"Windows Live Mail", L"Outlook Express Browser Class");
    EXPECT_NE(agent, 0u);
    EXPECT_NE(agent, browser);
    EXPECT_EQ(windows.FindByTitle(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}"), agent);
    EXPECT_EQ(windows.FindByClass(L"Outlook Express Browser Class"), browser);
    EXPECT_EQ(windows.FindByTitle(L"Windows Live Mail"), browser);
    EXPECT_EQ(windows.FindByClass(L""), 0u);
    EXPECT_EQ(windows.FindByTitle(L"nothing"), 0u);
    EXPECT_EQ(windows.LookupCount(), 5u);
    windows.RemoveWindow(agent);
    EXPECT_EQ(windows.FindByTitle(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}"), 0u);
}

TEST(FakeWindowMessaging, WindowAppearsAfterMissedLookups) {
    FakeWindowMessaging windows;
    const auto late = windows.AddWindow(L"late", L"", 2);
    EXPECT_EQ(windows.FindByTitle(L"late"), 0u);
    EXPECT_EQ(windows.FindByTitle(L"late"), 0u);
    EXPECT_EQ(windows.FindByTitle(L"late"), late);
}

TEST(FakeWindowMessaging, RecordsPostsAndSendsInOrder) {
    FakeWindowMessaging windows;
    const auto agent = windows.AddWindow(L"agent");
    windows.SetSendResult(agent, 1045, 7);
    EXPECT_TRUE(windows.Post(agent, 1033, 1, 2));
    EXPECT_EQ(windows.Send(agent, 1045, 3, -4), 7);
    EXPECT_EQ(windows.Send(agent, 1050, 0, 0), 0);
    EXPECT_FALSE(windows.Post(0xDEAD, 1034, 0, 0));
    EXPECT_EQ(windows.Send(0xDEAD, 1045, 0, 0), 0);
    const std::vector<Message> expected = {
        {agent, 1033, 1, 2, Delivery::Posted, true}, {agent, 1045, 3, -4, Delivery::Sent, true},
        {agent, 1050, 0, 0, Delivery::Sent, true},   {0xDEAD, 1034, 0, 0, Delivery::Posted, false},
        {0xDEAD, 1045, 0, 0, Delivery::Sent, false},
    };
    EXPECT_EQ(windows.Messages(), expected);
    EXPECT_EQ(windows.MessagesTo(agent).size(), 3u);
    windows.ClearMessages();
    EXPECT_TRUE(windows.Messages().empty());
}

TEST(FakeWindowMessaging, HandlerAnswersAndMayMessageAgain) {
    FakeWindowMessaging windows;
    const auto controller = windows.AddWindow(L"", L"{459F0EC1-7A80-47c5-A264-B8285F4041DD}");
    const auto agent = windows.AddWindow(L"agent");
    windows.SetHandler(agent, [&](const Message& m) -> intptr_t {
        if (m.message == 1041) {
            windows.Post(controller, 0x0400 + 31, 0, 0);
        }
        return static_cast<intptr_t>(m.wParam) + 1;
    });
    EXPECT_EQ(windows.Send(agent, 1041, 9, 0), 10);
    EXPECT_TRUE(windows.Post(agent, 1033, 5, 0));
    const auto messages = windows.Messages();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[1].window, controller);
    EXPECT_EQ(messages[1].message, 0x0400u + 31);
}

}  // namespace
