#include "settings/Presets.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

using Testing::SettingsTestFiles;

PresetResult ResultOf(const std::vector<PresetResult>& results, SettingId userKey) {
    for (const PresetResult& result : results) {
        if (result.rule.userKey == userKey) {
            return result;
        }
    }
    ADD_FAILURE() << "no preset result";
    return {};
}

// Each preset goes from the installation file to the same section and key of the user's file,
// with its marker beside it, in the order of the rules.
TEST(Presets, EveryPreset_IsCopiedWithItsMarkerInTheRulesOrder) {
    SettingsTestFiles t;
    for (const PresetRule& rule : PresetRules()) {
        t.SetInstall(rule.installKey, L"v" + std::to_wstring(static_cast<int>(rule.installKey)));
    }
    const auto results = ApplyPresets(t.store);
    ASSERT_EQ(results.size(), PresetRules().size());
    for (size_t i = 0; i < results.size(); ++i) {
        const PresetRule& rule = results[i].rule;
        SCOPED_TRACE(i);
        EXPECT_EQ(rule.userKey, PresetRules()[i].userKey);
        EXPECT_EQ(results[i].outcome, PresetOutcome::Applied);
        EXPECT_EQ(Entry(rule.installKey).file, SettingsFile::Install);
        EXPECT_EQ(Entry(rule.installKey).section, Entry(rule.userKey).section);
        EXPECT_EQ(Entry(rule.installKey).key, Entry(rule.userKey).key);
        EXPECT_EQ(Entry(rule.marker).section, Entry(rule.userKey).section);
        EXPECT_EQ(t.UserRaw(rule.userKey),
                  L"v" + std::to_wstring(static_cast<int>(rule.installKey)));
        EXPECT_EQ(t.UserRaw(rule.marker), L"1");
    }
}

// Neither the user's later choice nor a changed preset is overwritten once the preset arrived.
TEST(Presets, AppliedPreset_ReachesTheUserOnlyOnce) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallProtectLevel, L"3");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::ProtectLevel), L"3");

    ASSERT_TRUE(t.store.SetInt(SettingId::ProtectLevel, 1));
    t.SetInstall(SettingId::InstallProtectLevel, L"2");
    const auto results = ApplyPresets(t.store);

    EXPECT_EQ(t.UserRaw(SettingId::ProtectLevel), L"1");
    EXPECT_EQ(ResultOf(results, SettingId::ProtectLevel).outcome, PresetOutcome::AlreadyApplied);
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

// The report addresses live in sections of their own: one address applied does not mark another.
TEST(Presets, ReportAddresses_EachMarkedInItsOwnSection) {
    SettingsTestFiles t;
    t.SetInstall(SettingId::InstallReportSpamAddress, L"spam@corp.example");
    ApplyPresets(t.store);
    t.SetInstall(SettingId::InstallReportFPAddress, L"fp@corp.example");
    ApplyPresets(t.store);
    EXPECT_EQ(t.UserRaw(SettingId::ReportSpamAddress), L"spam@corp.example");
    EXPECT_EQ(t.UserRaw(SettingId::ReportFPAddress), L"fp@corp.example");
    EXPECT_EQ(t.UserRaw(SettingId::SettedReportPhishAddr), L"<missing>");
}

// Presets side by side, each on its own: one the user chose before the first start still
// arrives while unmarked; a marker of any non-zero value blocks another; an installation value of
// blanks only is trimmed to nothing and skipped.
TEST(Presets, UnmarkedChoiceOverwritten_NonZeroMarkerBlocks_BlankValueSkipped) {
    SettingsTestFiles t;
    t.SetUserRaw(SettingId::AutoApprove, L"1");
    t.SetInstall(SettingId::InstallAutoApprove, L"0");
    t.SetInstall(SettingId::InstallAUServer, L"http://updates.corp.example/");
    t.SetUserRaw(SettingId::SettedAUUrl, L"7");
    t.SetInstall(SettingId::InstallInterval, L"   ");
    const auto results = ApplyPresets(t.store);

    EXPECT_EQ(t.UserRaw(SettingId::AutoApprove), L"0");
    EXPECT_EQ(t.UserRaw(SettingId::SettedAutoApprove), L"1");
    const PresetResult blocked = ResultOf(results, SettingId::AUServer);
    EXPECT_EQ(blocked.outcome, PresetOutcome::AlreadyApplied);
    EXPECT_EQ(blocked.installValue, L"http://updates.corp.example/");
    EXPECT_EQ(t.UserRaw(SettingId::AUServer), L"<missing>");
    EXPECT_EQ(t.UserRaw(SettingId::Interval), L"<missing>");
    EXPECT_EQ(t.UserRaw(SettingId::SettedSecUpdateInterval), L"<missing>");
}

}  // namespace
}  // namespace Orva::Settings
