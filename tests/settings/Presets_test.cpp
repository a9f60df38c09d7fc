#include "settings/Presets.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

using Testing::SettingsTestFiles;

TEST(Presets, Rules_AreAppliedInTheDeploymentOrder) {
    const SettingId expected[] = {
        SettingId::AUServer,        SettingId::EnableSchedule,     SettingId::Interval,
        SettingId::UpdateUI,        SettingId::ProtectLevel,       SettingId::EnableInTheCloud,
        SettingId::AutoApprove,     SettingId::NotifyIcon,         SettingId::AutoMoved,
        SettingId::PurgeDays,       SettingId::DeleteDeleted,      SettingId::ReportSpamAddress,
        SettingId::ReportFPAddress, SettingId::ReportPhishAddress,
    };
    const auto rules = PresetRules();
    ASSERT_EQ(rules.size(), std::size(expected));
    for (size_t i = 0; i < rules.size(); ++i) {
        EXPECT_EQ(rules[i].userKey, expected[i]) << i;
        const SettingEntry& install = Entry(rules[i].installKey);
        const SettingEntry& user = Entry(rules[i].userKey);
        const SettingEntry& marker = Entry(rules[i].marker);
        EXPECT_EQ(install.file, SettingsFile::Install);
        EXPECT_EQ(user.file, SettingsFile::User);
        EXPECT_EQ(install.section, user.section);
        EXPECT_EQ(install.key, user.key);
        EXPECT_EQ(marker.section, user.section);
        EXPECT_EQ(marker.type, ValueType::Integer);
        EXPECT_EQ(marker.defaultNumber, 0);
    }
}

TEST(Presets, ProtectLevelPreset_ReachesAFreshUserOnceAndNeverOverwritesTheirChoice) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallProtectLevel, L"3");

    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::ProtectLevel), L"3");
    EXPECT_EQ(t.UserRaw(SettingId::SettedPLevel), L"1");

    ASSERT_TRUE(t.store.SetInt(SettingId::ProtectLevel, 1));
    const auto results = ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::ProtectLevel), L"1");
    EXPECT_EQ(results[4].rule.userKey, SettingId::ProtectLevel);
    EXPECT_EQ(results[4].outcome, PresetOutcome::AlreadyApplied);
}

TEST(Presets, ChangedPresetAfterwards_IsIgnoredForUsersWhoHadIt) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallPurgeDays, L"30");
    ApplyPresets(t.store);
    t.SetInstall(SettingId::InstallPurgeDays, L"45");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::PurgeDays), L"30");
}

TEST(Presets, EmptyInstallFile_AppliesOnlyTheInstallDefaultsOfNotifyIconAndCloud) {
    SettingsTestFiles t;
    const auto results = ApplyPresets(t.store);

    EXPECT_EQ(t.UserRaw(SettingId::NotifyIcon), L"0");
    EXPECT_EQ(t.UserRaw(SettingId::SettedNotifyIcon), L"1");
    EXPECT_EQ(t.UserRaw(SettingId::EnableInTheCloud), L"1");
    EXPECT_EQ(t.UserRaw(SettingId::SettedEnableInTheCloud), L"1");
    for (const PresetResult& result : results) {
        const bool hasInstallDefault = result.rule.userKey == SettingId::NotifyIcon ||
                                       result.rule.userKey == SettingId::EnableInTheCloud;
        EXPECT_EQ(result.outcome,
                  hasInstallDefault ? PresetOutcome::Applied : PresetOutcome::NotPreset);
        if (!hasInstallDefault) {
            EXPECT_EQ(t.UserRaw(result.rule.userKey), L"<missing>");
            EXPECT_EQ(t.UserRaw(result.rule.marker), L"<missing>");
        }
    }
}

TEST(Presets, UserWhoChoseBeforeTheFirstStart_StillGetsAnUnmarkedPreset) {
    SettingsTestFiles t;
    t.SetUserRaw(SettingId::AutoApprove, L"1");
    t.SetInstall(SettingId::InstallAutoApprove, L"0");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::AutoApprove), L"0");
    EXPECT_EQ(t.UserRaw(SettingId::SettedAutoApprove), L"1");
}

TEST(Presets, ReportAddresses_HaveAMarkerInEachSection) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallReportSpamAddress, L"spam@corp.example");
    t.SetInstall(SettingId::InstallReportPhishAddress, L"phish@corp.example");

    ApplyPresets(t.store);

    EXPECT_EQ(t.UserRaw(SettingId::ReportSpamAddress), L"spam@corp.example");
    EXPECT_EQ(t.UserRaw(SettingId::SettedReportSpamAddr), L"1");
    EXPECT_EQ(t.UserRaw(SettingId::ReportFPAddress), L"<missing>");
    EXPECT_EQ(t.UserRaw(SettingId::SettedReportFPAddr), L"<missing>");
    EXPECT_EQ(t.UserRaw(SettingId::ReportPhishAddress), L"phish@corp.example");
    EXPECT_EQ(t.UserRaw(SettingId::SettedReportPhishAddr), L"1");

    // A marker in one section says nothing about the others.
    t.SetInstall(SettingId::InstallReportFPAddress, L"fp@corp.example");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::ReportFPAddress), L"fp@corp.example");
}

TEST(Presets, NonZeroMarker_OfAnyValueBlocksThePreset) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallAUServer, L"http://updates.corp.example/");
    t.SetUserRaw(SettingId::SettedAUUrl, L"7");
    const auto results = ApplyPresets(t.store);
    EXPECT_EQ(results[0].outcome, PresetOutcome::AlreadyApplied);
    EXPECT_EQ(results[0].installValue, L"http://updates.corp.example/");
    EXPECT_EQ(t.UserRaw(SettingId::AUServer), L"<missing>");
}

TEST(Presets, BlankOnlyInstallValue_IsTrimmedToEmptyAndSkipped) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallInterval, L"   ");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::Interval), L"<missing>");
    EXPECT_EQ(t.UserRaw(SettingId::SettedSecUpdateInterval), L"<missing>");
}

TEST(Presets, EveryPreset_IsCopiedWithItsMarker) {
    SettingsTestFiles t;
    for (const PresetRule& rule : PresetRules()) {
        t.SetInstall(rule.installKey, L"v" + std::to_wstring(static_cast<int>(rule.installKey)));
    }
    ApplyPresets(t.store);
    for (const PresetRule& rule : PresetRules()) {
        EXPECT_EQ(t.UserRaw(rule.userKey),
                  L"v" + std::to_wstring(static_cast<int>(rule.installKey)));
        EXPECT_EQ(t.UserRaw(rule.marker), L"1");
    }
}

}  // namespace
}  // namespace Orva::Settings
