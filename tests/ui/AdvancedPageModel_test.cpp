#include "ui/AdvancedPageModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;
using Testing::PageRig;

TEST(AdvancedPageModel, ReadPurgeDays_DigitsFromOneTo365ElseTwenty) {
    const struct {
        const wchar_t* text;
        int days;
    } cases[] = {
        {L"1", 1},    {L"365", 365}, {L"007", 7}, {L"12a", 20}, {L"0", 20},
        {L"400", 20}, {L"", 20},     {L" 7", 20}, {L"-5", 20},  {L"99999999999999999999999", 20}};
    for (const auto& each : cases) {
        EXPECT_EQ(ReadPurgeDays(each.text), each.days) << testing::PrintToString(each.text);
    }
}

TEST(AdvancedPageModel, Load_AutoMovedOnlyAsOne_OtherBoxesUnlessZero) {
    const struct {
        const wchar_t* stored;  // null: not stored
        bool autoMoved;
        bool others;
    } cases[] = {
        {L"1", true, true}, {L"2", false, true}, {L"0", false, false}, {nullptr, false, false}};
    for (const auto& each : cases) {
        PageRig rig;
        if (each.stored != nullptr) {
            for (const SettingId id :
                 {SettingId::AutoMoved, SettingId::DeleteDeleted, SettingId::NotifyIcon}) {
                rig.files.SetUserRaw(id, each.stored);
            }
        }
        rig.files.SetUserRaw(SettingId::PurgeDays, L"0012");
        CAdvancedPageModel page(rig.services);
        page.Load();
        EXPECT_EQ(page.AutoMoved(), each.autoMoved);
        EXPECT_EQ(page.PurgeDaysEnabled(), each.autoMoved);
        EXPECT_EQ(page.DeleteDeleted(), each.others);
        EXPECT_EQ(page.NotifyIcon(), each.others);
        EXPECT_EQ(page.PurgeDaysText(), L"12");
    }
}

TEST(AdvancedPageModel, Apply_WritesAfterAChange_Sends1044OnlyForTheIconBox) {
    using Message = std::vector<PageRig::Received>;
    const Message sent{PageRig::Sent(Plugin::AgentMessage::AdvancedApplied)};
    const struct {
        const char* name;
        std::function<void(CAdvancedPageModel&)> change;
        const wchar_t* purgeDays;
        const wchar_t* autoMoved;
        Message received;
    } cases[] = {
        {"no change", [](auto&) {}, L"<missing>", L"1", {}},
        {"days only", [](auto& p) { p.SetPurgeDaysText(L"45"); }, L"45", L"1", {}},
        {"moving off keeps the days",
         [](auto& p) {
             p.SetPurgeDaysText(L"");
             p.SetAutoMoved(false);
         },
         L"",
         L"0",
         {}},
        {"icon", [](auto& p) { p.SetNotifyIcon(true); }, L"20", L"1", sent},
        {"icon there and back",
         [](auto& p) {
             p.SetNotifyIcon(true);
             p.SetNotifyIcon(false);
         },
         L"20", L"1", sent},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        PageRig rig;
        rig.files.SetUserRaw(SettingId::AutoMoved, L"1");
        CAdvancedPageModel page(rig.services);
        page.Load();
        each.change(page);
        page.Apply();
        page.Apply();
        EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), each.purgeDays);
        EXPECT_EQ(rig.files.UserRaw(SettingId::AutoMoved), each.autoMoved);
        EXPECT_EQ(rig.AgentReceived(), each.received);
    }
}

TEST(AdvancedPageModel, DeleteNow_Posts1035AtOnceAndWritesNothing) {
    PageRig rig;
    CAdvancedPageModel page(rig.services);
    page.DeleteNow();
    EXPECT_FALSE(page.Apply());
    EXPECT_EQ(rig.AgentReceived(),
              std::vector{PageRig::Posted(Plugin::AgentMessage::AdvancedChanged, 0, 1)});
    EXPECT_EQ(rig.files.UserRaw(SettingId::PurgeDays), L"<missing>");
}

}  // namespace
}  // namespace Orva::Ui
