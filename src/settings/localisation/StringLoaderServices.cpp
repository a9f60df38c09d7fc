#include "settings/localisation/StringLoaderServices.h"

#include "settings/probes/OsVersion.h"

namespace Orva::Settings {

StringLoaderServices SystemStringLoaderServices() {
    return StringLoaderServices{ZelCommon::Storage::SystemProfileApi(),
                                ZelCommon::Storage::SystemRegistryApi(),
                                ZelCommon::Platform::SystemLocale(),
                                ZelCommon::Platform::SystemProcessContext(),
                                ZelCommon::Library::TheLog(),
                                [] { return CComUtilSet::IsWindows64(); },
                                DefaultInstallFolder()};
}

}  // namespace Orva::Settings
