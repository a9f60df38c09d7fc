#include "settings/SettingsStartup.h"

#include "settings/DebugLogSwitch.h"
#include "settings/StartRecord.h"
#include "settings/VersionFile.h"

namespace Orva::Settings {

StartedSettings StartAddinSettings(const SettingsPaths& paths,
                                   ZelCommon::Storage::IProfileApi& profile, bool windows64,
                                   const std::wstring& addinVersion,
                                   ZelCommon::Library::DebugLog& log) {
    StartedSettings started;
    started.paths = paths;
    started.files = FilesOf(started.paths, windows64);
    SettingsStore store(profile, started.files);

    started.logSwitchedOn = SwitchOnDebugLog(store, started.paths.logFolder, log);
    log.LogText(L"@@@ Settings: user folder %s, install file %s\n", started.paths.userFolder,
                started.paths.installFile);
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
        log.LogText(L"xxx Settings: cannot write the version file %s\n", started.files.versionFile);
    }
    return started;
}

}  // namespace Orva::Settings
