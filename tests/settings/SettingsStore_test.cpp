#include "settings/SettingsStore.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

using Testing::SettingsTestFiles;

TEST(SettingsStore, MissingFiles_GiveTheCatalogueDefaults) {
    SettingsTestFiles t;
    EXPECT_EQ(t.store.GetString(SettingId::PurgeDays), L"20");
    EXPECT_EQ(t.store.GetString(SettingId::EnableProxy), L"no");
    EXPECT_EQ(t.store.GetString(SettingId::AgentLog), L"ORVAAgent.log");
    EXPECT_EQ(t.store.GetInt(SettingId::Interval), 180);
    EXPECT_EQ(t.store.GetInt(SettingId::HTTPPort), 80);
    EXPECT_EQ(t.store.GetInt(SettingId::EnableWexor), 2);
    EXPECT_EQ(t.store.GetInt(SettingId::EnableInTheCloud), 1);
    EXPECT_EQ(t.store.GetStored(SettingId::PurgeDays), std::nullopt);
}

TEST(SettingsStore, SetInt_WritesDecimalText) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.SetInt(SettingId::HTTPPort, 8080));
    ASSERT_TRUE(t.store.SetInt(SettingId::LastUpdateTime, -5));
    EXPECT_EQ(t.UserRaw(SettingId::HTTPPort), L"8080");
    EXPECT_EQ(t.UserRaw(SettingId::LastUpdateTime), L"-5");
    EXPECT_EQ(t.store.GetInt(SettingId::HTTPPort), 8080);
    EXPECT_EQ(t.store.GetInt(SettingId::LastUpdateTime), -5);
}

TEST(SettingsStore, SetFlag_WritesOneAndZero) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.SetFlag(SettingId::AutoMoved, true));
    EXPECT_EQ(t.UserRaw(SettingId::AutoMoved), L"1");
    ASSERT_TRUE(t.store.SetFlag(SettingId::AutoMoved, false));
    EXPECT_EQ(t.UserRaw(SettingId::AutoMoved), L"0");
}

TEST(SettingsStore, SetFlagOnProxySwitch_WritesYesAndNo) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.SetFlag(SettingId::EnableProxy, true));
    EXPECT_EQ(t.UserRaw(SettingId::EnableProxy), L"yes");
    ASSERT_TRUE(t.store.SetFlag(SettingId::EnableProxy, false));
    EXPECT_EQ(t.UserRaw(SettingId::EnableProxy), L"no");
}

TEST(SettingsStore, InstallFileEntries_AreNeverWritten) {
    SettingsTestFiles t;
    EXPECT_FALSE(t.store.Set(SettingId::InstallDebug, L"1"));
    EXPECT_FALSE(t.store.SetInt(SettingId::InstallProtectLevel, 3));
    EXPECT_EQ(t.ReadRaw(t.files.installFile, SettingId::InstallDebug), L"<missing>");
    EXPECT_EQ(t.ReadRaw(t.files.userFile, SettingId::InstallDebug), L"<missing>");
}

TEST(SettingsStore, SameKeyInTwoSections_StaysApart) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.Set(SettingId::ReportSpamAddress, L"spam@example.com"));
    ASSERT_TRUE(t.store.Set(SettingId::ReportFPAddress, L"fp@example.com"));
    EXPECT_EQ(t.store.GetString(SettingId::ReportSpamAddress), L"spam@example.com");
    EXPECT_EQ(t.store.GetString(SettingId::ReportFPAddress), L"fp@example.com");
    EXPECT_EQ(t.store.GetString(SettingId::ReportPhishAddress), L"");
}

TEST(SettingsStore, GetStored_FindsKeysWhateverTheirCaseAndEmptyValues) {
    SettingsTestFiles t;
    ZelCommon::Storage::SystemProfileApi().WriteString(L"general", L"purgedays", L"7",
                                                       t.files.userFile.c_str());
    t.SetUserRaw(SettingId::AUServer, L"");
    EXPECT_EQ(t.store.GetStored(SettingId::PurgeDays), L"7");
    EXPECT_EQ(t.store.GetStored(SettingId::AUServer), L"");
    EXPECT_EQ(t.store.GetStored(SettingId::NotifyIcon), std::nullopt);
}

TEST(SettingsStore, Remove_BringsTheDefaultBack) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.Set(SettingId::ProtectLevel, L"3"));
    ASSERT_TRUE(t.store.Remove(SettingId::ProtectLevel));
    EXPECT_EQ(t.store.GetString(SettingId::ProtectLevel), L"2");
}

TEST(SettingsStore, OverlongValue_IsCutToTheReadersBuffer) {
    SettingsTestFiles t;
    ASSERT_TRUE(t.store.Set(SettingId::HTTPProxy, std::wstring(3000, L'p')));
    EXPECT_EQ(t.store.GetString(SettingId::HTTPProxy).size(),
              ZelCommon::Storage::kSettingsBufferChars - 1);
}

}  // namespace
}  // namespace Orva::Settings
