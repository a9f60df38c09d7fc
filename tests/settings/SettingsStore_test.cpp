#include "settings/SettingsStore.h"

#include <gtest/gtest.h>

#include <variant>

#include "SettingsTestFiles.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::Settings {
namespace {

using Testing::SettingsTestFiles;

TEST(SettingsStore, MissingFiles_GiveTheCatalogueDefaults) {
    SettingsTestFiles t;
    for (const SettingEntry& entry : SettingsCatalogue()) {
        SCOPED_TRACE(ZelCommon::Text::WideToUtf8(entry.key));
        EXPECT_EQ(t.store.GetString(entry.id), entry.defaultText);
        if (entry.type != ValueType::String) {
            EXPECT_EQ(t.store.GetInt(entry.id), entry.defaultNumber);
        }
        EXPECT_EQ(t.store.GetStored(entry.id), std::nullopt);
    }
}

TEST(SettingsStore, Writes_AreDecimalTextAndFlagsAsTheirFormSays) {
    const struct {
        SettingId id;
        std::variant<int32_t, bool> value;  // a number, or a flag
        const wchar_t* stored;
    } cases[] = {
        {SettingId::HTTPPort, 8080, L"8080"},   {SettingId::LastUpdateTime, -5, L"-5"},
        {SettingId::AutoMoved, true, L"1"},     {SettingId::AutoMoved, false, L"0"},
        {SettingId::EnableProxy, true, L"yes"}, {SettingId::EnableProxy, false, L"no"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(ZelCommon::Text::WideToUtf8(each.stored));
        SettingsTestFiles t;
        const bool* flag = std::get_if<bool>(&each.value);
        ASSERT_TRUE(flag ? t.store.SetFlag(each.id, *flag)
                         : t.store.SetInt(each.id, std::get<int32_t>(each.value)));
        EXPECT_EQ(t.UserRaw(each.id), each.stored);
        EXPECT_EQ(t.store.GetString(each.id), each.stored);
    }
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
