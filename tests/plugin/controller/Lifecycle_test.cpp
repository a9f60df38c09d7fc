#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelCommon::Fakes::FakeHostObjects;

const std::wstring kShutdownIn = LogEntry(L"@@@ CToolBarWnd::OnWLMShutdown  IN");
const std::wstring kShutdownOut = LogEntry(L"@@@ CToolBarWnd::OnWLMShutdown  OUT");
const std::wstring kCloseIn = LogEntry(L"@@@ CToolBarWnd::OnClose  IN");

TEST(ControllerCreate, InitObjectCreated_TopMostThenAdvised) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(1), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"window topmost", L"host CreateInitObject",
                                           LogEntry(L"@@@ NktWLMailApi::WLMailApiInit! created"),
                                           L"host AdviseInitSink"));
    EXPECT_TRUE(rig.host.InitSinkAdvised());
}

TEST(ControllerCreate, InitObjectMissing_NoSink) {
    ControllerRig rig;
    rig.host.FailInitCreation(true);
    EXPECT_EQ(rig.Dispatch(1), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"window topmost", L"host CreateInitObject"));
}

TEST(ControllerShutdown, MailClientShutdown_UnsubscribesPurgesAndSignals) {
    ControllerRig rig;
    rig.Dispatch(4029);
    rig.journal.Clear();
    EXPECT_EQ(rig.Dispatch(4030), 0);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kShutdownIn, L"host UnadviseApiSink", L"store clean-deleted",
                            L"host ShutdownGdiplus", L"event set", kShutdownOut));
    EXPECT_FALSE(rig.host.ApiSinkAdvised());
}

TEST(ControllerShutdown, UnadviseRaisesHostError_LoggedAndShutdownGoesOn) {
    ControllerRig rig;
    rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::HostError, "Connection point gone");
    rig.Dispatch(4030);
    EXPECT_THAT(rig.Journal(), ElementsAre(kShutdownIn, L"host UnadviseApiSink",
                                           LogEntry(L"!!! CWLMShadow::OnClose() WLMApi Event Sink "
                                                    L"excpetion:[Connection point gone]"),
                                           L"store clean-deleted", L"host ShutdownGdiplus",
                                           L"event set", kShutdownOut));
}

TEST(ControllerShutdown, UnadviseRaisesSomethingElse_LoggedAndShutdownGoesOn) {
    ControllerRig rig;
    rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::Other);
    rig.Dispatch(4030);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kShutdownIn, L"host UnadviseApiSink", LogEntry(L"xxx WLMApi Event Sink Fail!"),
                    L"store clean-deleted", L"host ShutdownGdiplus", L"event set", kShutdownOut));
}

TEST(ControllerClose, AfterShutdown_SeesTheEventAndReleasesTheHost) {
    ControllerRig rig;
    rig.Dispatch(1);
    rig.Dispatch(4030);
    rig.journal.Clear();
    EXPECT_EQ(rig.Dispatch(16), std::nullopt);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kCloseIn, L"event wait 10000",
                            LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown success"),
                            L"host UnadviseInitSink", L"host ReleaseInitObject",
                            L"host UninitializeCom", L"strings release"));
    EXPECT_FALSE(rig.host.InitSinkAdvised());
}

TEST(ControllerClose, WithoutShutdown_WaitsTenSecondsThenClosesAnyway) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(16), std::nullopt);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kCloseIn, L"event wait 10000",
                            LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown failed"),
                            L"host UnadviseInitSink", L"host ReleaseInitObject",
                            L"host UninitializeCom", L"strings release"));
}

// Unloaded before the mail client shut it down: both sinks go, nothing waits or shuts COM down.
TEST(ControllerUnload, StillAdvised_UnadvisesBothSinksWithoutWaiting) {
    for (const bool apiUnadviseFails : {false, true}) {
        SCOPED_TRACE(apiUnadviseFails);
        ControllerRig rig;
        rig.Dispatch(1);
        rig.Dispatch(4029);
        ASSERT_TRUE(rig.host.InitSinkAdvised());
        ASSERT_TRUE(rig.host.ApiSinkAdvised());
        if (apiUnadviseFails) {
            rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::HostError, "gone");
        }
        rig.journal.Clear();

        rig.Controller().ReleaseHostAtUnload();

        EXPECT_FALSE(rig.host.InitSinkAdvised());
        EXPECT_FALSE(rig.host.ApiSinkAdvised());
        for (const std::wstring& entry : rig.Journal()) {
            EXPECT_EQ(entry.find(L"event wait"), std::wstring::npos);
            EXPECT_EQ(entry.find(L"UninitializeCom"), std::wstring::npos);
            EXPECT_EQ(entry.find(L"ShutdownGdiplus"), std::wstring::npos);
        }
    }
}

