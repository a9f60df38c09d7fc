#pragma once

#include <functional>
#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/Locale.h"
#include "common_src/platform/ProcessContext.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

// What the string loader reads and where it logs: the profile functions (string tables,
// language map, installation file), the registry (product key), the system locale, the
// module path and the debug log. Tests hand in fakes.
struct StringLoaderServices {
    ZelCommon::Storage::IProfileApi& profile;
    ZelCommon::Storage::IRegistryApi& registry;
    ZelCommon::Platform::ILocale& locale;
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Library::DebugLog& log;
    // The 64-bit probe, asked each time the product key is opened to choose its registry view;
    // none means a 32-bit Windows.
    std::function<bool()> isWindows64;
    // The installation folder used when the registry does not name one; ends with a separator.
    std::wstring defaultInstallFolder;
};

// The services of this process: the system's profile functions, registry, locale, process and
// log, the machine's 64-bit probe and the product's default installation folder.
StringLoaderServices SystemStringLoaderServices();

// The suite's "plugin" folder under the program files folder, where the product installs by
// default; natively a folder under /opt.
std::wstring DefaultInstallFolder();

}  // namespace Orva::Settings
