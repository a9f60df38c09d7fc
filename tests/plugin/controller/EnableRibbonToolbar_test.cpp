#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

const Sent kOnOff{4031, static_cast<uintptr_t>(intptr_t{-1}), 2};

void SwitchedOff(ControllerRig& rig) {
    BuiltWithAgent(rig);
    rig.Dispatch(kOnOff.message, kOnOff.wParam, kOnOff.lParam);
}

void ExpectFlag(ControllerRig& rig, bool enabled, std::optional<std::wstring> stored) {
    EXPECT_EQ(rig.Controller().IsToolbarEnabled(), enabled);
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), stored);
}

// Off stops the agent and greys the buttons; on re-queries the account (which starts the agent
// again when it is gone) and restores them; the flag is saved each time. While the companion
// suite is busy only the flag in memory changes.
TEST(ControllerSwitch, OnOff_SwitchesProtectionAndSavesTheFlag) {
    RunControllerCases({
        {"off",
         BuiltWithAgent,
         {kOnOff},
         {kClickIn, kSwitchIn, AgentEntry(L"post", 1069), L"ribbon caption IDS_ENABLE_CAPTION",
          L"ribbon buttons 0", kSwitchOut, kClickOut, Answer(0)},
         [](ControllerRig& rig) { ExpectFlag(rig, false, L"0"); }},
        {"off without the agent: ten tries a second apart",
         Built,
         {kOnOff},
         Journal({{kClickIn, kSwitchIn},
                  Times(10, {L"sleep 1000", kShadowRetry}),
                  {L"ribbon caption IDS_ENABLE_CAPTION", L"ribbon buttons 0", kSwitchOut, kClickOut,
                   Answer(0)}})},
        {"on with the agent running",
         SwitchedOff,
         {kOnOff},
         {kClickIn, kSwitchIn, L"account check", kReQueryIn, L"store create-folder 1",
          AgentEntry(L"post", 4027), kNoticeSent, kReQueryOut,
          L"ribbon caption IDS_DISABLE_CAPTION", L"ribbon buttons 1", kSwitchOut, kClickOut,
          Answer(0)},
         [](ControllerRig& rig) { ExpectFlag(rig, true, L"1"); }},
        {"on after the agent stopped",
         [](ControllerRig& rig) {
             SwitchedOff(rig);
             rig.messaging.RemoveWindow(
                 rig.messaging.FindByTitle(std::wstring(Orva::Plugin::kAgentWindowTitle)));
             rig.launcher.onLaunch = [&rig] { rig.AddAgent(); };
         },
         {kOnOff},
         {kClickIn, kSwitchIn, L"account check", LogEntry(L"@@@ CToolBarWnd::LaunchShadow  IN"),
          L"launch \"C:\\Addin\\ORVA_WLM.exe\" {56639265-C81B-440d-B5CD-3A7ED4F42777}|",
          LogEntry(L"@@@ CToolBarWnd::LaunchShadow  OUT"), kReQueryIn, L"store create-folder 1",
          AgentEntry(L"post", 4027), kNoticeSent, kReQueryOut,
          L"ribbon caption IDS_DISABLE_CAPTION", L"ribbon buttons 1", kSwitchOut, kClickOut,
          Answer(0)}},
        {"while the suite is busy",
         [](ControllerRig& rig) {
             BuiltWithAgent(rig);
             rig.AddSuite();
         },
         {kOnOff},
         {kClickIn, kSwitchIn, kClickOut, Answer(0)},
         [](ControllerRig& rig) { ExpectFlag(rig, false, std::nullopt); }},
        {"on with an unsupported account: the notice only",
         [](ControllerRig& rig) {
             SwitchedOff(rig);
             rig.account.SetUnsupported(true);
         },
         {kOnOff},
         {kClickIn, kSwitchIn, L"account check", L"dialog unsupported", kClickOut, Answer(0)},
         [](ControllerRig& rig) {
             EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"0");
             EXPECT_EQ(rig.ribbon.OnOffCaption(), L"IDS_ENABLE_CAPTION");
         }},
    });
}

}  // namespace
}  // namespace Orva::Testing