TEST(ControllerClose, UnadviseRaises_StillReleasesEverything) {
    ControllerRig rig;
    rig.shutdownDone.SignalDuringWaits(true);
    rig.host.ThrowOnUnadvise(FakeHostObjects::Throw::HostError, "gone");
    rig.Dispatch(16);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kCloseIn, L"event wait 10000",
                    LogEntry(L"CToolBarWnd::OnClose() wait for on shutdown success"),
                    L"host UnadviseInitSink",
                    LogEntry(L"!!! CWLMShadow::OnClose() WLMApi Event Sink excpetion:[gone]"),
                    L"host ReleaseInitObject", L"host UninitializeCom", L"strings release"));
}

TEST(ControllerTicks, TwentyFourthTick_CreatesTheDeferredBandOnce) {
    ControllerRig rig;
    for (int tick = 0; tick < 23; ++tick) {
        rig.Dispatch(1070);
    }
    EXPECT_THAT(rig.Journal(), IsEmpty());
    rig.Dispatch(1070);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"classic deferred", L"classic refresh"));
    for (int tick = 0; tick < 10; ++tick) {
        rig.Dispatch(1070);
    }
    EXPECT_EQ(rig.classic.DeferredCreations(), 1u);
    EXPECT_EQ(rig.Controller().TickCount(), 34u);
}

TEST(ControllerTicks, AfterTearDown_TheNextTickCreatesItAgain) {
    ControllerRig rig;
    for (int tick = 0; tick < 24; ++tick) {
        rig.Dispatch(1070);
    }
    rig.Dispatch(1056);
    rig.Dispatch(1070);
    EXPECT_EQ(rig.classic.DeferredCreations(), 2u);
}

TEST(ControllerMessages, AgentReady_LoggedAndRemembered) {
    ControllerRig rig;
    EXPECT_FALSE(rig.Controller().IsAgentReady());
    EXPECT_EQ(rig.Dispatch(1075), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(LogEntry(L"WLM Shadow is OK now!")));
    EXPECT_TRUE(rig.Controller().IsAgentReady());
}

TEST(ControllerMessages, FolderSelected_JoinsTheTwoHalves) {
    ControllerRig rig;
    rig.Dispatch(1076, 1, 2);
    rig.Dispatch(1076, 0xFFFFFFFFu, static_cast<intptr_t>(0xFFFFFFFEu));
    EXPECT_THAT(rig.Journal(), ElementsAre(L"store folder-selected 0x100000002",
                                           L"store folder-selected 0xFFFFFFFFFFFFFFFE"));
}

TEST(ControllerMessages, ClassicBuildRequest_PassesItsParameters) {
    ControllerRig rig;
    EXPECT_EQ(rig.Dispatch(1055, 11111, 22222), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"classic build 11111 22222"));
}

TEST(ControllerMessages, ClassicTearDown_DetachesTheMainWindow) {
    ControllerRig rig;
    rig.messaging.AddWindow(L"", L"Outlook Express Browser Class");
    rig.Dispatch(275, 1);
    ASSERT_TRUE(rig.Controller().IsMainWindowAttached());
    rig.journal.Clear();
    rig.Dispatch(1056);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"classic teardown"));
    EXPECT_FALSE(rig.Controller().IsMainWindowAttached());
}

TEST(ControllerMessages, ImportContacts_OpensTheImport) {
    ControllerRig rig;
    rig.Dispatch(4032);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"dialog import-contacts"));
}

TEST(ControllerMessages, UnknownMessage_LeftToTheDefaultProcessing) {
    ControllerRig rig;
    for (const uint32_t message : {0u, 1057u, 1071u, 4033u, 15u}) {
        EXPECT_EQ(rig.Dispatch(message), std::nullopt) << message;
    }
    EXPECT_THAT(rig.Journal(), IsEmpty());
}

}  // namespace
