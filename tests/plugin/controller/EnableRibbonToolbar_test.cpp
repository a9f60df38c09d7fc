#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;

constexpr uint32_t kClick = 4031;
constexpr uintptr_t kEntries = static_cast<uintptr_t>(intptr_t{-1});
const std::wstring kClickIn = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  IN");
const std::wstring kClickOut = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  OUT");
const std::wstring kIn = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  IN");
const std::wstring kOut = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  OUT");
const std::wstring kLaunch =
    L"launch \"C:\\Addin\\ORVA_WLM.exe\" {56639265-C81B-440d-B5CD-3A7ED4F42777}|";

struct SwitchRig : ControllerRig {
    SwitchRig() {
        Dispatch(4029);
        journal.Clear();
        messaging.ClearMessages();
    }
    void PressOnOff() { Dispatch(kClick, kEntries, 2); }
};

TEST(ControllerSwitch, Off_StopsTheAgentAndDisablesTheButtons) {
    SwitchRig rig;
    rig.AddAgent();
    rig.PressOnOff();
    EXPECT_THAT(rig.Journal(), ElementsAre(kClickIn, kIn, AgentEntry(L"post", 1069),
                                           L"ribbon caption IDS_ENABLE_CAPTION",
                                           L"ribbon buttons 0", kOut, kClickOut));
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"0");
    EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
}

TEST(ControllerSwitch, OffWithoutAgent_RetriesTenTimesASecondApart) {
    SwitchRig rig;
    rig.PressOnOff();
    EXPECT_EQ(rig.clock.Sleeps(), std::vector<uint32_t>(10, 1000));
}

TEST(ControllerSwitch, OnWithAgentRunning_ReQueriesAndRestoresTheCaption) {
    SwitchRig rig;
    rig.AddAgent();
    rig.PressOnOff();
    rig.journal.Clear();
    rig.PressOnOff();
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kClickIn, kIn, L"account check",
                    LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  IN"),
                    L"store create-folder 1", AgentEntry(L"post", 4027),
                    LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), Sucess to post "
                             L"message to ORVA_WLM about default account info."),
                    LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  OUT"),
                    L"ribbon caption IDS_DISABLE_CAPTION", L"ribbon buttons 1", kOut, kClickOut));
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"1");
    EXPECT_TRUE(rig.Controller().IsToolbarEnabled());
}

TEST(ControllerSwitch, OnAfterTheAgentStopped_LaunchesItAgain) {
    SwitchRig rig;
    const auto agent = rig.AddAgent();
    rig.PressOnOff();
    rig.messaging.RemoveWindow(agent);
    rig.launcher.onLaunch = [&rig] { rig.AddAgent(); };
    rig.journal.Clear();
    rig.PressOnOff();
    const auto journal = rig.Journal();
    ASSERT_GE(journal.size(), 6u);
    EXPECT_EQ(journal[3], LogEntry(L"@@@ CToolBarWnd::LaunchShadow  IN"));
    EXPECT_EQ(journal[4], kLaunch);
    EXPECT_EQ(rig.launcher.Launches().size(), 1u);
    EXPECT_EQ(rig.ribbon.OnOffCaption(), L"IDS_DISABLE_CAPTION");
}

TEST(ControllerSwitch, SuiteBusy_OnlyTheFlagChanges) {
    SwitchRig rig;
    rig.AddAgent();
    rig.AddSuite();
    rig.PressOnOff();
    EXPECT_THAT(rig.Journal(), ElementsAre(kClickIn, kIn, kClickOut));
    EXPECT_FALSE(rig.Controller().IsToolbarEnabled());
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), std::nullopt);
    rig.PressOnOff();
    EXPECT_TRUE(rig.Controller().IsToolbarEnabled());
}

TEST(ControllerSwitch, OnWithUnsupportedAccount_ShowsTheNoticeOnly) {
    SwitchRig rig;
    rig.AddAgent();
    rig.PressOnOff();
    rig.account.SetUnsupported(true);
    rig.journal.Clear();
    rig.PressOnOff();
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kClickIn, kIn, L"account check", L"dialog unsupported", kClickOut));
    EXPECT_EQ(rig.profile.Value(L"Antispam", L"EnableTBar"), L"0");
    EXPECT_EQ(rig.ribbon.OnOffCaption(), L"IDS_ENABLE_CAPTION");
}

}  // namespace
