#pragma once

#include <cstdint>
#include <string>

#include "settings/SettingsStore.h"

namespace Orva::Settings {

// The web-threat (link) filter's switch and level as the add-in sees them: while the user has
// not chosen (EnableWexor 2 or missing), both come from the installation file.
struct LinkFilterSettings {
    int32_t enableWexor = 0;
    std::wstring securityLevel;
    bool fromInstallFile = false;
};

inline constexpr int32_t kWexorNotChosen = 2;

LinkFilterSettings ReadLinkFilterSettings(const SettingsStore& store);

}  // namespace Orva::Settings
