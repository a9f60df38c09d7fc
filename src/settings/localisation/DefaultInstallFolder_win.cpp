#include <shlobj.h>
#include <windows.h>

#include "common_src/platform/Path.h"
#include "settings/localisation/StringLoaderServices.h"

namespace Orva::Settings {

std::wstring DefaultInstallFolder() {
    wchar_t programFiles[MAX_PATH] = {};
    if (!::SHGetSpecialFolderPathW(nullptr, programFiles, CSIDL_PROGRAM_FILES, FALSE)) {
        return L"C:\\Program Files\\Halvion\\Corelane\\plugin\\";
    }
    return ZelCommon::Path::ChildFolder(programFiles, L"Halvion\\Corelane\\plugin");
}

}  // namespace Orva::Settings
