#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

constexpr uint32_t kReQuery = 4028;
const std::wstring& kIn = kReQueryIn;
const std::wstring& kOut = kReQueryOut;
const std::wstring& kSuccess = kNoticeSent;
const std::wstring kPostFailed = LogEntry(
    L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to post message to ORVA_WLM "
    L"about default account info.");
const std::wstring kDisabling = LogEntry(
    L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), The default account is a HTTP "
    L"account, so disable the toolbar.");

// Without an agent, switching off tries ten times to stop it and the notice ten times to reach it.
std::vector<std::wstring> SwitchedOffWithoutAgent(const std::vector<std::wstring>& first) {
    return Journal({first,
                    {kSwitchIn},
                    Times(10, {L"sleep 1000", kShadowRetry}),
                    {L"ribbon caption IDS_ENABLE_CAPTION", L"ribbon buttons 0", kSwitchOut,
                     L"store create-folder 1"},
                    Times(10, {L"sleep 1000"}),
                    {kOut, Answer(0)}});
}

void WithAgent(ControllerRig& rig) {
    rig.AddAgent();
}
void Unsupported(ControllerRig& rig) {
    rig.account.SetUnsupported(true);
}

// (0, 0) comes from the build and (1, 1) from the host's account event: both check the account
// and make the spam folder, then tell the agent 4027 or 1077; (0, 1) skips the check. An
// unsupported account switches protection off (asking first unless told not to bother) and the
// folder is still made.
TEST(ControllerReQuery, Parameters_CheckTheAccountMakeTheFolderAndTellTheAgent) {
    RunControllerCases({
        {"switched off",
         [](ControllerRig& rig) {
             rig.SetEnableTBar(L"0");
             rig.AddAgent();
         },
         {{kReQuery, 1, 1}},
         {kIn, LogEntry(L"CToolBarWnd::OnReQueryDefaultAccount ORVA are disabled, return."),
          Answer(0)}},
        {"from the build",
         WithAgent,
         {{kReQuery, 0, 0}},
         {kIn, L"account check", L"store create-folder 0", AgentEntry(L"post", 4027), kSuccess,
          kOut, Answer(0)}},
        {"from the account event",
         WithAgent,
         {{kReQuery, 1, 1}},
         {kIn, L"account check", L"store create-folder 1", AgentEntry(L"post", 1077), kSuccess,
          kOut, Answer(0)}},
        {"without the check",
         WithAgent,
         {{kReQuery, 0, 1}},
         {kIn, L"store create-folder 1", AgentEntry(L"post", 4027), kSuccess, kOut, Answer(0)}},
        {"the folder fails: no notice",
         [](ControllerRig& rig) {
             rig.AddAgent();
             rig.spamFolder.SetCreateResult(0);
         },
         {{kReQuery, 0, 0}},
         {kIn, L"account check", L"store create-folder 0",
          LogEntry(L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to Create Spam Mail Folder."),
          kOut, Answer(0)}},
        {"no agent: ten silent tries a second apart",
         nullptr,
         {{kReQuery, 0, 0}},
         Journal({{kIn, L"account check", L"store create-folder 0"},
                  Times(10, {L"sleep 1000"}),
                  {kOut, Answer(0)}}),
         [](ControllerRig& rig) { EXPECT_EQ(rig.messaging.LookupCount(), 10u); }},
        {"the agent on the third look",
         [](ControllerRig& rig) { rig.AddAgent(2); },
         {{kReQuery, 1, 1}},
         {kIn, L"account check", L"store create-folder 1", L"sleep 1000", L"sleep 1000",
          AgentEntry(L"post", 1077), kSuccess, kOut, Answer(0)}},
        {"a failed post is tried again",
         [](ControllerRig& rig) { rig.messaging.FailPosts(rig.AddAgent(), 1); },
         {{kReQuery, 0, 0}},
         {kIn, L"account check", L"store create-folder 0", AgentEntry(L"post", 4027) + L" (failed)",
          kPostFailed, L"sleep 1000", AgentEntry(L"post", 4027), kSuccess, kOut, Answer(0)}},
        {"unsupported account, ticked not to ask again",
         [](ControllerRig& rig) {
             rig.AddAgent();
             Unsupported(rig);
             rig.dialogs.SetDontShowAgain(true);
         },
         {{kReQuery, 0, 0}},
         {kIn, L"account check", L"dialog unsupported", kDisabling, AgentEntry(L"post", 1069),
          kSwitchIn, AgentEntry(L"post", 1069), L"ribbon caption IDS_ENABLE_CAPTION",
          L"ribbon buttons 0", kSwitchOut, L"store create-folder 0", AgentEntry(L"post", 4027),
          kSuccess, kOut, Answer(0)},
         [](ControllerRig& rig) {
             EXPECT_EQ(rig.profile.Value(L"UnsupportedMailServer", L"DontBother"), L"1");
             EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"0");
             EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
         }},
        {"unsupported account, not ticked",
         Unsupported,
         {{kReQuery, 1, 1}},
         SwitchedOffWithoutAgent({kIn, L"account check", L"dialog unsupported", kDisabling}),
         [](ControllerRig& rig) {
             EXPECT_EQ(rig.profile.Value(L"UnsupportedMailServer", L"DontBother"), L"0");
         }},
        {"unsupported account, told not to bother: switched off silently",
         [](ControllerRig& rig) {
             rig.profile.Set(L"UnsupportedMailServer", L"DontBother", L"1");
             Unsupported(rig);
             rig.classic.SetRebarPresent(true);
             rig.classic.OnBuildUserInterface(0, 0);
         },
         {{kReQuery, 1, 1}},
         SwitchedOffWithoutAgent({kIn, L"account check", kDisabling, L"classic refresh"})},
        {"unsupported account, without the check",
         [](ControllerRig& rig) {
             rig.AddAgent();
             Unsupported(rig);
         },
         {{kReQuery, 0, 1}},
         {kIn, L"store create-folder 1", AgentEntry(L"post", 4027), kSuccess, kOut, Answer(0)},
         [](ControllerRig& rig) { EXPECT_TRUE(rig.Controller().IsToolbarEnabled()); }},
    });
}

}  // namespace
}  // namespace Orva::Testing
