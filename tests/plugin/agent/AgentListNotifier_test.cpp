#include "plugin/agent/AgentListNotifier.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "support/fakes/platform/FakeWindowMessaging.h"

namespace {

using Fakes = ZelCommon::Fakes::FakeWindowMessaging;

const std::wstring kAgentTitle = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
const std::wstring kSuiteTitle = L"{665DABCD-BE48-4086-8688-7BF074B6B8E4}";

struct Received {
    uint32_t message;
    uintptr_t wParam;
    intptr_t lParam;
    Fakes::Delivery delivery;
    bool operator==(const Received&) const = default;
};

// Windows that keep what reaches them.
class Desktop {
public:
    void Open(const std::wstring& title) {
        const auto window = messaging.AddWindow(title);
        messaging.SetHandler(window, [this, title](const Fakes::Message& m) {
            received[title].push_back({m.message, m.wParam, m.lParam, m.delivery});
            return intptr_t{0};
        });
    }

    Fakes messaging;
    std::map<std::wstring, std::vector<Received>> received;
};

struct NotifyCase {
    const char* label;
    bool agentRunning;
    void (Orva::Lists::IListChangeNotifier::*notify)();
    std::map<std::wstring, std::vector<Received>> expected;
};

TEST(AgentListNotifier, PostsTheChangeToTheAgentWindowOnlyWhenItExists) {
    const NotifyCase cases[] = {
        {"SenderLists",
         true,
         &Orva::Lists::IListChangeNotifier::SenderListsChanged,
         {{kAgentTitle, {{1033, 0, 0, Fakes::Delivery::Posted}}}}},
        {"Encodings",
         true,
         &Orva::Lists::IListChangeNotifier::EncodingsChanged,
         {{kAgentTitle, {{1034, 0, 0, Fakes::Delivery::Posted}}}}},
        {"NoAgent", false, &Orva::Lists::IListChangeNotifier::SenderListsChanged, {}},
    };
    for (const NotifyCase& test : cases) {
        Desktop desktop;
        desktop.Open(kSuiteTitle);
        if (test.agentRunning) {
            desktop.Open(kAgentTitle);
        }
        Orva::Plugin::CAgentListNotifier notifier(desktop.messaging);
        (notifier.*test.notify)();
        EXPECT_EQ(test.expected, desktop.received) << test.label;
    }
}

}  // namespace
