#include "ui/FilteringSheetModel.h"

#include <gtest/gtest.h>

#include <vector>

#include "SenderPageRig.h"
#include "lists/SenderLists.h"
#include "support/FileBytes.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

TEST(FilteringSheet, HelpTopicOf_FollowsThePage_OthersGetTheSpamFilters) {
    EXPECT_EQ(HelpTopicOf(static_cast<int>(SheetPage::LinkFilter)), L"FunID_LINK_FILTER");
    EXPECT_EQ(HelpTopicOf(static_cast<int>(SheetPage::Advanced)), L"FunID_ADVANCED_SETTINGS");
    EXPECT_EQ(HelpTopicOf(kSheetPageCount), L"FunID_SPAM_EMAIL_FILTER");
    EXPECT_EQ(HelpTopicOf(-1), L"FunID_SPAM_EMAIL_FILTER");
}

TEST(FilteringSheet, AltShortcut_AltWithOOrCInAKeyMessage) {
    using enum SheetShortcut;
    EXPECT_EQ(AltShortcut(0x100, 'O', true), Ok);
    EXPECT_EQ(AltShortcut(0x109, 'c', true), Cancel);
    EXPECT_EQ(AltShortcut(0x104, 'o', false), None);
    EXPECT_EQ(AltShortcut(0x10A, 'C', true), None);
    EXPECT_EQ(AltShortcut(0x0FF, 'O', true), None);
    EXPECT_EQ(AltShortcut(0x100, 0x14F, true), None);
}

TEST(FilteringSheet, PlaceSheetButtons_HelpLeft_CancelRightmost_SixPixelsApart) {
    const SheetButtons placed =
        PlaceSheetButtons(400, {{90, 300, 75, 23}, {10, 301, 75, 24}, {20, 302, 80, 25}});
    EXPECT_EQ(placed, (SheetButtons{{6, 300, 75, 23}, {233, 301, 75, 24}, {314, 302, 80, 25}}));
}

TEST(FilteringSheet, SetUp_LoadsBothListsAndKeepsWhatItFound) {
    Testing::SenderPageRig rig;
    rig.WriteApproved({L"anna@example.com"});
    Testing::WriteFileBytes(rig.paths.blocked, "not a list\n");
    CFilteringSheetModel& sheet = rig.sheet;
    sheet.SetUp();
    EXPECT_EQ(sheet.ApprovedLoad(), Lists::ListLoad::Loaded);
    EXPECT_TRUE(sheet.Approved().Find(L"anna@example.com"));
    EXPECT_EQ(sheet.BlockedLoad(), Lists::ListLoad::RejectedHeader);
    EXPECT_EQ(sheet.Blocked().Count(), 0u);
}

// Only the pages that were shown take part in the OK.
TEST(FilteringSheet, ApplyAll_OnlyShownPagesWriteAndTell) {
    Testing::SenderPageRig rig;
    CFilteringSheetModel& sheet = rig.sheet;
    sheet.LinkFilter().Load();
    sheet.ApplyAll();
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWexor), L"0");
    EXPECT_EQ(rig.files.UserRaw(SettingId::GlobalLevel), L"<missing>");
    EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), L"<missing>");
    EXPECT_EQ(rig.AgentReceived(),
              std::vector{rig.Received(Plugin::AgentMessage::LinkFilterChanged)});
}

// A settings file in a folder that does not exist: each page says so in the log and the agent
// is not told of values it would not find.
TEST(FilteringSheet, Apply_UnwritableSettingsFile_FalseLoggedAndNoNotice) {
    Testing::SenderPageRig rig;
    Settings::SettingsStore unwritable(
        ZelCommon::Storage::SystemProfileApi(),
        {rig.files.files.installFile, rig.files.temp.Folder(L"absent") + L"ORVA_WLM.ini", L"",
         false});
    PageServices services{unwritable, rig.agent, rig.strings, rig.log.Log()};
    CFilteringSheetModel sheet(services, {}, {rig.user, rig.user, rig.user});
    sheet.SpamDetection().Load();
    sheet.SpamDetection().MoveSlider(0);
    sheet.LinkFilter().Load();
    sheet.Advanced().Load();
    sheet.Advanced().SetNotifyIcon(true);
    EXPECT_FALSE(sheet.SpamDetection().Apply());
    EXPECT_FALSE(sheet.LinkFilter().Apply());
    EXPECT_FALSE(sheet.Advanced().Apply());
    EXPECT_TRUE(rig.AgentReceived().empty());
    const std::vector<std::wstring> lines = rig.log.Lines();
    ASSERT_EQ(lines.size(), 10u + 2u + 4u);
    EXPECT_TRUE(lines.front().starts_with(L"xxx CSpamDetectionPage::OnApply() can't write"));
    EXPECT_TRUE(lines.back().starts_with(L"xxx CAdvancedPage::OnApply() can't write"));
}

}  // namespace
}  // namespace Orva::Ui
