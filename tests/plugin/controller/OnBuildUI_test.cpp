#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr uint32_t kBuildUi = 4029;
constexpr uint32_t kTimer = 275;
const std::wstring kIn = LogEntry(L"@@@ CToolBarWnd::OnBuildUI  IN");
const std::wstring kOut = LogEntry(L"@@@ CToolBarWnd::OnBuildUI  OUT");
const std::wstring kRibbonIn = LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  IN");
const std::wstring kRibbonOut = LogEntry(L"@@@ CToolBarWnd::OnBuildRibbonToolbar  OUT");
const std::wstring kPostReQuery = L"post {113194CA-A0F5-4510-9814-D82C70CF9C6C} 4028 0 0";

class RibbonVersions : public testing::TestWithParam<int> {};

TEST_P(RibbonVersions, BuildUI_BuildsRibbonStartsTimerAndReQueries) {
    ControllerRig rig;
    rig.version.Set(GetParam());
    EXPECT_EQ(rig.Dispatch(kBuildUi), 0);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, L"host InitializeCom", LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
                    L"host CreateApiObject", L"host AdviseApiSink", L"host StartGdiplus", kRibbonIn,
                    L"ribbon build 1", L"store create-folder 0", kRibbonOut, L"debugger tesr2",
                    L"timer set 1 1000", kPostReQuery, kOut));
    EXPECT_EQ(rig.Controller().Ribbon().group, 101);
    EXPECT_EQ(rig.Controller().Ribbon().notSpam, 109);
    EXPECT_EQ(rig.Controller().MailClientMajorVersion(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Versions, RibbonVersions, testing::Values(15, 16));

TEST(ControllerBuildUI, Version14_BuildsClassicBandWithoutTimer) {
    ControllerRig rig;
    rig.version.Set(14);
    rig.host.SetApiObject(true);
    EXPECT_EQ(rig.Dispatch(kBuildUi), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"host InitializeCom", L"host StartGdiplus",
                                           L"classic build 0 0", kPostReQuery, kOut));
    EXPECT_FALSE(rig.window.HasTimer(1));
}

class UnsupportedVersions : public testing::TestWithParam<int> {};

TEST_P(UnsupportedVersions, BuildUI_DisablesAndStopsTheAgentWithoutReQuery) {
    ControllerRig rig;
    rig.version.Set(GetParam());
    rig.AddAgent(1);
    EXPECT_EQ(rig.Dispatch(kBuildUi), 0);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, L"host InitializeCom", LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
                    L"host CreateApiObject", L"host AdviseApiSink", L"host StartGdiplus",
                    LogEntry(L"!!! Not support WLM version"), L"sleep 500",
                    LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle success"),
                    AgentEntry(L"post", 1069), kOut));
    EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
}

INSTANTIATE_TEST_SUITE_P(Versions, UnsupportedVersions, testing::Values(13, 17, 0));

TEST(ControllerBuildUI, UnsupportedVersionWithoutAgent_RetriesTwentyTimesHalfASecondApart) {
    ControllerRig rig;
    rig.version.Set(17);
    rig.Dispatch(kBuildUi);
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<uint32_t>(20, 500));
    EXPECT_THAT(rig.messaging.Messages(), IsEmpty());
}

TEST(ControllerBuildUI, VersionUnreadable_ReturnsOneAndBuildsNothing) {
    ControllerRig rig;
    rig.version.Set(std::nullopt);
    EXPECT_EQ(rig.Dispatch(kBuildUi), 1);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn, LogEntry(L"!!! Fatal error, get WLM version fail.")));
}

TEST(ControllerBuildUI, ApiObjectCannotBeCreated_ReturnsOneWithoutUi) {
    ControllerRig rig;
    rig.host.FailApiCreation(true);
    EXPECT_EQ(rig.Dispatch(kBuildUi), 1);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, L"host InitializeCom", LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
                    L"host CreateApiObject",
                    LogEntry(L"@@@ Fatal error, NktWLMailApi::WLMailApi create fail")));
}

struct FlagCase {
    std::optional<std::wstring> stored;
    bool enabled;
};

class EnableTBarValues : public testing::TestWithParam<FlagCase> {};

