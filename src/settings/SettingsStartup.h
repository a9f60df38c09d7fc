#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "settings/Presets.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

struct StartedSettings {
    std::vector<PresetResult> presets;
    int32_t startCount = 0;
};

// What the add-in does with its settings once its controller exists (the debug log was switched
// on before, see SwitchOnDebugLog, so that these steps can already log): copies the presets,
// counts the start, records the add-in's file version and writes the shared version file.
StartedSettings StartAddinSettings(SettingsStore& store, const SettingsPaths& paths,
                                   const std::wstring& addinVersion,
                                   ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
