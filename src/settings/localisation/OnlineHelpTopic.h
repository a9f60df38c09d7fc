#pragma once

#include <string_view>

#include "common_src/platform/ShellOpen.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

// The help page of the spam filter as a whole: the ribbon's help entry and the first page of the
// filtering sheet.
inline constexpr std::wstring_view kSpamFilterHelpTopic = L"FunID_SPAM_EMAIL_FILTER";

// The help page of `topic` ("FunID_...") in the user's browser. Failures are only logged:
// false when no address could be built or the browser could not be started.
bool OpenOnlineHelpTopic(std::wstring_view topic, ZelResourceStringLoader& loader,
                         ZelCommon::Platform::IShellOpen& shell, ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
