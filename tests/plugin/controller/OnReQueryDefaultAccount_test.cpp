#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;

constexpr uint32_t kReQuery = 4028;
const std::wstring kIn = LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  IN");
const std::wstring kOut = LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  OUT");
const std::wstring kSuccess = LogEntry(
    L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), Sucess to post message to ORVA_WLM "
    L"about default account info.");
const std::wstring kPostFailed = LogEntry(
    L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to post message to ORVA_WLM "
    L"about default account info.");
const std::wstring kSwitchIn = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  IN");
const std::wstring kSwitchOut = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  OUT");
const std::wstring kDisabling = LogEntry(
    L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), The default account is a HTTP "
    L"account, so disable the toolbar.");

TEST(ControllerReQuery, Disabled_ReturnsAtOnce) {
    ControllerRig rig;
    rig.SetEnableTBar(L"0");
    rig.AddAgent();
    EXPECT_EQ(rig.Dispatch(kReQuery, 1, 1), 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, LogEntry(L"CToolBarWnd::OnReQueryDefaultAccount ORVA are "
                                          L"disabled, return.")));
}

struct ReQueryCase {
    uintptr_t wParam;
    intptr_t lParam;
    bool checksAccount;
    const wchar_t* folderCall;
    uint32_t agentMessage;
};

class ReQueryParameters : public testing::TestWithParam<ReQueryCase> {};

TEST_P(ReQueryParameters, SupportedAccount_FolderThenAgentNotice) {
    ControllerRig rig;
    rig.AddAgent();
    const ReQueryCase& c = GetParam();
    EXPECT_EQ(rig.Dispatch(kReQuery, c.wParam, c.lParam), 0);
    std::vector<std::wstring> expected{kIn};
    if (c.checksAccount) {
        expected.push_back(L"account check");
    }
    expected.push_back(c.folderCall);
    expected.push_back(AgentEntry(L"post", c.agentMessage));
    expected.push_back(kSuccess);
    expected.push_back(kOut);
    EXPECT_EQ(rig.Journal(), expected);
}

INSTANTIATE_TEST_SUITE_P(Senders, ReQueryParameters,
                         testing::Values(ReQueryCase{0, 0, true, L"store create-folder 0", 4027},
                                         ReQueryCase{1, 1, true, L"store create-folder 1", 1077},
                                         ReQueryCase{0, 1, false, L"store create-folder 1", 4027}));

TEST(ControllerReQuery, FolderFails_NoticeNotSent) {
    ControllerRig rig;
    rig.AddAgent();
    rig.spamFolder.SetCreateResult(0);
    rig.Dispatch(kReQuery, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, L"account check", L"store create-folder 0",
                            LogEntry(L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to Create "
                                     L"Spam Mail Folder."),
                            kOut));
}

TEST(ControllerReQuery, NoAgent_TenSilentAttemptsOneSecondApart) {
    ControllerRig rig;
    rig.Dispatch(kReQuery, 0, 0);
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<uint32_t>(10, 1000));
    EXPECT_THAT(rig.LogLines(), ElementsAre(kIn.substr(4), kOut.substr(4)));
    EXPECT_EQ(rig.messaging.LookupCount(), 10u);
    EXPECT_TRUE(rig.messaging.Messages().empty());
}

TEST(ControllerReQuery, AgentOnThirdLook_PostsAfterTwoSleeps) {
    ControllerRig rig;
    rig.AddAgent(2);
    rig.Dispatch(kReQuery, 1, 1);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, L"account check", L"store create-folder 1", L"sleep 1000",
                            L"sleep 1000", AgentEntry(L"post", 1077), kSuccess, kOut));
}

TEST(ControllerReQuery, PostFails_LogsAndRetries) {
    ControllerRig rig;
    const auto agent = rig.AddAgent();
    rig.messaging.FailPosts(agent, 1);
    rig.Dispatch(kReQuery, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, L"account check", L"store create-folder 0",
                            AgentEntry(L"post", 4027) + L" (failed)", kPostFailed, L"sleep 1000",
                            AgentEntry(L"post", 4027), kSuccess, kOut));
}

TEST(ControllerReQuery, UnsupportedAccount_AsksThenSwitchesOffAndStillMakesTheFolder) {
    ControllerRig rig;
    rig.AddAgent();
    rig.account.SetUnsupported(true);
    rig.dialogs.SetDontShowAgain(true);
    rig.Dispatch(kReQuery, 0, 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, L"account check", L"dialog unsupported", kDisabling,
                            AgentEntry(L"post", 1069), kSwitchIn, AgentEntry(L"post", 1069),
                            L"ribbon caption IDS_ENABLE_CAPTION", L"ribbon buttons 0", kSwitchOut,
                            L"store create-folder 0", AgentEntry(L"post", 4027), kSuccess, kOut));
    EXPECT_EQ(rig.profile.Value(L"UnsupportedMailServer", L"DontBother"), L"1");
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"0");
    EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
}

TEST(ControllerReQuery, UnsupportedAccountNotTicked_WritesDontBotherZero) {
    ControllerRig rig;
    rig.account.SetUnsupported(true);
    rig.Dispatch(kReQuery, 1, 1);
    EXPECT_EQ(rig.profile.Value(L"UnsupportedMailServer", L"DontBother"), L"0");
}

TEST(ControllerReQuery, UnsupportedAccountDontBother_SwitchesOffSilently) {
    ControllerRig rig;
    rig.profile.Set(L"UnsupportedMailServer", L"DontBother", L"1");
    rig.account.SetUnsupported(true);
    rig.classic.SetRebarPresent(true);
    rig.classic.OnBuildUserInterface(0, 0);
    rig.journal.Clear();
    rig.Dispatch(kReQuery, 1, 1);
    std::vector<std::wstring> expected{kIn, L"account check", kDisabling, L"classic refresh",
                                       kSwitchIn};
    for (int retry = 0; retry < 10; ++retry) {
        expected.push_back(L"sleep 1000");
        expected.push_back(
            LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle failed, retry"));
    }
    expected.insert(expected.end(), {L"ribbon caption IDS_ENABLE_CAPTION", L"ribbon buttons 0",
                                     kSwitchOut, L"store create-folder 1"});
    expected.insert(expected.end(), 10, L"sleep 1000");
    expected.push_back(kOut);
    EXPECT_EQ(rig.Journal(), expected);
}

TEST(ControllerReQuery, UnsupportedAccountChangedParameters_NotChecked) {
    ControllerRig rig;
    rig.account.SetUnsupported(true);
    rig.AddAgent();
    rig.Dispatch(kReQuery, 0, 1);
    EXPECT_TRUE(rig.Controller().IsToolbarEnabled());
}

}  // namespace
