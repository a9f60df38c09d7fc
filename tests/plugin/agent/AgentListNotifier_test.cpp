#include "plugin/agent/AgentListNotifier.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "support/fakes/platform/FakeWindowMessaging.h"

namespace {

using Orva::Lists::IListChangeNotifier;
using Windows = ZelCommon::Fakes::FakeWindowMessaging;
// A window's title, then what reached it: the message, its parameters, and whether it was posted.
using Received = std::tuple<std::wstring, uint32_t, uintptr_t, intptr_t, bool>;

struct NotifyCase {
    bool agentRunning;
    void (IListChangeNotifier::*notify)();
    std::vector<Received> expected;
};

TEST(AgentListNotifier, PostsTheChangeToTheAgentWindowOnlyWhenItExists) {
    const std::wstring agent = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
    const std::wstring suite = L"{665DABCD-BE48-4086-8688-7BF074B6B8E4}";
    const NotifyCase cases[] = {
        {true, &IListChangeNotifier::SenderListsChanged, {{agent, 1033, 0, 0, true}}},
        {true, &IListChangeNotifier::EncodingsChanged, {{agent, 1034, 0, 0, true}}},
        {false, &IListChangeNotifier::SenderListsChanged, {}},
    };
    for (const NotifyCase& test : cases) {
        Windows windows;
        std::vector<Received> received;
        for (const std::wstring& title : {suite, test.agentRunning ? agent : std::wstring()}) {
            windows.SetHandler(windows.AddWindow(title), [&, title](const Windows::Message& m) {
                received.emplace_back(title, m.message, m.wParam, m.lParam,
                                      m.delivery == Windows::Delivery::Posted);
                return intptr_t{0};
            });
        }
        Orva::Plugin::CAgentListNotifier notifier(windows);
        (notifier.*test.notify)();
        EXPECT_EQ(test.expected, received);
    }
}

}  // namespace
