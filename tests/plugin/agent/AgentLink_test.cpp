#include "plugin/agent/AgentLink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Plugin::AgentDelivery;
using Orva::Plugin::DeliveryOf;
using Orva::Plugin::IsButtonCommand;
using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;
using testing::IsEmpty;

const std::wstring kTitle = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
const std::wstring kRetry =
    LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle failed, retry");
const std::wstring kSuccess =
    LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle success");

TEST(AgentLink, CommandLine_QuotesTheProgramPathButNotTheTitle) {
    ControllerRig rig;
    Orva::Plugin::CAgentLink link(rig.messaging, rig.clock, rig.launcher, rig.log,
                                  L"C:\\Program Files\\Halvion\\WLM\\");
    EXPECT_EQ(link.CommandLine(), L"\"C:\\Program Files\\Halvion\\WLM\\ORVA_WLM.exe\" " + kTitle);
}

TEST(AgentLink, LaunchShadow_Succeeds_LaunchesBetweenInAndOut) {
    ControllerRig rig;
    rig.agent.LaunchShadow();
    EXPECT_THAT(rig.Journal(), ElementsAre(LogEntry(L"@@@ CToolBarWnd::LaunchShadow  IN"),
                                           L"launch \"C:\\Addin\\ORVA_WLM.exe\" " + kTitle + L"|",
                                           LogEntry(L"@@@ CToolBarWnd::LaunchShadow  OUT")));
    ASSERT_EQ(rig.launcher.Launches().size(), 1u);
    EXPECT_EQ(rig.launcher.Launches()[0].workingFolder, L"");
}

TEST(AgentLink, LaunchShadow_Fails_LogsTheFailureAndGoesOn) {
    ControllerRig rig;
    rig.launcher.SetResult(false);
    rig.agent.LaunchShadow();
    EXPECT_THAT(rig.LogLines(),
                ElementsAre(L"@@@ CToolBarWnd::LaunchShadow  IN", L"Failed to create ORVA_WLM.exe",
                            L"@@@ CToolBarWnd::LaunchShadow  OUT"));
    EXPECT_THAT(rig.messaging.Messages(), IsEmpty());
}

TEST(AgentLink, ShutdownShadowEX_AgentThere_PostsStopAtOnce) {
    ControllerRig rig;
    rig.AddAgent();
    rig.agent.ShutdownShadowEX(20, 500);
    EXPECT_THAT(rig.Journal(), ElementsAre(AgentEntry(L"post", 1069)));
}

TEST(AgentLink, ShutdownShadowEX_AgentOnThirdLook_RetriesThenPosts) {
    ControllerRig rig;
    rig.AddAgent(2);
    rig.agent.ShutdownShadowEX(20, 500);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"sleep 500", kRetry, L"sleep 500", kSuccess,
                                           AgentEntry(L"post", 1069)));
}

TEST(AgentLink, ShutdownShadowEX_AgentNeverAppears_TriesEachRetryAndPostsNothing) {
    ControllerRig rig;
    rig.agent.ShutdownShadowEX(10, 1000);
    std::vector<std::wstring> expected;
    for (int i = 0; i < 10; ++i) {
        expected.push_back(L"sleep 1000");
        expected.push_back(kRetry);
    }
    EXPECT_EQ(rig.Journal(), expected);
    EXPECT_EQ(rig.messaging.LookupCount(), 11u);
}

TEST(AgentLink, ShutdownShadowEX_NoRetriesAndNoAgent_DoesNothing) {
    ControllerRig rig;
    rig.AddAgent(1);
    rig.agent.ShutdownShadowEX(0, 500);
    EXPECT_THAT(rig.Journal(), IsEmpty());
    EXPECT_EQ(rig.messaging.LookupCount(), 1u);
}

