#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace Orva::Testing {
namespace {

using ZelCommon::Fakes::FakeHostObjects;

const Sent kCreate{1};
const Sent kShutdown{4030};
const Sent kClose{16};
const Sent kTick{1070};
const std::wstring kShutdownIn = LogEntry(L"@@@ CToolBarWnd::OnWLMShutdown  IN");
const std::wstring kShutdownOut = LogEntry(L"@@@ CToolBarWnd::OnWLMShutdown  OUT");
const std::wstring kCloseIn = LogEntry(L"@@@ CToolBarWnd::OnClose  IN");
const std::wstring kSawShutdown = LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown success");
const std::vector<std::wstring> kReleased = {L"host UnadviseInitSink", L"host ReleaseInitObject",
                                             L"store release", L"host UninitializeCom",
                                             L"strings release"};

std::function<void(ControllerRig&)> UnadviseThrows(FakeHostObjects::Throw kind,
                                                   const char* text = "") {
    return [kind, text](ControllerRig& rig) { rig.host.ThrowOnUnadvise(kind, text); };
}

// Created: top-most, with the init object advised. The mail client's shut-down (4030)
// unsubscribes the API sink, purges and signals; the close (WM_CLOSE) waits up to ten seconds
// for that signal and releases the host whatever the host's objects throw.
TEST(ControllerLifecycle, CreateShutdownAndClose) {
    RunControllerCases({
        {"create",
         nullptr,
         {kCreate},
         {L"window topmost", L"host CreateInitObject",
          LogEntry(L"@@@ NktWLMailApi::WLMailApiInit! created"), L"host AdviseInitSink",
          Answer(0)}},
        {"create without the init object",
         [](ControllerRig& rig) { rig.host.FailInitCreation(true); },
         {kCreate},
         {L"window topmost", L"host CreateInitObject", Answer(0)}},
        {"shut-down",
         Built,
         {kShutdown},
         {kShutdownIn, L"host UnadviseApiSink", L"store clean-deleted", L"host ShutdownGdiplus",
          L"event set", kShutdownOut, Answer(0)}},
        {"shut-down, the unadvise raises a host error",
         UnadviseThrows(FakeHostObjects::Throw::HostError, "Connection point gone"),
         {kShutdown},
         {kShutdownIn, L"host UnadviseApiSink",
          LogEntry(
              L"!!! CWLMShadow::OnClose() WLMApi Event Sink excpetion:[Connection point gone]"),
          L"store clean-deleted", L"host ShutdownGdiplus", L"event set", kShutdownOut, Answer(0)}},
        {"shut-down, the unadvise raises something else",
         UnadviseThrows(FakeHostObjects::Throw::Other),
         {kShutdown},
         {kShutdownIn, L"host UnadviseApiSink", LogEntry(L"xxx WLMApi Event Sink Fail!"),
          L"store clean-deleted", L"host ShutdownGdiplus", L"event set", kShutdownOut, Answer(0)}},
        {"close after the shut-down",
         [](ControllerRig& rig) {
             rig.Dispatch(kCreate.message);
             rig.Dispatch(kShutdown.message);
         },
         {kClose},
         Journal(
             {{kCloseIn, L"event wait 10000", kSawShutdown}, kReleased, {Answer(std::nullopt)}})},
        {"close without the shut-down: ten seconds, then closed anyway",
         nullptr,
         {kClose},
         Journal({{kCloseIn, L"event wait 10000",
                   LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown failed")},
                  kReleased,
                  {Answer(std::nullopt)}})},
        {"close, the unadvise raises",
         [](ControllerRig& rig) {
             rig.shutdownDone.SignalDuringWaits(true);
             rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::HostError, "gone");
         },
         {kClose},
         {kCloseIn, L"event wait 10000", kSawShutdown, L"host UnadviseInitSink",
          LogEntry(L"!!! CWLMShadow::OnClose() WLMApi Event Sink excpetion:[gone]"),
          L"host ReleaseInitObject", L"store release", L"host UninitializeCom", L"strings release",
          Answer(std::nullopt)}},
    });
}

// Unloaded before the mail client shut it down: both sinks and the store's objects go, nothing
// waits or shuts COM or GDI+ down, whatever the unadvise throws.
TEST(ControllerLifecycle, UnloadStillAdvised_UnadvisesBothSinksWithoutWaiting) {
    const std::wstring kThrown =
        LogEntry(L"!!! CWLMShadow::OnClose() WLMApi Event Sink excpetion:[gone]");
    for (const bool unadviseFails : {false, true}) {
        SCOPED_TRACE(unadviseFails);
        ControllerRig rig;
        rig.Dispatch(kCreate.message);
        Built(rig);
        if (unadviseFails) {
            rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::HostError, "gone");
        }
        rig.journal.Clear();

        rig.Controller().ReleaseHostAtUnload();

        const std::vector<std::wstring> expected =
            unadviseFails
                ? std::vector<std::wstring>{L"host UnadviseApiSink",   kThrown,
                                            L"host UnadviseInitSink",  kThrown,
                                            L"host ReleaseInitObject", L"store release"}
                : std::vector<std::wstring>{L"host UnadviseApiSink", L"host UnadviseInitSink",
                                            L"host ReleaseInitObject", L"store release"};
        EXPECT_EQ(rig.Journal(), expected);
    }
}

