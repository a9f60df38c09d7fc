#include "settings/Presets.h"

#include <array>

namespace Orva::Settings {
namespace {

using enum SettingId;

constexpr std::array<PresetRule, 14> kPresetRules{{
    {InstallAUServer, AUServer, SettedAUUrl},
    {InstallEnableSchedule, EnableSchedule, SettedEnableScheduleUpdate},
    {InstallInterval, Interval, SettedSecUpdateInterval},
    {InstallUpdateUI, UpdateUI, SettedUpdateUI},
    {InstallProtectLevel, ProtectLevel, SettedPLevel},
    {InstallEnableInTheCloud, EnableInTheCloud, SettedEnableInTheCloud},
    {InstallAutoApprove, AutoApprove, SettedAutoApprove},
    {InstallNotifyIcon, NotifyIcon, SettedNotifyIcon},
    {InstallAutoMoved, AutoMoved, SettedAutomove},
    {InstallPurgeDays, PurgeDays, SettedPurgeDays},
    {InstallDeleteDeleted, DeleteDeleted, SettedDeleteDeleted},
    {InstallReportSpamAddress, ReportSpamAddress, SettedReportSpamAddr},
    {InstallReportFPAddress, ReportFPAddress, SettedReportFPAddr},
    {InstallReportPhishAddress, ReportPhishAddress, SettedReportPhishAddr},
}};

}  // namespace

std::span<const PresetRule> PresetRules() {
    return kPresetRules;
}

std::vector<PresetResult> ApplyPresets(SettingsStore& store) {
    std::vector<PresetResult> results;
    results.reserve(kPresetRules.size());
    for (const PresetRule& rule : kPresetRules) {
        PresetResult result{rule, PresetOutcome::NotPreset, store.GetString(rule.installKey)};
        if (!result.installValue.empty()) {
            if (store.GetInt(rule.marker) == 0) {
                // Write failures are not fatal: the next start simply tries again.
                store.Set(rule.userKey, result.installValue);
                store.SetFlag(rule.marker, true);
                result.outcome = PresetOutcome::Applied;
            } else {
                result.outcome = PresetOutcome::AlreadyApplied;
            }
        }
        results.push_back(std::move(result));
    }
    return results;
}

}  // namespace Orva::Settings
