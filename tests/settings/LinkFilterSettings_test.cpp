#include "settings/LinkFilterSettings.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

// Until the user chose (EnableWexor stored), both the switch and the level come from the
// installation file, whatever the user's file holds for the level.
TEST(LinkFilterSettings, Read_TakesTheUsersChoiceElseTheInstallFile) {
    const struct {
        const char* name;
        bool installPresets;
        bool userChose;
        bool fromInstallFile;
        int32_t enableWexor;
        const wchar_t* securityLevel;
    } cases[] = {
        {"nothing anywhere: off at level two", false, false, true, 0, L"2"},
        {"not chosen", true, false, true, 1, L"3"},
        {"chosen", true, true, false, 0, L"1"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Testing::SettingsTestFiles t;
        if (each.installPresets) {
            t.SetInstall(SettingId::InstallEnableWexor, L"1");
            t.SetInstall(SettingId::InstallSecurityLevel, L"3");
            t.SetUserRaw(SettingId::SecurityLevel, L"1");
        }
        if (each.userChose) {
            t.store.SetInt(SettingId::EnableWexor, 0);
        }
        const LinkFilterSettings settings = ReadLinkFilterSettings(t.store);
        EXPECT_EQ(settings.fromInstallFile, each.fromInstallFile);
        EXPECT_EQ(settings.enableWexor, each.enableWexor);
        EXPECT_EQ(settings.securityLevel, each.securityLevel);
    }
}

}  // namespace
}  // namespace Orva::Settings
