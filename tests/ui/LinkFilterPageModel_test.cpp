#include "ui/LinkFilterPageModel.h"

#include <gtest/gtest.h>

#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;
using Testing::PageRig;

// Until the user's file holds a choice, the installation file's switch and level show; the
// first OK, changed or not, writes both into the user's file.
TEST(LinkFilterPageModel, LoadAndApply_InstallFileUntilChosen_ThenBothKeysInTheUsersFile) {
    const struct {
        const wchar_t* userEnable;  // null: not stored
        const wchar_t* installLevel;
        int slider;
        bool enabled;
        const wchar_t* writtenLevel;
    } cases[] = {
        {nullptr, L"3", 0, true, L"3"},
        {L"2", nullptr, 1, true, L"2"},
        {L"0", L"3", 2, false, L"1"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << (each.userEnable ? each.userEnable : L"none"));
        PageRig rig;
        rig.files.SetInstall(SettingId::InstallEnableWexor, L"1");
        if (each.installLevel != nullptr) {
            rig.files.SetInstall(SettingId::InstallSecurityLevel, each.installLevel);
        }
        if (each.userEnable != nullptr) {
            rig.files.SetUserRaw(SettingId::EnableWexor, each.userEnable);
        }
        rig.files.SetUserRaw(SettingId::SecurityLevel, L"1");
        CLinkFilterPageModel page(rig.services);
        page.Load();
        EXPECT_EQ(page.SliderPosition(), each.slider);
        EXPECT_EQ(page.FilterEnabled(), each.enabled);
        EXPECT_TRUE(page.Apply());
        EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWexor), each.enabled ? L"1" : L"0");
        EXPECT_EQ(rig.files.UserRaw(SettingId::SecurityLevel), each.writtenLevel);
    }
}

TEST(LinkFilterPageModel, Apply_EveryOkOnceShownPosts1037) {
    PageRig rig;
    CLinkFilterPageModel page(rig.services);
    EXPECT_FALSE(page.Apply());
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWexor), L"<missing>");
    EXPECT_TRUE(rig.AgentReceived().empty());

    page.Load();
    page.SetFilterEnabled(true);
    page.MoveSlider(7);
    EXPECT_TRUE(page.Apply());
    EXPECT_TRUE(page.Apply());
    EXPECT_EQ(rig.files.UserRaw(SettingId::SecurityLevel), L"1");
    const auto posted = PageRig::Posted(Plugin::AgentMessage::LinkFilterChanged);
    EXPECT_EQ(rig.AgentReceived(), (std::vector{posted, posted}));
}

}  // namespace
}  // namespace Orva::Ui
