#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/ProcessContext.h"
#include "settings/DebugLog.h"
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

// Everything the add-in does with its settings when it starts: fixes the folders and files
// (creating the data and per-user folders), switches the debug log on when the deployment
// asks for it, so that the later steps can already log, copies the presets, counts the start,
// records the add-in's file version and writes the shared version file.
StartedSettings StartAddinSettings(ZelCommon::Platform::IProcessContext& process,
                                   ZelCommon::Storage::IRegistryApi& registry,
                                   ZelCommon::Storage::IProfileApi& profile, bool windows64,
                                   const std::wstring& addinVersion,
                                   ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
