#include "ui/AdvancedPageModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

TEST(AdvancedPageModel, ReadPurgeDays_DigitsFromOneTo365ElseTwenty) {
    const std::pair<const wchar_t*, int> cases[] = {
        {L"1", 1},    {L"365", 365}, {L"007", 7},
        {L"12a", 20}, {L"0", 20},    {L"400", 20},
        {L"", 20},    {L" 7", 20},   {L"99999999999999999999999", 20}};
    for (const auto& [text, days] : cases) {
        EXPECT_EQ(ReadPurgeDays(text), days) << testing::PrintToString(text);
    }
}

TEST(AdvancedPageModel, Load_AutoMovedOnlyAsOne_OtherBoxesUnlessZero) {
    for (const wchar_t* stored : {L"1", L"2", L"0"}) {
        Testing::PageRig rig;
        for (const SettingId id :
             {SettingId::AutoMoved, SettingId::DeleteDeleted, SettingId::NotifyIcon}) {
            rig.files.SetUserRaw(id, stored);
        }
        rig.files.SetUserRaw(SettingId::PurgeDays, L"0012");
        CAdvancedPageModel page(rig.services);
        page.Load();
        EXPECT_EQ(page.PurgeDaysEnabled(), stored == std::wstring(L"1"));
        EXPECT_EQ(page.DeleteDeleted(), stored != std::wstring(L"0"));
        EXPECT_EQ(page.NotifyIcon(), stored != std::wstring(L"0"));
        EXPECT_EQ(page.PurgeDaysText(), L"12");
    }
}

TEST(AdvancedPageModel, Apply_WritesAfterAChange_Sends1044OnlyForTheIconBox) {
    const struct {
        const char* name;
        std::function<void(CAdvancedPageModel&)> change;
        const wchar_t *purgeDays, *autoMoved;
        bool sends;
    } cases[] = {
        {"no change", [](auto&) {}, L"<missing>", L"1", false},
        {"days only", [](auto& p) { p.SetPurgeDaysText(L"45"); }, L"45", L"1", false},
        {"moving off keeps the days",
         [](auto& p) {
             p.SetPurgeDaysText(L"");
             p.SetAutoMoved(false);
         },
         L"", L"0", false},
        {"icon", [](auto& p) { p.SetNotifyIcon(true); }, L"20", L"1", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Testing::PageRig rig;
        rig.files.SetUserRaw(SettingId::AutoMoved, L"1");
        CAdvancedPageModel page(rig.services);
        page.Load();
        each.change(page);
        page.Apply();
        page.Apply();
        EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), each.purgeDays);
        EXPECT_EQ(rig.files.UserRaw(SettingId::AutoMoved), each.autoMoved);
        const auto sent =
            rig.Received(Plugin::AgentMessage::AdvancedApplied, Testing::PageRig::Delivery::Sent);
        EXPECT_EQ(rig.AgentReceived(),
                  each.sends ? std::vector{sent} : std::vector<Testing::PageRig::Message>{});
    }
}

TEST(AdvancedPageModel, DeleteNow_Posts1035AtOnceAndWritesNothing) {
    Testing::PageRig rig;
    CAdvancedPageModel page(rig.services);
    page.DeleteNow();
    EXPECT_EQ(rig.AgentReceived(),
              std::vector{rig.Received(Plugin::AgentMessage::AdvancedChanged,
                                       Testing::PageRig::Delivery::Posted, 1)});
    EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), L"<missing>");
}

}  // namespace
}  // namespace Orva::Ui
