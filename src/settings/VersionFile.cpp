#include "settings/VersionFile.h"

#include "common_src/platform/Path.h"

namespace Orva::Settings {

bool WriteVersionFile(SettingsStore& store, const std::wstring& addinVersion) {
    ZelCommon::Path::CreateFolderWithParents(ZelCommon::Path::FolderOf(store.Files().versionFile));
    bool written = true;
    for (SettingId id :
         {SettingId::VersionPname, SettingId::VersionClass, SettingId::VersionType}) {
        written = store.Set(id, std::wstring(Entry(id).defaultText)) && written;
    }
    return store.Set(SettingId::VersionDeployVersion, addinVersion) && written;
}

}  // namespace Orva::Settings
