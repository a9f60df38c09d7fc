#pragma once

#include "plugin/agent/AgentNotices.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/log/DebugLog.h"

namespace Orva::Ui {

// What every page of the filtering sheet works with: the user's settings (and the installation
// file behind them), the agent to tell of changes, the localised texts and the debug log.
struct PageServices {
    Settings::SettingsStore& settings;
    Plugin::CAgentNotices& agent;
    Settings::ILocalisedStrings& strings;
    ZelCommon::Library::DebugLog& log;
};

}  // namespace Orva::Ui
