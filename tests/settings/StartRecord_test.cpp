#include "settings/StartRecord.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"
#include "settings/LinkFilterSettings.h"

namespace Orva::Settings {
namespace {

TEST(RecordAddinStart, CountsEachStartAndRecordsTheFileVersion) {
    Testing::SettingsTestFiles t;
    EXPECT_EQ(RecordAddinStart(t.store, L"2.0.0.17"), 1);
    EXPECT_EQ(RecordAddinStart(t.store, L"2.0.0.18"), 2);
    EXPECT_EQ(t.UserRaw(SettingId::ORVAStartTimes), L"2");
    EXPECT_EQ(t.UserRaw(SettingId::ORVAWLMVer), L"2.0.0.18");
}

TEST(RecordAddinStart, DamagedCount_StartsOverFromItsLeadingDigits) {
    Testing::SettingsTestFiles t;
    t.SetUserRaw(SettingId::ORVAStartTimes, L"41abc");
    EXPECT_EQ(RecordAddinStart(t.store, L"1"), 42);
    EXPECT_EQ(t.UserRaw(SettingId::ORVAStartTimes), L"42");
}

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
