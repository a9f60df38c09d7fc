#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

const Sent kBuildUi{4029};
const Sent kTimer{275, 1};
const std::wstring kIn = LogEntry(L"@@@ CToolBarWnd::OnBuildUI  IN");
const std::wstring kOut = LogEntry(L"@@@ CToolBarWnd::OnBuildUI  OUT");
const std::wstring kPostReQuery = L"post {113194CA-A0F5-4510-9814-D82C70CF9C6C} 4028 0 0";
const std::wstring kGotMainWindow = LogEntry(L"CToolBarWnd::OnTimer() Got WLM handle");
const std::wstring kMainWindowClass = L"Outlook Express Browser Class";

const std::vector<std::wstring> kApiObjectMade = {
    kIn,
    L"host InitializeCom",
    LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
    L"host CreateApiObject",
    L"host AdviseApiSink",
    L"host StartGdiplus"};
const std::vector<std::wstring> kRibbonBuilt =
    Journal({kApiObjectMade,
             {LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  IN"), L"ribbon build 1",
              L"store create-folder 0", LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  OUT"),
              L"debugger tesr2", L"timer set 1 1000", kPostReQuery, kOut, Answer(0)}});
// Switched off before the start: the ribbon shows "enable" and greys its buttons.
const std::vector<std::wstring> kRibbonBuiltOff =
    Journal({kApiObjectMade,
             {LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  IN"), L"ribbon build 0", kSwitchIn,
              AgentEntry(L"post", 1069), L"ribbon caption IDS_ENABLE_CAPTION", L"ribbon buttons 0",
              kSwitchOut, LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  OUT"),
              L"debugger tesr2", L"timer set 1 1000", kPostReQuery, kOut, Answer(0)}});
const std::vector<std::wstring> kUnsupported =
    Journal({kApiObjectMade,
             {LogEntry(L"!!! Not support WLM version"), L"sleep 500",
              LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle success"),
              AgentEntry(L"post", 1069), kOut, Answer(0)}});

std::function<void(ControllerRig&)> Version(int version) {
    return [version](ControllerRig& rig) {
        rig.version.Set(version);
        rig.AddAgent(1);
    };
}
std::function<void(ControllerRig&)> EnableTBar(std::wstring stored) {
    return [stored](ControllerRig& rig) {
        rig.SetEnableTBar(stored);
        rig.AddAgent();
    };
}
void ExpectDisabled(ControllerRig& rig) {
    EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
}

