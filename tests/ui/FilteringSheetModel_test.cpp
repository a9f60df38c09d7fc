#include "ui/FilteringSheetModel.h"

#include <gtest/gtest.h>

#include <vector>

#include "PageRig.h"
#include "lists/SenderLists.h"
#include "support/FileBytes.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;
using Testing::PageRig;

TEST(FilteringSheet, HelpTopicOf_FollowsThePage_OthersGetTheSpamFilters) {
    EXPECT_EQ(HelpTopicOf(static_cast<int>(SheetPage::LinkFilter)), L"FunID_LINK_FILTER");
    EXPECT_EQ(HelpTopicOf(static_cast<int>(SheetPage::Advanced)), L"FunID_ADVANCED_SETTINGS");
    EXPECT_EQ(HelpTopicOf(kSheetPageCount), L"FunID_SPAM_EMAIL_FILTER");
    EXPECT_EQ(HelpTopicOf(-1), L"FunID_SPAM_EMAIL_FILTER");
}

TEST(FilteringSheet, AltShortcut_AltWithOOrCInAKeyMessage) {
    const struct {
        uint32_t message;
        uintptr_t key;
        bool altDown;
        SheetShortcut shortcut;
    } cases[] = {
        {0x100, 'O', true, SheetShortcut::Ok},     {0x109, 'o', true, SheetShortcut::Ok},
        {0x104, 'C', true, SheetShortcut::Cancel}, {0x102, 'c', true, SheetShortcut::Cancel},
        {0x100, 'O', false, SheetShortcut::None},  {0x10A, 'O', true, SheetShortcut::None},
        {0x0FF, 'c', true, SheetShortcut::None},   {0x100, 'X', true, SheetShortcut::None},
        {0x100, 0x14F, true, SheetShortcut::None},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(AltShortcut(each.message, each.key, each.altDown), each.shortcut)
            << each.message << " " << each.key;
    }
}

TEST(FilteringSheet, PlaceSheetButtons_HelpLeft_CancelRightmost_SixPixelsApart) {
    const SheetButtons placed =
        PlaceSheetButtons(400, {{90, 300, 75, 23}, {10, 301, 75, 24}, {20, 302, 80, 25}});
    EXPECT_EQ(placed, (SheetButtons{{6, 300, 75, 23}, {233, 301, 75, 24}, {314, 302, 80, 25}}));
}

TEST(FilteringSheet, SetUp_LoadsBothListsAndKeepsWhatItFound) {
    PageRig rig;
    const std::wstring data = rig.files.temp.Path();
    {
        Lists::CWListSet approved;
        approved.Add(L"anna@example.com", {L"Anna", L"anna@example.com"});
        approved.Save(Lists::ApprovedListPath(data));
    }
    Testing::WriteFileBytes(rig.files.temp.Root() / "BlackList.dat", "not a list\n");
    CFilteringSheetModel sheet(rig.services, {rig.files.files.userFile, data, data, L""});
    sheet.SetUp();
    EXPECT_EQ(sheet.ApprovedLoad(), Lists::ListLoad::Loaded);
    EXPECT_TRUE(sheet.Approved().Find(L"anna@example.com"));
    EXPECT_EQ(sheet.BlockedLoad(), Lists::ListLoad::RejectedHeader);
    EXPECT_EQ(sheet.Blocked().Count(), 0u);
}

// Only the pages that were shown take part in the OK.
TEST(FilteringSheet, ApplyAll_OnlyShownPagesWriteAndTell) {
    PageRig rig;
    CFilteringSheetModel sheet(rig.services, {});
    sheet.LinkFilter().Load();
    sheet.ApplyAll();
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWexor), L"0");
    EXPECT_EQ(rig.files.UserRaw(SettingId::GlobalLevel), L"<missing>");
    EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), L"<missing>");
    EXPECT_EQ(rig.AgentReceived(),
              std::vector{PageRig::Posted(Plugin::AgentMessage::LinkFilterChanged)});
}

// A settings file in a folder that does not exist: each page says so in the log and the agent
// is not told of values it would not find.
TEST(FilteringSheet, Apply_UnwritableSettingsFile_FalseLoggedAndNoNotice) {
    PageRig rig;
    Settings::SettingsStore unwritable(
        ZelCommon::Storage::SystemProfileApi(),
        {rig.files.files.installFile, rig.files.temp.Folder(L"absent") + L"ORVA_WLM.ini", L"",
         false});
    PageServices services{unwritable, rig.agent, rig.strings, rig.log.Log()};
    CFilteringSheetModel sheet(services, {});
    sheet.SpamDetection().Load();
    sheet.SpamDetection().MoveSlider(0);
    sheet.LinkFilter().Load();
    sheet.Advanced().Load();
    sheet.Advanced().SetNotifyIcon(true);
    EXPECT_FALSE(sheet.SpamDetection().Apply());
    EXPECT_FALSE(sheet.LinkFilter().Apply());
    EXPECT_FALSE(sheet.Advanced().Apply());
    EXPECT_TRUE(sheet.SpamDetection().Modified());
    EXPECT_TRUE(rig.AgentReceived().empty());
    std::vector<std::wstring> pages;
    for (const std::wstring& line : rig.log.Lines()) {
        pages.push_back(line.substr(0, line.find(L"::")));
    }
    EXPECT_EQ(pages.size(), 10u + 2u + 4u);
    EXPECT_EQ(pages.front(), L"xxx CSpamDetectionPage");
    EXPECT_EQ(pages.back(), L"xxx CAdvancedPage");
}

}  // namespace
}  // namespace Orva::Ui
