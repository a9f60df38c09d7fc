#pragma once

#include <string>

#include "settings/log/DebugLog.h"
#include "settings/SettingsStore.h"

namespace Orva::Settings {

// Switches the debug log on when the installation file's Debug is exactly "1": opens
// "<logFolder><AgentLog>" and, only then, takes HiddenFunc into account. Run once at start.
// Returns whether the log was switched on (the file may still have failed to open).
bool SwitchOnDebugLog(const SettingsStore& store, const std::wstring& logFolder,
                      ZelCommon::Library::DebugLog& log = ZelCommon::Library::TheLog());

}  // namespace Orva::Settings
