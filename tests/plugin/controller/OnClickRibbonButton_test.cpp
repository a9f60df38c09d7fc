#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

constexpr uint32_t kClick = 4031;
constexpr uintptr_t kEntries = static_cast<uintptr_t>(intptr_t{-1});
const std::wstring& kIn = kClickIn;
const std::wstring& kOut = kClickOut;
const std::wstring kUnknown = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Unknow parameter");

// The ribbon is built: group 101, logo 102, report spam 108, not spam 109.
void BuiltWithAgentWhileSuiteBusy(ControllerRig& rig) {
    BuiltWithAgent(rig);
    rig.AddSuite();
}

// Buttons of the ribbon group and entries of the drop-down (group id -1, sent as 32 or 64
// bits); on/off is the switch's own table. While the companion suite is busy only the logo
// with Shift held still reaches the agent.
TEST(ControllerClick, ButtonsAndEntries_DoTheirCommand) {
    RunControllerCases({
        {"report spam",
         BuiltWithAgent,
         {{kClick, 101, 108}},
         {kIn, AgentEntry(L"post", 1041), kOut, Answer(0)}},
        {"not spam",
         BuiltWithAgent,
         {{kClick, 101, 109}},
         {kIn, AgentEntry(L"post", 1042), kOut, Answer(0)}},
        {"reporting while the suite is busy",
         BuiltWithAgentWhileSuiteBusy,
         {{kClick, 101, 108}, {kClick, 101, 109}},
         {kIn, kOut, Answer(0), kIn, kOut, Answer(0)}},
        {"unknown button of the group",
         Built,
         {{kClick, 101, 555}},
         {kIn, LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Button ID [555] is not handled"),
          kOut, Answer(0)}},
        {"entry five",
         Built,
         {{kClick, kEntries, 5}},
         {kIn,
          LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Event Button ID [5] is not handled"),
          kOut, Answer(0)}},
        // Without a ribbon every id is 0: a click of (0, 0) is none of the host's buttons.
        {"no ribbon",
         [](ControllerRig& rig) { rig.AddAgent(); },
         {{kClick, 0, 0}},
         {kIn, kUnknown, kOut, Answer(0)}},
        {"other group", Built, {{kClick, 7, 108}}, {kIn, kUnknown, kOut, Answer(0)}},
        {"settings", Built, {{kClick, kEntries, 0}}, {kIn, L"dialog filtering", kOut, Answer(0)}},
        {"statistics",
         Built,
         {{kClick, kEntries, 1}},
         {kIn, L"dialog statistics", kOut, Answer(0)}},
        {"help", Built, {{kClick, kEntries, 3}}, {kIn, L"dialog help", kOut, Answer(0)}},
        {"about", Built, {{kClick, kEntries, 4}}, {kIn, L"dialog about", kOut, Answer(0)}},
        {"entry sent as 32-bit -1",
         Built,
         {{kClick, 0xFFFFFFFFu, 1}},
         {kIn, L"dialog statistics", kOut, Answer(0)}},
        {"logo with Shift while the suite is busy",
         [](ControllerRig& rig) {
             BuiltWithAgentWhileSuiteBusy(rig);
             rig.keyboard.SetShiftDown(true);
         },
         {{kClick, 101, 102}},
         {kIn, AgentEntry(L"post", 1053), kOut, Answer(0)}},
        {"logo with its web site set",
         [](ControllerRig& rig) {
             Built(rig);
             rig.profile.Set(L"General", L"WebSiteForLogo", L"http://example.com/orva");
         },
         {{kClick, 101, 102}},
         {kIn, L"open http://example.com/orva", kOut, Answer(0)}},
        {"logo without the setting",
         [](ControllerRig& rig) {
             Built(rig);
             rig.strings.texts[L"IDS_QUILLON_HALVION_HOMEWEB"] = L"http://home.example/";
         },
         {{kClick, 101, 102}},
         {kIn, L"strings load IDS_QUILLON_HALVION_HOMEWEB", L"open http://home.example/", kOut,
          Answer(0)}},
        {"logo while the suite is busy",
         [](ControllerRig& rig) {
             Built(rig);
             rig.AddSuite();
         },
         {{kClick, 101, 102}},
         {kIn, kOut, Answer(0)}},
    });
}

}  // namespace
}  // namespace Orva::Testing
