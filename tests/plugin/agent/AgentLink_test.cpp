#include "plugin/agent/AgentLink.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

using Plugin::AgentDelivery;
using Plugin::IsButtonCommand;

const std::wstring kTitle = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
const std::wstring kSuccess =
    LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle success");
const std::wstring kLaunchIn = LogEntry(L"@@@ CToolBarWnd::LaunchShadow  IN");
const std::wstring kLaunchOut = LogEntry(L"@@@ CToolBarWnd::LaunchShadow  OUT");

TEST(AgentLink, LaunchShadow_StartsTheQuotedProgramWithTheTitleAndLogsAFailure) {
    ControllerRig rig;
    Plugin::CAgentLink link(rig.messaging, rig.clock, rig.launcher, rig.log,
                            L"C:\\Program Files\\Halvion\\WLM\\");
    EXPECT_EQ(link.CommandLine(), L"\"C:\\Program Files\\Halvion\\WLM\\ORVA_WLM.exe\" " + kTitle);

    for (const bool launches : {true, false}) {
        SCOPED_TRACE(launches);
        ControllerRig fresh;
        fresh.launcher.SetResult(launches);
        fresh.agent.LaunchShadow();
        const std::wstring launch = L"launch \"C:\\Addin\\ORVA_WLM.exe\" " + kTitle + L"|";
        const std::vector<std::wstring> failure = {LogEntry(L"Failed to create ORVA_WLM.exe")};
        EXPECT_EQ(fresh.Journal(), Journal({{kLaunchIn, launch},
                                            launches ? std::vector<std::wstring>{} : failure,
                                            {kLaunchOut}}));
    }
}

// Looks once, then once more after each retry's sleep, and posts 1069 to the agent it finds.
TEST(AgentLink, ShutdownShadowEX_LooksForTheAgentOnceAndOncePerRetry) {
    const struct {
        const char* name;
        std::optional<unsigned> missedLookups;  // none: no agent at all
        uint32_t retries;
        std::vector<std::wstring> journal;
        unsigned lookups;
    } cases[] = {
        {"agent there", 0, 20, {AgentEntry(L"post", 1069)}, 1},
        {"agent on the third look",
         2,
         20,
         {L"sleep 500", kShadowRetry, L"sleep 500", kSuccess, AgentEntry(L"post", 1069)},
         3},
        {"agent never there", std::nullopt, 10, Times(10, {L"sleep 500", kShadowRetry}), 11},
        {"no retries, agent late", 1, 0, {}, 1},
        {"no retries, agent there", 0, 0, {AgentEntry(L"post", 1069)}, 1},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        ControllerRig rig;
        if (each.missedLookups) {
            rig.AddAgent(*each.missedLookups);
        }
        rig.agent.ShutdownShadowEX(each.retries, 500);
        EXPECT_EQ(rig.Journal(), each.journal);
        EXPECT_EQ(rig.messaging.LookupCount(), each.lookups);
    }
}

// The toolbar's commands (1038 to 1043, not 1040) go to the agent only while the companion suite
// is not busy; every other message is posted or sent as the protocol says, busy suite or not.
// Without an agent nothing is sent and nothing is logged.
TEST(AgentLink, Messages_ReachTheAgentAsPostsOrSends) {
    const struct {
        uint32_t message;
        AgentDelivery delivery;
        bool command;
    } cases[] = {
        {1038, AgentDelivery::Posted, true},  {1043, AgentDelivery::Posted, true},
        {1037, AgentDelivery::Posted, false}, {1044, AgentDelivery::Sent, false},
        {16, AgentDelivery::Sent, false},
    };
    EXPECT_FALSE(IsButtonCommand(1040)) << "lies between the commands but is none";
    for (const auto& each : cases) {
        SCOPED_TRACE(each.message);
        EXPECT_EQ(IsButtonCommand(each.message), each.command);
        const bool sent = each.delivery == AgentDelivery::Sent;
        const std::wstring entry = AgentEntry(sent ? L"send" : L"post", each.message, 0, 1);
        for (const bool suiteBusy : {false, true}) {
            SCOPED_TRACE(suiteBusy);
            ControllerRig rig;
            if (suiteBusy) {
                rig.AddSuite();
            }
            EXPECT_EQ(rig.agent.Notify(each.message, 0, 1), std::nullopt);
            if (each.command) {
                rig.agent.SendButtonCommand(each.message);
            }
            EXPECT_EQ(rig.Journal(), std::vector<std::wstring>{}) << "without an agent";

            rig.messaging.SetSendResult(rig.AddAgent(), each.message, 7);
            if (each.command) {
                rig.agent.SendButtonCommand(each.message);
                EXPECT_EQ(rig.Journal(),
                          suiteBusy ? std::vector<std::wstring>{}
                                    : std::vector<std::wstring>{AgentEntry(L"post", each.message)});
            } else {
                EXPECT_EQ(rig.agent.Notify(each.message, 0, 1), sent ? 7 : 0);
                EXPECT_EQ(rig.Journal(), std::vector<std::wstring>{entry});
            }
        }
    }
}

}  // namespace
}  // namespace Orva::Testing
