#include "settings/LinkFilterSettings.h"

namespace Orva::Settings {

LinkFilterSettings ReadLinkFilterSettings(const SettingsStore& store) {
    LinkFilterSettings settings;
    settings.enableWexor = store.GetInt(SettingId::EnableWexor);
    if (settings.enableWexor == kWexorNotChosen) {
        settings.enableWexor = store.GetInt(SettingId::InstallEnableWexor);
        settings.securityLevel = store.GetString(SettingId::InstallSecurityLevel);
        settings.fromInstallFile = true;
    } else {
        settings.securityLevel = store.GetString(SettingId::SecurityLevel);
    }
    return settings;
}

}  // namespace Orva::Settings
