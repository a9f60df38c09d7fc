#pragma once

#include <string>

#include "support/TempFolder.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "settings/SettingsCatalogue.h"
#include "settings/SettingsStore.h"

namespace Orva::Testing {

// An installation folder and a user folder in a temporary folder, with a store over them that
// uses the build's real profile functions.
struct SettingsTestFiles {
    explicit SettingsTestFiles(bool windows64 = false)
        : files{temp.File(L"ORVA_WLM.install.ini"), temp.File(L"ORVA_WLM.user.ini"),
                temp.File(L"ORVA_version.ini"), windows64},
          store(ZelCommon::Storage::SystemProfileApi(), files) {}

    // The add-in never writes the installation file; the administrator does, as here.
    void SetInstall(Settings::SettingId id, const std::wstring& value) {
        WriteRaw(files.installFile, id, value.c_str());
    }
    void SetUserRaw(Settings::SettingId id, const std::wstring& value) {
        WriteRaw(files.userFile, id, value.c_str());
    }
    std::wstring ReadRaw(const std::wstring& file, Settings::SettingId id,
                         const std::wstring& missing = L"<missing>") const {
        const Settings::SettingEntry& entry = Settings::Entry(id);
        return ZelCommon::Storage::ReadProfileString(
            ZelCommon::Storage::SystemProfileApi(), file,
            std::wstring(Settings::SectionOf(entry, files.windows64)), std::wstring(entry.key),
            missing);
    }
    std::wstring UserRaw(Settings::SettingId id) const { return ReadRaw(files.userFile, id); }

    TempFolder temp;
    Settings::SettingsFiles files;
    Settings::SettingsStore store;

private:
    void WriteRaw(const std::wstring& file, Settings::SettingId id, const wchar_t* value) {
        const Settings::SettingEntry& entry = Settings::Entry(id);
        ZelCommon::Storage::SystemProfileApi().WriteString(
            std::wstring(Settings::SectionOf(entry, files.windows64)).c_str(),
            std::wstring(entry.key).c_str(), value, file.c_str());
    }
};

}  // namespace Orva::Testing
