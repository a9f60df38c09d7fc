#include "ui/SpamDetectionPageModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;
using Testing::PageRig;

TEST(SpamDetectionPageModel, Load_ChoosesTheModeAndReadsLevelsTheLevelWay) {
    const struct {
        const wchar_t* globalLevel;  // null: not stored
        const wchar_t* protectLevel;
        const wchar_t* sexualLevel;
        const wchar_t* cloud;
        bool defaultMode;
        int slider;
        int sexualPosition;
        bool cloudOn;
    } cases[] = {
        {L" 0 ", L"3", L"1", L"1", false, 0, 2, true},
        {L"2", L"5", L"9", L"yes", true, 1, 1, false},
        {nullptr, L" 1", L"x", nullptr, true, 2, 1, true},
        {L"00", L"-1", L"3", L"0", true, 1, 0, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.protectLevel);
        PageRig rig;
        if (each.globalLevel != nullptr) {
            rig.files.SetUserRaw(SettingId::GlobalLevel, each.globalLevel);
        }
        if (each.cloud != nullptr) {
            rig.files.SetUserRaw(SettingId::EnableInTheCloud, each.cloud);
        }
        rig.files.SetUserRaw(SettingId::ProtectLevel, each.protectLevel);
        rig.files.SetUserRaw(SettingId::SexualLevel, each.sexualLevel);
        CSpamDetectionPageModel page(rig.services);
        page.Load();
        EXPECT_EQ(page.IsDefaultMode(), each.defaultMode);
        EXPECT_EQ(page.SliderPosition(), each.slider);
        EXPECT_EQ(page.Categories()[0], each.sexualPosition);
        EXPECT_EQ(page.DefaultCloud(), each.cloudOn);
        EXPECT_EQ(page.CustomCloud(), each.cloudOn);
    }
}

// The stored ProtectLevel "5" is left alone by an OK without a change; any change writes every
// key, the cloud lookup from the box of the panel on show, and tells the agent once.
TEST(SpamDetectionPageModel, Apply_WritesAfterAChangeOnlyAndPosts1036Once) {
    const CategoryPositions highest{0, 0, 0, 0, 0, 0, 0};
    const struct {
        const char* name;
        std::function<void(CSpamDetectionPageModel&)> change;
        std::vector<const wchar_t*> written;  // GlobalLevel, ProtectLevel, SexualLevel, cloud
    } cases[] = {
        {"no change", [](auto&) {}, {L"<missing>", L"5", L"<missing>", L"<missing>"}},
        {"cloud off", [](auto& p) { p.SetDefaultCloud(false); }, {L"1", L"2", L"2", L"0"}},
        {"slider there and back",
         [](auto& p) {
             p.MoveSlider(0);
             p.MoveSlider(1);
         },
         {L"1", L"2", L"2", L"1"}},
        {"hidden panel's box", [](auto& p) { p.SetCustomCloud(false); }, {L"1", L"2", L"2", L"1"}},
        {"categories",
         [&](auto& p) {
             p.AcceptCategories(highest);
             p.SetCustomCloud(false);
         },
         {L"0", L"2", L"3", L"0"}},
        {"back to default",
         [&](auto& p) {
             p.AcceptCategories(highest);
             p.MoveSlider(2);
             p.BackToDefault();
         },
         {L"1", L"2", L"3", L"1"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        PageRig rig;
        rig.files.SetUserRaw(SettingId::ProtectLevel, L"5");
        CSpamDetectionPageModel page(rig.services);
        page.Load();
        each.change(page);
        const bool changed = page.Modified();
        EXPECT_EQ(page.Apply(), changed);
        EXPECT_FALSE(page.Apply());
        EXPECT_EQ(rig.files.UserRaw(SettingId::GlobalLevel), each.written[0]);
        EXPECT_EQ(rig.files.UserRaw(SettingId::ProtectLevel), each.written[1]);
        EXPECT_EQ(rig.files.UserRaw(SettingId::SexualLevel), each.written[2]);
        EXPECT_EQ(rig.files.UserRaw(SettingId::EnableInTheCloud), each.written[3]);
        EXPECT_EQ(rig.AgentReceived(),
                  changed ? std::vector{PageRig::Posted(Plugin::AgentMessage::DetectionChanged)}
                          : std::vector<PageRig::Received>{});
    }
}

TEST(SpamDetectionPageModel, Apply_NeverShown_WritesNothing) {
    PageRig rig;
    CSpamDetectionPageModel page(rig.services);
    page.BackToDefault();
    EXPECT_FALSE(page.Apply());
    EXPECT_TRUE(page.PendingWrites().empty());
    EXPECT_EQ(rig.files.UserRaw(SettingId::GlobalLevel), L"<missing>");
    EXPECT_TRUE(rig.AgentReceived().empty());
}

}  // namespace
}  // namespace Orva::Ui
