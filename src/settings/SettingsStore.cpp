#include "settings/SettingsStore.h"

#include <utility>

#include "common_src/platform/TextCodec.h"
#include "common_src/platform/WideFormat.h"
#include "common_src/ZelCommon/ProfileLists.h"

namespace Orva::Settings {

SettingsFiles FilesOf(const SettingsPaths& paths, bool windows64) {
    return SettingsFiles{paths.installFile, paths.userFile, paths.versionFile, windows64};
}

SettingsStore::SettingsStore(ZelCommon::Storage::IProfileApi& api, SettingsFiles files)
    : m_api(api), m_files(std::move(files)) {}

const std::wstring& SettingsStore::FileOf(SettingId id) const {
    switch (Entry(id).file) {
        case SettingsFile::Install:
            return m_files.installFile;
        case SettingsFile::User:
            return m_files.userFile;
        case SettingsFile::Version:
            break;
    }
    return m_files.versionFile;
}

std::wstring SettingsStore::SectionOf(SettingId id) const {
    return std::wstring(Settings::SectionOf(Entry(id), m_files.windows64));
}

std::wstring SettingsStore::GetString(SettingId id) const {
    const SettingEntry& entry = Entry(id);
    return ZelCommon::Storage::ReadProfileString(
        m_api, FileOf(id), SectionOf(id), std::wstring(entry.key), std::wstring(entry.defaultText));
}

int32_t SettingsStore::GetInt(SettingId id) const {
    const SettingEntry& entry = Entry(id);
    const uint32_t value = m_api.GetInt(SectionOf(id).c_str(), std::wstring(entry.key).c_str(),
                                        entry.defaultNumber, FileOf(id).c_str());
    return static_cast<int32_t>(value);
}

std::optional<std::wstring> SettingsStore::GetStored(SettingId id) const {
    const std::wstring wanted = ZelCommon::Text::ToLower(Entry(id).key);
    for (const std::wstring& name : ZelCommon::Storage::ReadKeyNames(m_api, FileOf(id), SectionOf(id))) {
        if (ZelCommon::Text::ToLower(name) == wanted) {
            return ZelCommon::Storage::ReadProfileString(m_api, FileOf(id), SectionOf(id),
                                                         std::wstring(Entry(id).key), L"");
        }
    }
    return std::nullopt;
}

bool SettingsStore::Set(SettingId id, const std::wstring& value) {
    return Write(id, value.c_str());
}

bool SettingsStore::SetInt(SettingId id, int32_t value) {
    return Set(id, ZelCommon::Text::Format(L"%d", value));
}

bool SettingsStore::SetFlag(SettingId id, bool on) {
    return Set(id, std::wstring(FlagText(Entry(id).form, on)));
}

bool SettingsStore::Remove(SettingId id) {
    return Write(id, nullptr);
}

bool SettingsStore::Write(SettingId id, const wchar_t* value) {
    const SettingEntry& entry = Entry(id);
    if (entry.file == SettingsFile::Install) {
        return false;
    }
    return m_api.WriteString(SectionOf(id).c_str(), std::wstring(entry.key).c_str(), value,
                             FileOf(id).c_str());
}

}  // namespace Orva::Settings
