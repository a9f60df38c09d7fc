#pragma once

#include <span>
#include <string>
#include <vector>

#include "settings/SettingsCatalogue.h"
#include "settings/SettingsStore.h"

namespace Orva::Settings {

// One deployment preset: the installation key, the per-user key it fills and the per-user
// marker that records it was copied.
struct PresetRule {
    SettingId installKey;
    SettingId userKey;
    SettingId marker;
};

// The presets in the order they are applied.
std::span<const PresetRule> PresetRules();

enum class PresetOutcome {
    NotPreset,       // the installation file has no value for it
    Applied,         // copied into the per-user file just now
    AlreadyApplied,  // the marker says this user had it before
};

struct PresetResult {
    PresetRule rule;
    PresetOutcome outcome;
    std::wstring installValue;
};

// Copies each preset of the installation file into the per-user file once per user, and
// reports what happened to each rule, in order. Runs at every start of the add-in.
std::vector<PresetResult> ApplyPresets(SettingsStore& store);

}  // namespace Orva::Settings
