#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "settings/SettingsCatalogue.h"
#include "settings/SettingsPaths.h"

namespace Orva::Settings {

// The three ini files a catalogue entry may live in, and the machine fact that picks the
// version file's section.
struct SettingsFiles {
    std::wstring installFile;
    std::wstring userFile;
    std::wstring versionFile;
    bool windows64 = false;
};

SettingsFiles FilesOf(const SettingsPaths& paths, bool windows64);

// Typed reads and writes of catalogue entries through the profile functions. Reads give the
// catalogue default for a missing key; the installation file is never written.
class SettingsStore {
public:
    SettingsStore(ZelCommon::Storage::IProfileApi& api, SettingsFiles files);

    const SettingsFiles& Files() const { return m_files; }
    const std::wstring& FileOf(SettingId id) const;
    std::wstring SectionOf(SettingId id) const;

    // A string read with the 1024-character buffer and the catalogue's text default.
    std::wstring GetString(SettingId id) const;
    // A profile integer read with the catalogue's integer default.
    int32_t GetInt(SettingId id) const;
    // The stored text, or nothing when the key is absent from its file.
    std::optional<std::wstring> GetStored(SettingId id) const;

    bool Set(SettingId id, const std::wstring& value);
    // Numbers are written as decimal text ("%d").
    bool SetInt(SettingId id, int32_t value);
    // Flags are written "1"/"0", the proxy switch "yes"/"no".
    bool SetFlag(SettingId id, bool on);
    bool Remove(SettingId id);

private:
    bool Write(SettingId id, const wchar_t* value);

    ZelCommon::Storage::IProfileApi& m_api;
    SettingsFiles m_files;
};

}  // namespace Orva::Settings
