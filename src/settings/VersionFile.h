#pragma once

#include <string>

#include "settings/SettingsStore.h"

namespace Orva::Settings {

// Writes the add-in's identification into the shared version file: pname "orva", class "WLMA"
// (the mail-client add-in among the maker's products), type "addin" and DeployVersion, the
// add-in's version. Creates the shared folder when needed; returns whether every write worked.
bool WriteVersionFile(SettingsStore& store, const std::wstring& addinVersion);

}  // namespace Orva::Settings
