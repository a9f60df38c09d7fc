#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

constexpr uint32_t kClick = 4031;
constexpr uintptr_t kEntries = static_cast<uintptr_t>(intptr_t{-1});
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
         {kClickIn, AgentEntry(L"post", 1041), kClickOut, Answer(0)}},
        {"not spam",
         BuiltWithAgent,
         {{kClick, 101, 109}},
         {kClickIn, AgentEntry(L"post", 1042), kClickOut, Answer(0)}},
        {"reporting while the suite is busy",
         BuiltWithAgentWhileSuiteBusy,
         {{kClick, 101, 108}, {kClick, 101, 109}},
         {kClickIn, kClickOut, Answer(0), kClickIn, kClickOut, Answer(0)}},
        {"unknown button of the group",
         Built,
         {{kClick, 101, 555}},
         {kClickIn,
          LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Button ID [555] is not handled"),
          kClickOut, Answer(0)}},
        {"entry five",
         Built,
         {{kClick, kEntries, 5}},
         {kClickIn,
          LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Event Button ID [5] is not handled"),
          kClickOut, Answer(0)}},
        // Without a ribbon every id is 0: a click of (0, 0) is none of the host's buttons.
        {"no ribbon",
         [](ControllerRig& rig) { rig.AddAgent(); },
         {{kClick, 0, 0}},
         {kClickIn, kUnknown, kClickOut, Answer(0)}},
        {"other group", Built, {{kClick, 7, 108}}, {kClickIn, kUnknown, kClickOut, Answer(0)}},
        {"settings",
         Built,
         {{kClick, kEntries, 0}},
         {kClickIn, L"dialog filtering", kClickOut, Answer(0)}},
        {"statistics",
         Built,
         {{kClick, kEntries, 1}},
         {kClickIn, L"dialog statistics", kClickOut, Answer(0)}},
        {"help", Built, {{kClick, kEntries, 3}}, {kClickIn, L"dialog help", kClickOut, Answer(0)}},
        {"about",
         Built,
         {{kClick, kEntries, 4}},
         {kClickIn, L"dialog about", kClickOut, Answer(0)}},
        {"entry sent as 32-bit -1",
         Built,
         {{kClick, 0xFFFFFFFFu, 1}},
         {kClickIn, L"dialog statistics", kClickOut, Answer(0)}},
        {"logo with Shift while the suite is busy",
         [](ControllerRig& rig) {
             BuiltWithAgentWhileSuiteBusy(rig);
             rig.keyboard.SetShiftDown(true);
         },
         {{kClick, 101, 102}},
         {kClickIn, AgentEntry(L"post", 1053), kClickOut, Answer(0)}},
        {"logo with its web site set",
         [](ControllerRig& rig) {
             Built(rig);
             rig.profile.Set(L"General", L"WebSiteForLogo", L"http://example.com/orva");
         },
         {{kClick, 101, 102}},
         {kClickIn, L"open http://example.com/orva", kClickOut, Answer(0)}},
        {"logo without the setting",
         [](ControllerRig& rig) {
             Built(rig);
             rig.strings.texts[L"IDS_QUILLON_HALVION_HOMEWEB"] = L"http://home.example/";
         },
         {{kClick, 101, 102}},
         {kClickIn, L"strings load IDS_QUILLON_HALVION_HOMEWEB", L"open http://home.example/",
          kClickOut, Answer(0)}},
        {"logo while the suite is busy",
         [](ControllerRig& rig) {
             Built(rig);
             rig.AddSuite();
         },
         {{kClick, 101, 102}},
         {kClickIn, kClickOut, Answer(0)}},
    });
}

}  // namespace
}  // namespace Orva::Testing
