#include "ui/SpamDetectionPageModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

TEST(SpamDetectionPageModel, Load_OnlyZeroIsCustom_LevelsOtherThanOneOrThreeAreTwo) {
    const struct {
        const wchar_t *globalLevel, *protectLevel, *sexualLevel, *cloud;
        bool defaultMode;
        int slider, sexualPosition;
        bool cloudOn;
    } cases[] = {
        {L" 0 ", L"3", L"1", L"1", false, 0, 2, true},
        {L"2", L"5", L"9", L"yes", true, 1, 1, false},
        {L"00", L" 1", L"x", L"0", true, 2, 1, false},
    };
    for (const auto& each : cases) {
        Testing::PageRig rig;
        rig.files.SetUserRaw(SettingId::GlobalLevel, each.globalLevel);
        rig.files.SetUserRaw(SettingId::ProtectLevel, each.protectLevel);
        rig.files.SetUserRaw(SettingId::SexualLevel, each.sexualLevel);
        rig.files.SetUserRaw(SettingId::EnableInTheCloud, each.cloud);
        CSpamDetectionPageModel page(rig.services);
        page.Load();
        EXPECT_EQ(page.IsDefaultMode(), each.defaultMode) << each.protectLevel;
        EXPECT_EQ(page.SliderPosition(), each.slider) << each.protectLevel;
        EXPECT_EQ(page.Categories()[0], each.sexualPosition) << each.protectLevel;
        EXPECT_EQ(page.DefaultCloud(), each.cloudOn) << each.protectLevel;
    }
}

// The stored ProtectLevel "5" stays unless something changed; then every key is written, the
// cloud lookup from the box of the panel on show, and the agent is told once.
TEST(SpamDetectionPageModel, Apply_WritesAfterAChangeOnlyAndPosts1036Once) {
    const struct {
        const char* name;
        std::function<void(CSpamDetectionPageModel&)> change;
        std::vector<std::wstring> written;  // GlobalLevel, ProtectLevel, SexualLevel, cloud
    } cases[] = {
        {"no change", [](auto&) {}, {L"<missing>", L"5", L"<missing>", L"<missing>"}},
        {"cloud off", [](auto& p) { p.SetDefaultCloud(false); }, {L"1", L"2", L"2", L"0"}},
        {"hidden panel's box", [](auto& p) { p.SetCustomCloud(false); }, {L"1", L"2", L"2", L"1"}},
        {"categories",
         [](auto& p) {
             p.AcceptCategories({0, 0, 0, 0, 0, 0, 0});
             p.SetCustomCloud(false);
         },
         {L"0", L"2", L"3", L"0"}},
        {"back to default",
         [](auto& p) {
             p.AcceptCategories({0, 0, 0, 0, 0, 0, 0});
             p.MoveSlider(2);
             p.BackToDefault();
         },
         {L"1", L"2", L"3", L"1"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Testing::PageRig rig;
        rig.files.SetUserRaw(SettingId::ProtectLevel, L"5");
        CSpamDetectionPageModel page(rig.services);
        page.Load();
        each.change(page);
        const bool changed = each.written[1] == L"2";
        EXPECT_EQ(page.Apply(), changed);
        EXPECT_FALSE(page.Apply());
        EXPECT_EQ((std::vector{rig.files.UserRaw(SettingId::GlobalLevel),
                               rig.files.UserRaw(SettingId::ProtectLevel),
                               rig.files.UserRaw(SettingId::SexualLevel),
                               rig.files.UserRaw(SettingId::EnableInTheCloud)}),
                  each.written);
        const auto posted = rig.Received(Plugin::AgentMessage::DetectionChanged);
        EXPECT_EQ(rig.AgentReceived(),
                  changed ? std::vector{posted}
                          : std::vector<decltype(rig.AgentReceived())::value_type>{});
    }
}

}  // namespace
}  // namespace Orva::Ui
