#include "plugin/host/HostEventRelay.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

using Plugin::CHostEventRelay;

const std::wstring kController = L"{113194CA-A0F5-4510-9814-D82C70CF9C6C}";
const std::wstring kMinusOne = std::to_wstring(static_cast<uintptr_t>(intptr_t{-1}));
const std::wstring kShutdownIn = LogEntry(L"@@@ CWLMApiInitEventSink::OnShutdown  IN");
const std::wstring kClicked =
    LogEntry(L"@@@ CWLMAApiEventSink::OnToolbarButtonClicked toolbarId=[101], buttonId=[108]");

std::wstring ControllerEntry(const wchar_t* delivery, const std::wstring& rest) {
    return std::wstring(delivery) + L" " + kController + L" " + rest;
}

// Each host event becomes one message to the controller, found by its class; the ready and
// shut-down events are sent, so that they are done when the host's call returns.
TEST(HostEventRelay, Events_BecomeControllerMessages) {
    const struct {
        const char* name;
        std::function<void(ControllerRig&)> arrange;
        std::function<void(CHostEventRelay&)> event;
        std::vector<std::wstring> journal;
    } cases[] = {
        {"ready",
         nullptr,
         [](CHostEventRelay& relay) { relay.OnReady(); },
         {ControllerEntry(L"send", L"4029 0 0")}},
        {"shut-down: the agent is closed first",
         [](ControllerRig& rig) { rig.AddAgent(); },
         [](CHostEventRelay& relay) { relay.OnShutdown(); },
         {kShutdownIn, AgentEntry(L"send", 16),
          LogEntry(L"CWLMApiInitEventSink::OnShutdownWLMAPI Done!"),
          ControllerEntry(L"send", L"4030 0 0"), ControllerEntry(L"post", L"16 0 0")}},
        {"shut-down without the agent",
         nullptr,
         [](CHostEventRelay& relay) { relay.OnShutdown(); },
         {kShutdownIn, ControllerEntry(L"send", L"4030 0 0"), ControllerEntry(L"post", L"16 0 0")}},
        {"folder selected: the id in two halves",
         nullptr,
         [](CHostEventRelay& relay) { relay.OnFolderSelectionChanged(0x100000002ull); },
         {LogEntry(L"@@@ CWLMAApiEventSink::OnFolderSelectionChanged folderId=[0x100000002]"),
          ControllerEntry(L"post", L"1076 1 2")}},
        {"toolbar button",
         nullptr,
         [](CHostEventRelay& relay) { relay.OnToolbarButtonClicked(101, 108); },
         {kClicked, ControllerEntry(L"post", L"4031 101 108")}},
        {"default account changed",
         nullptr,
         [](CHostEventRelay& relay) { relay.OnDefaultAccountChanged(); },
         {LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  IN"),
          ControllerEntry(L"post", L"4028 1 1"),
          LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  OUT")}},
        {"drop-down entries: -1 and their index",
         nullptr,
         [](CHostEventRelay& relay) {
             for (int32_t entry = 0; entry < 5; ++entry) {
                 relay.OnSubButtonClicked(entry);
             }
         },
         {ControllerEntry(L"post", L"4031 " + kMinusOne + L" 0"),
          ControllerEntry(L"post", L"4031 " + kMinusOne + L" 1"),
          ControllerEntry(L"post", L"4031 " + kMinusOne + L" 2"),
          ControllerEntry(L"post", L"4031 " + kMinusOne + L" 3"),
          ControllerEntry(L"post", L"4031 " + kMinusOne + L" 4")}},
        {"no controller: nothing delivered",
         [](ControllerRig& rig) { rig.messaging.RemoveWindow(rig.controllerWindow); },
         [](CHostEventRelay& relay) {
             relay.OnReady();
             relay.OnToolbarButtonClicked(1, 2);
             relay.OnSubButtonClicked(0);
             relay.OnDefaultAccountChanged();
         },
         {LogEntry(L"@@@ CWLMAApiEventSink::OnToolbarButtonClicked toolbarId=[1], buttonId=[2]"),
          LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  IN"),
          LogEntry(L"@@@ CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged  OUT")}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        ControllerRig rig;
        if (each.arrange) {
            each.arrange(rig);
        }
        rig.journal.Clear();
        CHostEventRelay relay(rig.messaging, rig.log);
        each.event(relay);
        EXPECT_EQ(rig.Journal(), each.journal);
    }
}

}  // namespace
}  // namespace Orva::Testing
