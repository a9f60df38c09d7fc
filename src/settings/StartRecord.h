#pragma once

#include <string>

#include "settings/SettingsStore.h"

namespace Orva::Settings {

// Counts this start of the add-in (ORVAStartTimes + 1) and records the add-in's file version
// (ORVAWLMVer) in the per-user file. Returns the new start count.
int32_t RecordAddinStart(SettingsStore& store, const std::wstring& addinFileVersion);

}  // namespace Orva::Settings
