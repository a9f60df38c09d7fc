#include "settings/localisation/OnlineHelpTopic.h"

#include <string>

namespace Orva::Settings {

// The help's registry locations are named in the installation file beside the add-in.
bool OpenOnlineHelpTopic(std::wstring_view topic, ZelResourceStringLoader& loader,
                         ZelCommon::Platform::IShellOpen& shell,
                         ZelCommon::Library::DebugLog& log) {
    const std::wstring address = loader.GetORVA_OLH_URL(std::wstring(topic), L"ORVA_WLM.ini", L"");
    if (address.empty()) {
        log.LogText(L"@@@ Error : Can't retrieve on-line help URL from registry.");
        return false;
    }
    if (!shell.OpenAddress(address)) {
        log.LogText(L"@@@ Error : Can't open on-line help URL in browser.");
        return false;
    }
    return true;
}

}  // namespace Orva::Settings
