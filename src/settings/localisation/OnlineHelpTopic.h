#pragma once

#include <string_view>

#include "common_src/platform/ShellOpen.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

// The help page of `topic` ("FunID_...") in the user's browser. Failures are only logged:
// false when no address could be built or the browser could not be started.
bool OpenOnlineHelpTopic(std::wstring_view topic, ZelResourceStringLoader& loader,
                         ZelCommon::Platform::IShellOpen& shell, ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
