#include "settings/StartRecord.h"

namespace Orva::Settings {

int32_t RecordAddinStart(SettingsStore& store, const std::wstring& addinFileVersion) {
    const int32_t starts = store.GetInt(SettingId::ORVAStartTimes) + 1;
    store.SetInt(SettingId::ORVAStartTimes, starts);
    store.Set(SettingId::ORVAWLMVer, addinFileVersion);
    return starts;
}

}  // namespace Orva::Settings