TEST(AgentLink, ShutdownShadowEX_NoRetriesWithAgent_Posts) {
    ControllerRig rig;
    rig.AddAgent();
    rig.agent.ShutdownShadowEX(0, 500);
    EXPECT_THAT(rig.Journal(), ElementsAre(AgentEntry(L"post", 1069)));
}

class AgentButtonCommand : public testing::TestWithParam<uint32_t> {};

TEST_P(AgentButtonCommand, AgentThere_Posted) {
    ControllerRig rig;
    rig.AddAgent();
    rig.agent.SendButtonCommand(GetParam());
    EXPECT_THAT(rig.Journal(), ElementsAre(AgentEntry(L"post", GetParam())));
}

TEST_P(AgentButtonCommand, SuiteBusy_NothingSent) {
    ControllerRig rig;
    rig.AddAgent();
    rig.AddSuite();
    rig.agent.SendButtonCommand(GetParam());
    EXPECT_THAT(rig.Journal(), IsEmpty());
}

TEST_P(AgentButtonCommand, NoAgent_NothingSentNothingLogged) {
    ControllerRig rig;
    rig.agent.SendButtonCommand(GetParam());
    EXPECT_THAT(rig.Journal(), IsEmpty());
    EXPECT_TRUE(IsButtonCommand(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Commands, AgentButtonCommand,
                         testing::Values(1038u, 1039u, 1041u, 1042u, 1043u));

struct DeliveryCase {
    uint32_t message;
    AgentDelivery delivery;
};

class AgentNotify : public testing::TestWithParam<DeliveryCase> {};

TEST_P(AgentNotify, AgentThere_PostedOrSentAsTheTableSays) {
    ControllerRig rig;
    const auto agent = rig.AddAgent();
    rig.messaging.SetSendResult(agent, GetParam().message, 7);
    const auto answer = rig.agent.Notify(GetParam().message, 0, 1);
    const bool sent = GetParam().delivery == AgentDelivery::Sent;
    EXPECT_EQ(DeliveryOf(GetParam().message), GetParam().delivery);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(AgentEntry(sent ? L"send" : L"post", GetParam().message, 0, 1)));
    EXPECT_EQ(answer, sent ? 7 : 0);
}

TEST_P(AgentNotify, NoAgent_Silent) {
    ControllerRig rig;
    rig.AddSuite();
    EXPECT_EQ(rig.agent.Notify(GetParam().message), std::nullopt);
    EXPECT_THAT(rig.Journal(), IsEmpty());
}

TEST_P(AgentNotify, SuiteBusy_PagesStillReachTheAgent) {
    ControllerRig rig;
    rig.AddSuite();
    rig.AddAgent();
    rig.agent.Notify(GetParam().message);
    EXPECT_EQ(rig.messaging.Messages().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, AgentNotify,
    testing::Values(
        DeliveryCase{16, AgentDelivery::Sent}, DeliveryCase{1030, AgentDelivery::Posted},
        DeliveryCase{1031, AgentDelivery::Sent}, DeliveryCase{1033, AgentDelivery::Posted},
        DeliveryCase{1034, AgentDelivery::Posted}, DeliveryCase{1035, AgentDelivery::Posted},
        DeliveryCase{1036, AgentDelivery::Posted}, DeliveryCase{1037, AgentDelivery::Posted},
        DeliveryCase{1044, AgentDelivery::Sent}, DeliveryCase{1045, AgentDelivery::Sent},
        DeliveryCase{1050, AgentDelivery::Sent}, DeliveryCase{1053, AgentDelivery::Posted},
        DeliveryCase{1069, AgentDelivery::Posted}, DeliveryCase{1077, AgentDelivery::Posted},
        DeliveryCase{4027, AgentDelivery::Posted}));

TEST(AgentLink, IsButtonCommand_OnlyTheToolbarCommands) {
    for (const uint32_t message : {16u, 1030u, 1033u, 1040u, 1044u, 1053u, 1069u, 4027u}) {
        EXPECT_FALSE(IsButtonCommand(message)) << message;
    }
}

}  // namespace