// 15 and 16 build the ribbon and look for the main window every second; 14 builds the classic
// band; any other version stops the agent and builds nothing. "EnableTBar" switches off only when
// it reads "0" once trimmed.
TEST(ControllerBuildUI, Version_DecidesWhatIsBuilt) {
    RunControllerCases({
        {"version 15", Version(15), {kBuildUi}, kRibbonBuilt},
        {"version 16", Version(16), {kBuildUi}, kRibbonBuilt},
        {"version 14",
         [](ControllerRig& rig) {
             rig.version.Set(14);
             rig.host.SetApiObject(true);
         },
         {kBuildUi},
         {kIn, L"host InitializeCom", L"host StartGdiplus", L"classic build 0 0", kPostReQuery,
          kOut, Answer(0)}},
        {"version 13", Version(13), {kBuildUi}, kUnsupported, ExpectDisabled},
        {"version 17", Version(17), {kBuildUi}, kUnsupported, ExpectDisabled},
        {"version 0", Version(0), {kBuildUi}, kUnsupported, ExpectDisabled},
        {"unsupported without an agent: twenty tries half a second apart",
         [](ControllerRig& rig) { rig.version.Set(17); },
         {kBuildUi},
         Journal({kApiObjectMade,
                  {LogEntry(L"!!! Not support WLM version")},
                  Times(20, {L"sleep 500", LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get "
                                                    L"Shadow handle failed, retry")}),
                  {kOut, Answer(0)}})},
        {"version unreadable",
         [](ControllerRig& rig) { rig.version.Set(std::nullopt); },
         {kBuildUi},
         {kIn, LogEntry(L"!!! Fatal error, get WLM version fail."), Answer(1)}},
        {"no API object",
         [](ControllerRig& rig) { rig.host.FailApiCreation(true); },
         {kBuildUi},
         {kIn, L"host InitializeCom", LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
          L"host CreateApiObject",
          LogEntry(L"@@@ Fatal error, NktWLMailApi::WLMailApi create fail"), Answer(1)}},
        {"EnableTBar 0", EnableTBar(L"0"), {kBuildUi}, kRibbonBuiltOff, ExpectDisabled},
        {"EnableTBar \" 0 \"", EnableTBar(L" 0 "), {kBuildUi}, kRibbonBuiltOff, ExpectDisabled},
        {"EnableTBar tab 0", EnableTBar(L"\t0"), {kBuildUi}, kRibbonBuiltOff, ExpectDisabled},
        {"EnableTBar 1", EnableTBar(L"1"), {kBuildUi}, kRibbonBuilt},
        {"EnableTBar empty", EnableTBar(L""), {kBuildUi}, kRibbonBuilt},
        {"EnableTBar 00", EnableTBar(L"00"), {kBuildUi}, kRibbonBuilt},
        {"EnableTBar no", EnableTBar(L"no"), {kBuildUi}, kRibbonBuilt},
        {"EnableTBar \"0 1\"", EnableTBar(L"0 1"), {kBuildUi}, kRibbonBuilt},
        {"EnableTBar missing", nullptr, {kBuildUi}, kRibbonBuilt},
    });
}

void BuiltWithMainWindow(ControllerRig& rig) {
    Built(rig);
    rig.messaging.AddWindow(L"Windows Live Mail", kMainWindowClass);
}
void Version14WithMainWindow(ControllerRig& rig) {
    rig.version.Set(14);
    BuiltWithMainWindow(rig);
}

// The timer looks for the main window until it is found (or the host named it), then stops;
// with version 14 it first builds the classic band from the timer until the band is there.
TEST(ControllerTimer, Ticks_FindTheMainWindowThenStop) {
    RunControllerCases({
        {"the main window appears",
         BuiltWithMainWindow,
         {kTimer},
         {kGotMainWindow, L"timer kill 1", Answer(0)},
         [](ControllerRig& rig) {
             EXPECT_EQ(rig.Controller().MailClientWindow(),
                       rig.messaging.FindByClass(kMainWindowClass));
             EXPECT_TRUE(rig.Controller().IsMainWindowAttached());
         }},
        {"the main window is missing",
         [](ControllerRig& rig) {
             Built(rig);
             rig.process.SetLastError(1400);
         },
         {kTimer},
         {LogEntry(L"CToolBarWnd::OnTimer() Get WLM handle Error:1400"), Answer(0)}},
        {"the host named the main window: no search",
         [](ControllerRig& rig) {
             Built(rig);
             rig.Controller().SetMailClientWindow(0x4242);
         },
         {kTimer},
         {L"timer kill 1", Answer(0)}},
        {"version 14 without the rebar",
         Version14WithMainWindow,
         {kTimer},
         {kGotMainWindow, L"classic build 11111 22222", Answer(0)}},
        {"version 14 once the band is there",
         [](ControllerRig& rig) {
             Version14WithMainWindow(rig);
             rig.Dispatch(kTimer.message, kTimer.wParam);
             rig.classic.SetRebarPresent(true);
         },
         {kTimer, kTimer},
         {L"classic build 11111 22222", Answer(0), L"timer kill 1", Answer(0)}},
        {"version 14 built at once",
         [](ControllerRig& rig) {
             rig.classic.SetRebarPresent(true);
             Version14WithMainWindow(rig);
         },
         {kTimer},
         {kGotMainWindow, L"timer kill 1", Answer(0)}},
    });
}

}  // namespace
}  // namespace Orva::Testing
