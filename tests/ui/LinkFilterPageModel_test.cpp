#include "ui/LinkFilterPageModel.h"

#include <gtest/gtest.h>

#include <vector>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

// Until the user's file holds a choice (2 is none), the installation file's switch and level
// show; every OK, changed or not, writes both into the user's file and tells the agent.
TEST(LinkFilterPageModel, InstallFileUntilChosen_EveryOkWritesBothKeysAndPosts1037) {
    const struct {
        const wchar_t *userEnable, *installLevel;  // null: not stored
        int slider;
        bool enabled;
        const wchar_t* writtenLevel;
    } cases[] = {
        {nullptr, L"3", 0, true, L"3"},
        {L"2", nullptr, 1, true, L"2"},
        {L"0", L"3", 2, false, L"1"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.slider);
        Testing::PageRig rig;
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
        EXPECT_TRUE(page.Apply());
        EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWexor), each.enabled ? L"1" : L"0");
        EXPECT_EQ(rig.files.UserRaw(SettingId::SecurityLevel), each.writtenLevel);
        const auto posted = rig.Received(Plugin::AgentMessage::LinkFilterChanged);
        EXPECT_EQ(rig.AgentReceived(), (std::vector{posted, posted}));
    }
}

}  // namespace
}  // namespace Orva::Ui
