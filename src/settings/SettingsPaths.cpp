#include "settings/SettingsPaths.h"

#include <string_view>

#include "common_src/ZelCommon/Registry.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/Path.h"
#include "settings/SettingsCatalogue.h"

namespace Orva::Settings {
namespace {

namespace Path = ZelCommon::Path;
using ZelCommon::Storage::RegRoot;

constexpr std::wstring_view kSettingsFileName = L"ORVA_WLM.ini";
constexpr std::wstring_view kMakerFolder = L"Halvion";
constexpr std::wstring_view kProductFolder = L"WLM";
constexpr std::wstring_view kUsersFolder = L"Users";
constexpr std::wstring_view kLogFolder = L"log";
// The version file is shared by every product of the maker on the machine, so it lives beside
// the maker's data rather than in it: directly under the common application-data folder.
constexpr std::wstring_view kVersionFolder = L"ORVA_common";
constexpr std::wstring_view kVersionFileName = L"ORVA_version.ini";

// A missing value throws; that, and an empty value, both mean "not set".
std::wstring ReadIdentityValue(ZelCommon::Storage::Registry& key, std::wstring_view name) {
    std::wstring value;
    ZelCommon::Exception::CatchThrown<ZelCommon::Storage::Exception>(
        [&] { value = key.GetString(std::wstring(name), std::wstring()); },
        [](const ZelCommon::Storage::Exception&) {});
    return value;
}

}  // namespace

std::wstring AddinFolderOf(const std::wstring& moduleFilePath) {
    return Path::FolderOf(moduleFilePath);
}

std::wstring InstallFileIn(const std::wstring& addinFolder) {
    return Path::ChildFile(addinFolder, kSettingsFileName);
}

std::wstring UserFileIn(const std::wstring& userFolder) {
    return Path::ChildFile(userFolder, kSettingsFileName);
}

std::wstring IdentityName(ZelCommon::Storage::IRegistryApi& registry) {
    std::wstring identity;
    ZelCommon::Storage::Registry key(registry);
    const bool opened = ZelCommon::Exception::CatchThrown<ZelCommon::Storage::Exception>(
        [&] { key.Open(RegRoot::CurrentUser, std::wstring(IdentityRegistry::kKey), 0); },
        [](const ZelCommon::Storage::Exception&) {});
    if (opened) {
        identity = ReadIdentityValue(key, IdentityRegistry::kLastUserId);
        if (identity.empty()) {
            identity = ReadIdentityValue(key, IdentityRegistry::kDefaultUserId);
        }
    }
    return identity.empty() ? std::wstring(IdentityRegistry::kFallbackIdentity) : identity;
}

SettingsPaths MakeSettingsPaths(const std::wstring& addinFolder,
                                const std::wstring& commonAppDataFolder,
                                const std::wstring& identity) {
    SettingsPaths paths;
    paths.addinFolder = addinFolder;
    paths.installFile = InstallFileIn(addinFolder);
    paths.dataRoot =
        Path::ChildFolder(Path::ChildFolder(commonAppDataFolder, kMakerFolder), kProductFolder);
    paths.identity = identity;
    paths.userFolder = Path::ChildFolder(Path::ChildFolder(paths.dataRoot, kUsersFolder), identity);
    paths.userFile = UserFileIn(paths.userFolder);
    paths.logFolder = Path::ChildFolder(paths.userFolder, kLogFolder);
    paths.versionFolder = Path::ChildFolder(commonAppDataFolder, kVersionFolder);
    paths.versionFile = Path::ChildFile(paths.versionFolder, kVersionFileName);
    return paths;
}

SettingsPaths ComputeSettingsPaths(ZelCommon::Platform::IProcessContext& process,
                                   ZelCommon::Storage::IRegistryApi& registry,
                                   ZelCommon::Library::DebugLog& log) {
    const std::wstring moduleFile = process.ModuleFilePath();
    std::wstring commonAppData = process.CommonAppDataFolder();
    if (commonAppData.empty()) {
        log.LogText(
            L"xxx Settings: no common application-data folder; nothing is written and "
            L"the per-user settings keep their defaults\n");
        // Relative data paths would put the settings, lists and log into the mail client's current
        // folder, and empty ones would too as soon as a file name is joined to them. Below the
        // module file every path stays absolute and nothing can be created, whatever the rights:
        // a file holds no folders. Every read then finds nothing and gives its default.
        commonAppData = moduleFile;
    }
    return MakeSettingsPaths(AddinFolderOf(moduleFile), commonAppData, IdentityName(registry));
}

bool CreateSettingsFolders(const SettingsPaths& paths) {
    Path::CreateFolderWithParents(paths.dataRoot);
    return Path::CreateFolderWithParents(paths.userFolder);
}

}  // namespace Orva::Settings