// The classic band is created on the 24th tick, once, and again after a tear-down. Other
// messages: the agent's readiness, a folder selected (its id in two halves), the classic band's
// own requests and the contacts import; unknown ones go to the default processing.
TEST(ControllerMessages, EachMessage_DoesItsWork) {
    RunControllerCases({
        {"ticks", nullptr, std::vector<Sent>(34, kTick),
         Journal({Times(23, {Answer(0)}),
                  {L"classic deferred", L"classic refresh", Answer(0)},
                  Times(10, {Answer(0)})})},
        {"a tick after the tear-down",
         [](ControllerRig& rig) {
             for (int tick = 0; tick < 24; ++tick) {
                 rig.Dispatch(kTick.message);
             }
         },
         {{1056}, kTick},
         {L"classic teardown", Answer(0), L"classic deferred", L"classic refresh", Answer(0)}},
        {"agent ready",
         nullptr,
         {{1075}},
         {LogEntry(L"WLM Shadow is OK now!"), Answer(0)},
         [](ControllerRig& rig) { EXPECT_TRUE(rig.Controller().IsAgentReady()); }},
        {"folder selected",
         nullptr,
         {{1076, 1, 2}, {1076, 0xFFFFFFFFu, static_cast<intptr_t>(0xFFFFFFFEu)}},
         {L"store folder-selected 0x100000002", Answer(0),
          L"store folder-selected 0xFFFFFFFFFFFFFFFE", Answer(0)}},
        {"classic build request",
         nullptr,
         {{1055, 11111, 22222}},
         {L"classic build 11111 22222", Answer(0)}},
        {"classic tear-down detaches the main window",
         [](ControllerRig& rig) {
             rig.messaging.AddWindow(L"", L"Outlook Express Browser Class");
             rig.Dispatch(275, 1);
             ASSERT_TRUE(rig.Controller().IsMainWindowAttached());
         },
         {{1056}},
         {L"classic teardown", Answer(0)},
         [](ControllerRig& rig) { EXPECT_FALSE(rig.Controller().IsMainWindowAttached()); }},
        {"import contacts", nullptr, {{4032}}, {L"dialog import-contacts", Answer(0)}},
        {"unknown messages",
         nullptr,
         {{0}, {1057}, {1071}, {4033}, {15}},
         Times(5, {Answer(std::nullopt)})},
    });
}

}  // namespace
}  // namespace Orva::Testing
