#include "settings/SettingsStartup.h"

#include "settings/StartRecord.h"
#include "settings/VersionFile.h"

namespace Orva::Settings {

StartedSettings StartAddinSettings(SettingsStore& store, const SettingsPaths& paths,
                                   const std::wstring& addinVersion,
                                   ZelCommon::Library::DebugLog& log) {
    StartedSettings started;
    log.LogText(L"@@@ Settings: user folder %s, install file %s\n", paths.userFolder,
                paths.installFile);
    started.presets = ApplyPresets(store);
    for (const PresetResult& preset : started.presets) {
        if (preset.outcome == PresetOutcome::Applied) {
            const SettingEntry& entry = Entry(preset.rule.userKey);
            log.LogText(L"@@@ Preset [%s] %s=%s applied\n", entry.section, entry.key,
                        preset.installValue);
        }
    }
    started.startCount = RecordAddinStart(store, addinVersion);
    if (!WriteVersionFile(store, addinVersion)) {
        log.LogText(L"xxx Settings: cannot write the version file %s\n", store.Files().versionFile);
    }
    return started;
}

}  // namespace Orva::Settings
