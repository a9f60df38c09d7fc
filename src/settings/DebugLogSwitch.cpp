#include "settings/DebugLogSwitch.h"

#include "common_src/platform/Path.h"

namespace Orva::Settings {

bool SwitchOnDebugLog(const SettingsStore& store, const std::wstring& logFolder,
                      ZelCommon::Library::DebugLog& log) {
    // Deliberately strict: "true", "yes" or "2" leave a deployment's log off.
    if (store.GetString(SettingId::InstallDebug) != L"1") {
        return false;
    }
    ZelCommon::Path::CreateFolderWithParents(logFolder);
    log.OpenLog(ZelCommon::Path::ChildFile(logFolder, store.GetString(SettingId::AgentLog)));
    if (store.GetInt(SettingId::HiddenFunc) != 0) {
        ZelCommon::Library::SetHiddenFunctionsEnabled(true);
    }
    return true;
}

}  // namespace Orva::Settings
