#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"
#include "settings/log/DebugLog.h"
#include "settings/Presets.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"

namespace Orva::Settings {

struct StartedSettings {
    SettingsPaths paths;
    SettingsFiles files;
    bool logSwitchedOn = false;
    std::vector<PresetResult> presets;
    int32_t startCount = 0;
};

// Everything the add-in does with its settings once its controller exists, on the folders the
// application fixed at start (ComputeSettingsPaths): switches the debug log on when the
// deployment asks for it, so that the later steps can already log, copies the presets, counts
// the start, records the add-in's file version and writes the shared version file.
StartedSettings StartAddinSettings(const SettingsPaths& paths,
                                   ZelCommon::Storage::IProfileApi& profile, bool windows64,
                                   const std::wstring& addinVersion,
                                   ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
