#include <regex>

#include "common_src/ZelCommon/Registry.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/Path.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/ZelResourceStringLoader.h"

using ZelCommon::Exception::CatchThrown;
using ZelCommon::Storage::Exception;

std::wstring ZelResourceStringLoader::InstallFile() const {
    return Orva::Settings::InstallFileIn(
        Orva::Settings::AddinFolderOf(m_services.process.ModuleFilePath()));
}

// The product is a 32-bit program: on a 64-bit Windows its key lives in the 32-bit view.
int ZelResourceStringLoader::RegistryView() const {
    return m_services.isWindows64 && m_services.isWindows64() ? 1 : 0;
}

std::wstring ZelResourceStringLoader::ReadMachineValue(const std::wstring& keyPath,
                                                       const std::wstring& valueName) {
    ZelCommon::Storage::Registry key(m_services.registry);
    key.Open(ZelCommon::Storage::RegRoot::LocalMachine, keyPath, RegistryView());
    return key.GetString(valueName, std::wstring());
}

std::wstring ZelResourceStringLoader::GetOrvaRegPath() {
    try {
        // One loader serves the add-ins of every mail client; anything else is a misplaced copy.
        const std::wstring modulePath = m_services.process.ModuleFilePath();
        static const std::wregex kVariant(L"ORVA_(WLM|OL|OE)");
        if (!std::regex_search(modulePath, kVariant)) {
            Log(L"regex match error, please check current path: [%s]", modulePath);
        }
        Orva::Settings::SettingsFiles files;
        files.installFile = InstallFile();
        const Orva::Settings::SettingsStore store(m_services.profile, files);
        std::wstring keyPath = store.GetString(Orva::Settings::SettingId::InstallOrvaReg);
        if (keyPath.empty()) {
            // An administrator who blanks the value means "the usual key", not the root.
            keyPath = Orva::Settings::Entry(Orva::Settings::SettingId::InstallOrvaReg).defaultText;
        }
        Log(L"ORVA registry path: [%s]", keyPath);
        return keyPath;
    } catch (...) {
        return {};
    }
}

std::wstring ZelResourceStringLoader::GetResourcePath() {
    try {
        const std::wstring keyPath = GetOrvaRegPath();
        std::wstring installFolder;
        CatchThrown<Exception>(
            [&] { installFolder = ReadMachineValue(keyPath, std::wstring(kInstallPathValue)); },
            [](const Exception&) {});
        if (installFolder.empty()) {
            Log(L"Can't find resource folder path from registry");
            installFolder = m_services.defaultInstallFolder;
        }
        using ZelCommon::Path::ChildFolder;
        std::wstring folder =
            ChildFolder(ChildFolder(ChildFolder(installFolder, L"ORVA"), L"Resource"), L"x86");
        Log(L"String Table Path: [%s]", folder);
        return folder;
    } catch (...) {
        return {};
    }
}