TEST_P(EnableTBarValues, BuildUI_ReadsTheTrimmedFlag) {
    ControllerRig rig;
    if (GetParam().stored) {
        rig.SetEnableTBar(*GetParam().stored);
    }
    rig.Dispatch(kBuildUi);
    EXPECT_EQ(rig.Controller().IsToolbarEnabled(), GetParam().enabled);
    EXPECT_THAT(rig.Journal(),
                Contains(GetParam().enabled ? L"ribbon build 1" : L"ribbon build 0"));
}

INSTANTIATE_TEST_SUITE_P(Values, EnableTBarValues,
                         testing::Values(FlagCase{L"0", false}, FlagCase{L" 0 ", false},
                                         FlagCase{L"\t0", false}, FlagCase{L"1", true},
                                         FlagCase{L"", true}, FlagCase{L"00", true},
                                         FlagCase{L"no", true}, FlagCase{L"0 1", true},
                                         FlagCase{std::nullopt, true}));

TEST(ControllerBuildUI, DisabledAtStart_RibbonShowsEnableAndButtonsOff) {
    ControllerRig rig;
    rig.SetEnableTBar(L"0");
    rig.AddAgent();
    rig.Dispatch(kBuildUi);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, L"host InitializeCom", LogEntry(L"@@@ Creating NktWLMailApi::WLMailApi !"),
                    L"host CreateApiObject", L"host AdviseApiSink", L"host StartGdiplus", kRibbonIn,
                    L"ribbon build 0", LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  IN"),
                    AgentEntry(L"post", 1069), L"ribbon caption IDS_ENABLE_CAPTION",
                    L"ribbon buttons 0", LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  OUT"),
                    kRibbonOut, L"debugger tesr2", L"timer set 1 1000", kPostReQuery, kOut));
    EXPECT_EQ(rig.ribbon.OnOffCaption(), L"IDS_ENABLE_CAPTION");
    EXPECT_FALSE(rig.ribbon.ButtonsEnabled());
}

TEST(ControllerTimer, MainWindowAppears_AttachesAndStopsTheTimer) {
    ControllerRig rig;
    rig.Dispatch(kBuildUi);
    const auto main =
        rig.messaging.AddWindow(L"Windows Live Mail", L"Outlook Express Browser Class");
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"CToolBarWnd::OnTimer() Got WLM handle"), L"timer kill 1"));
    EXPECT_EQ(rig.Controller().MailClientWindow(), main);
    EXPECT_TRUE(rig.Controller().IsMainWindowAttached());
    EXPECT_FALSE(rig.window.HasTimer(1));
}

TEST(ControllerTimer, MainWindowMissing_LogsTheErrorAndKeepsTheTimer) {
    ControllerRig rig;
    rig.Dispatch(kBuildUi);
    rig.process.SetLastError(1400);
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"CToolBarWnd::OnTimer() Get WLM handle Error:1400")));
    EXPECT_TRUE(rig.window.HasTimer(1));
}

TEST(ControllerTimer, HostNamedTheMainWindow_NoSearch) {
    ControllerRig rig;
    rig.Dispatch(kBuildUi);
    rig.Controller().SetMailClientWindow(0x4242);
    const unsigned lookups = rig.messaging.LookupCount();
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_EQ(rig.messaging.LookupCount(), lookups);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"timer kill 1"));
}

TEST(ControllerTimer, Version14WithoutRebar_BuildsFromTheTimerUntilTheBandExists) {
    ControllerRig rig;
    rig.version.Set(14);
    rig.Dispatch(kBuildUi);
    rig.messaging.AddWindow(L"", L"Outlook Express Browser Class");
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(LogEntry(L"CToolBarWnd::OnTimer() Got WLM handle"),
                                           L"classic build 11111 22222"));
    rig.classic.SetRebarPresent(true);
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"classic build 11111 22222"));
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"timer kill 1"));
}

TEST(ControllerTimer, Version14BuiltAtOnce_TimerOnlyLooksForTheMainWindow) {
    ControllerRig rig;
    rig.version.Set(14);
    rig.classic.SetRebarPresent(true);
    rig.Dispatch(kBuildUi);
    rig.journal.Clear();
    rig.Dispatch(kTimer, 1);
    EXPECT_THAT(rig.Journal(), Not(Contains(L"classic build 11111 22222")));
}

}  // namespace
