#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::AgentEntry;
using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;

constexpr uint32_t kClick = 4031;
constexpr uintptr_t kEntries = static_cast<uintptr_t>(intptr_t{-1});
const std::wstring kIn = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  IN");
const std::wstring kOut = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  OUT");

// A controller whose ribbon is built: group 101, logo 102, report spam 108, not spam 109.
struct BuiltRig : ControllerRig {
    BuiltRig() {
        Dispatch(4029);
        journal.Clear();
        messaging.ClearMessages();
    }
};

TEST(ControllerClick, ReportSpam_PostsToTheAgent) {
    BuiltRig rig;
    rig.AddAgent();
    EXPECT_EQ(rig.Dispatch(kClick, 101, 108), 0);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, AgentEntry(L"post", 1041), kOut));
}

TEST(ControllerClick, NotSpam_PostsToTheAgent) {
    BuiltRig rig;
    rig.AddAgent();
    rig.Dispatch(kClick, 101, 109);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, AgentEntry(L"post", 1042), kOut));
}

TEST(ControllerClick, ReportingWhileSuiteBusy_SendsNothing) {
    BuiltRig rig;
    rig.AddAgent();
    rig.AddSuite();
    rig.Dispatch(kClick, 101, 108);
    rig.Dispatch(kClick, 101, 109);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, kOut, kIn, kOut));
}

TEST(ControllerClick, UnknownButtonOfTheGroup_Logged) {
    BuiltRig rig;
    rig.Dispatch(kClick, 101, 555);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn,
                            LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Button ID [555] is "
                                     L"not handled"),
                            kOut));
}

TEST(ControllerClick, EntryFive_LoggedAsUnhandledEvent) {
    BuiltRig rig;
    rig.Dispatch(kClick, kEntries, 5);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(kIn,
                            LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Event Button ID [5] "
                                     L"is not handled"),
                            kOut));
}

// Without a ribbon every id is 0: a click of (0, 0) is none of the host's buttons.
TEST(ControllerClick, NoRibbon_IdsNeverGivenMatchNothing) {
    ControllerRig rig;
    rig.AddAgent();
    EXPECT_EQ(rig.Dispatch(kClick, 0, 0), 0);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Unknow parameter"),
                    kOut));
}

TEST(ControllerClick, OtherGroup_UnknownParameter) {
    BuiltRig rig;
    rig.Dispatch(kClick, 7, 108);
    EXPECT_THAT(
        rig.Journal(),
        ElementsAre(kIn, LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton, Unknow parameter"),
                    kOut));
}

struct EntryCase {
    intptr_t entry;
    const wchar_t* action;
};

class DropDownEntries : public testing::TestWithParam<EntryCase> {};

TEST_P(DropDownEntries, Click_OpensItsWindow) {
    BuiltRig rig;
    rig.Dispatch(kClick, kEntries, GetParam().entry);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, GetParam().action, kOut));
}

INSTANTIATE_TEST_SUITE_P(Entries, DropDownEntries,
                         testing::Values(EntryCase{0, L"dialog filtering"},
                                         EntryCase{1, L"dialog statistics"},
                                         EntryCase{3, L"dialog help"},
                                         EntryCase{4, L"dialog about"}));

TEST(ControllerClick, EntriesSentAs32BitMinusOne_AreRecognised) {
    BuiltRig rig;
    rig.Dispatch(kClick, 0xFFFFFFFFu, 1);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"dialog statistics", kOut));
}

TEST(ControllerClick, LogoWithShift_PostsToTheAgentEvenWhileSuiteBusy) {
    BuiltRig rig;
    rig.AddAgent();
    rig.AddSuite();
    rig.keyboard.SetShiftDown(true);
    rig.Dispatch(kClick, 101, 102);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, AgentEntry(L"post", 1053), kOut));
}

TEST(ControllerClick, Logo_OpensTheConfiguredWebSite) {
    BuiltRig rig;
    rig.profile.Set(L"General", L"WebSiteForLogo", L"http://example.com/orva");
    rig.Dispatch(kClick, 101, 102);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"open http://example.com/orva", kOut));
}

TEST(ControllerClick, LogoWithoutSetting_OpensTheLocalisedHomePage) {
    BuiltRig rig;
    rig.strings.texts[L"IDS_QUILLON_HALVION_HOMEWEB"] = L"http://home.example/";
    rig.Dispatch(kClick, 101, 102);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, L"strings load IDS_QUILLON_HALVION_HOMEWEB",
                                           L"open http://home.example/", kOut));
}

TEST(ControllerClick, LogoWhileSuiteBusy_OpensNothing) {
    BuiltRig rig;
    rig.AddSuite();
    rig.Dispatch(kClick, 101, 102);
    EXPECT_THAT(rig.Journal(), ElementsAre(kIn, kOut));
}

}  // namespace
