#pragma once

#include <string>

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/ProcessContext.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

// The folders and files of the add-in, fixed once at start. Folders end with the separator.
struct SettingsPaths {
    std::wstring addinFolder;
    std::wstring installFile;  // "ORVA_WLM.ini" in the add-in folder
    std::wstring dataRoot;     // common application data, "Halvion", "WLM"
    std::wstring identity;
    std::wstring userFolder;  // data root, "Users", identity
    std::wstring userFile;    // "ORVA_WLM.ini" in the per-user folder
    std::wstring logFolder;   // "log" in the per-user folder
    std::wstring versionFolder;
    std::wstring versionFile;  // "ORVA_version.ini" in the shared folder
};

// The folder of the module file, keeping its final separator.
std::wstring AddinFolderOf(const std::wstring& moduleFilePath);
std::wstring InstallFileIn(const std::wstring& addinFolder);
std::wstring UserFileIn(const std::wstring& userFolder);

// "Last User ID" of HKEY_CURRENT_USER\Identities, else "Default User ID", else "Default";
// an empty value counts as missing.
std::wstring IdentityName(ZelCommon::Storage::IRegistryApi& registry);

// Builds every path from the three facts they depend on; touches nothing on disk.
SettingsPaths MakeSettingsPaths(const std::wstring& addinFolder,
                                const std::wstring& commonAppDataFolder,
                                const std::wstring& identity);

// The paths of this process: module path and common application data from the process context,
// identity from the registry. Touches nothing on disk (the start-up creates the folders).
// Without a common application-data folder the data paths lie below the module file, where
// nothing can be created.
SettingsPaths ComputeSettingsPaths(
    ZelCommon::Platform::IProcessContext& process, ZelCommon::Storage::IRegistryApi& registry,
    ZelCommon::Library::DebugLog& log = ZelCommon::Library::TheLog());

// Creates the data root and the per-user folder; returns whether the per-user folder exists.
bool CreateSettingsFolders(const SettingsPaths& paths);

}  // namespace Orva::Settings
