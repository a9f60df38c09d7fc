#include "settings/LinkFilterSettings.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

TEST(LinkFilterSettings, NotChosen_TakesSwitchAndLevelFromTheInstallFile) {
    Testing::SettingsTestFiles t;
    t.SetInstall(SettingId::InstallEnableWexor, L"1");
    t.SetInstall(SettingId::InstallSecurityLevel, L"3");
    t.SetUserRaw(SettingId::SecurityLevel, L"1");
    const LinkFilterSettings settings = ReadLinkFilterSettings(t.store);
    EXPECT_TRUE(settings.fromInstallFile);
    EXPECT_EQ(settings.enableWexor, 1);
    EXPECT_EQ(settings.securityLevel, L"3");
}

TEST(LinkFilterSettings, NothingAnywhere_IsOffAtLevelTwo) {
    Testing::SettingsTestFiles t;
    const LinkFilterSettings settings = ReadLinkFilterSettings(t.store);
    EXPECT_TRUE(settings.fromInstallFile);
    EXPECT_EQ(settings.enableWexor, 0);
    EXPECT_EQ(settings.securityLevel, L"2");
}

TEST(LinkFilterSettings, UsersChoice_IgnoresTheInstallFile) {
    Testing::SettingsTestFiles t;
    t.SetInstall(SettingId::InstallEnableWexor, L"1");
    t.SetInstall(SettingId::InstallSecurityLevel, L"3");
    t.store.SetInt(SettingId::EnableWexor, 0);
    t.store.Set(SettingId::SecurityLevel, L"1");
    const LinkFilterSettings settings = ReadLinkFilterSettings(t.store);
    EXPECT_FALSE(settings.fromInstallFile);
    EXPECT_EQ(settings.enableWexor, 0);
    EXPECT_EQ(settings.securityLevel, L"1");
}

}  // namespace
}  // namespace Orva::Settings
