#include "plugin/controller/CommandDialogs.h"

#include <string>

namespace Orva::Plugin {

void CCommandDialogs::OpenOnlineHelp() {
    m_log.LogText(L"@@CToolBarBand::OnClickHelpMenuItem()");
    // The help's registry locations are named in the installation file beside the add-in.
    const std::wstring address =
        m_loader.GetORVA_OLH_URL(L"FunID_SPAM_EMAIL_FILTER", L"ORVA_WLM.ini", L"");
    if (address.empty()) {
        m_log.LogText(L"@@@ Error : Can't retrieve on-line help URL from registry.");
    } else if (!m_shell.OpenAddress(address)) {
        m_log.LogText(L"@@@ Error : Can't open on-line help URL in browser.");
    }
}

}  // namespace Orva::Plugin
