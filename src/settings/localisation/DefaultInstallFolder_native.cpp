#include "settings/localisation/StringLoaderServices.h"

namespace Orva::Settings {

std::wstring DefaultInstallFolder() {
    return L"/opt/Halvion/Corelane/plugin/";
}

}  // namespace Orva::Settings
