#include "plugin/host/HostEventRelay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Plugin::CHostEventRelay;
using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;
using testing::IsEmpty;

const std::wstring kController = L"{113194CA-A0F5-4510-9814-D82C70CF9C6C}";
const std::wstring kMinusOne = std::to_wstring(static_cast<uintptr_t>(intptr_t{-1}));

std::wstring ControllerEntry(const wchar_t* delivery, const std::wstring& rest) {
    return std::wstring(delivery) + L" " + kController + L" " + rest;
}

TEST(HostEventRelay, Ready_SendsBuildUi) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnReady();
    EXPECT_THAT(rig.Journal(), ElementsAre(ControllerEntry(L"send", L"4029 0 0")));
}

TEST(HostEventRelay, Shutdown_ClosesTheAgentThenShutsTheControllerDown) {
    ControllerRig rig;
    rig.AddAgent();
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnShutdown();
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(LogEntry(L"@@@ CWLMApiInitEventSink::OnShutdown  IN"), AgentEntry(L"send", 16),
                    LogEntry(L"CWLMApiInitEventSink::OnShutdownWLMAPI Done!"),
                    ControllerEntry(L"send", L"4030 0 0"), ControllerEntry(L"post", L"16 0 0")));
}

TEST(HostEventRelay, ShutdownWithoutAgent_StillShutsTheControllerDown) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnShutdown();
    EXPECT_THAT(rig.Journal(), ElementsAre(LogEntry(L"@@@ CWLMApiInitEventSink::OnShutdown  IN"),
                                           ControllerEntry(L"send", L"4030 0 0"),
                                           ControllerEntry(L"post", L"16 0 0")));
}

TEST(HostEventRelay, FolderSelection_SplitsTheIdIntoHalves) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnFolderSelectionChanged(0x100000002ull);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ CWLMAApiEventSink::OnFolderSelectionChanged "
                                     L"folderId=[0x100000002]"),
                            ControllerEntry(L"post", L"1076 1 2")));
}

TEST(HostEventRelay, ToolbarButton_PostsGroupAndButton) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnToolbarButtonClicked(101, 108);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ CWLMAApiEventSink::OnToolbarButtonClicked "
                                     L"toolbarId=[101], buttonId=[108]"),
                            ControllerEntry(L"post", L"4031 101 108")));
}

TEST(HostEventRelay, DefaultAccountChanged_PostsReQueryOneOne) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnDefaultAccountChanged();
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(
            LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  IN"),
            ControllerEntry(L"post", L"4028 1 1"),
            LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  OUT")));
}

TEST(HostEventRelay, SubButtons_PostMinusOneAndTheirIndex) {
    ControllerRig rig;
    CHostEventRelay relay(rig.messaging, rig.log);
    for (int32_t entry = 0; entry < 5; ++entry) {
        relay.OnSubButtonClicked(entry);
    }
    EXPECT_THAT(rig.Journal(), ElementsAre(ControllerEntry(L"post", L"4031 " + kMinusOne + L" 0"),
                                           ControllerEntry(L"post", L"4031 " + kMinusOne + L" 1"),
                                           ControllerEntry(L"post", L"4031 " + kMinusOne + L" 2"),
                                           ControllerEntry(L"post", L"4031 " + kMinusOne + L" 3"),
                                           ControllerEntry(L"post", L"4031 " + kMinusOne + L" 4")));
}

TEST(HostEventRelay, NoController_NothingDelivered) {
    ControllerRig rig;
    rig.messaging.RemoveWindow(rig.controllerWindow);
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnReady();
    relay.OnToolbarButtonClicked(1, 2);
    relay.OnSubButtonClicked(0);
    relay.OnDefaultAccountChanged();
    EXPECT_THAT(rig.messaging.Messages(), IsEmpty());
}

// The controller window answers its messages at once, as the window procedure would.
void WireController(ControllerRig& rig) {
    rig.messaging.SetHandler(rig.controllerWindow, [&rig](const auto& m) {
        return rig.Controller().Dispatch({m.message, m.wParam, m.lParam, 0, {}}).value_or(0);
    });
}

TEST(HostEventRelay, ReportSpamClick_ReachesTheAgentThroughTheController) {
    ControllerRig rig;
    WireController(rig);
    CHostEventRelay relay(rig.messaging, rig.log);
    relay.OnReady();
    rig.AddAgent();
    rig.journal.Clear();
    relay.OnToolbarButtonClicked(101, 108);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ CWLMAApiEventSink::OnToolbarButtonClicked "
                                     L"toolbarId=[101], buttonId=[108]"),
                            ControllerEntry(L"post", L"4031 101 108"),
                            LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  IN"),
                            AgentEntry(L"post", 1041),
                            LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  OUT")));
}

TEST(HostEventRelay, ShutdownSequence_ClosesAgentPurgesThenClosesController) {
    ControllerRig rig;
    WireController(rig);
    CHostEventRelay relay(rig.messaging, rig.log);
    rig.Dispatch(1);
    relay.OnReady();
    rig.AddAgent();
    rig.journal.Clear();
    relay.OnShutdown();
    const auto journal = rig.Journal();
    const auto position = [&](const std::wstring& entry) {
        return std::find(journal.begin(), journal.end(), entry) - journal.begin();
    };
    EXPECT_LT(position(AgentEntry(L"send", 16)), position(L"host UnadviseApiSink"));
    EXPECT_LT(position(L"store clean-deleted"), position(L"event set"));
    EXPECT_LT(position(L"event set"), position(L"event wait 10000"));
    EXPECT_LT(position(LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown success")),
              position(L"host UninitializeCom"));
    EXPECT_LT(position(L"host UninitializeCom"), static_cast<long>(journal.size()));
}

}  // namespace
