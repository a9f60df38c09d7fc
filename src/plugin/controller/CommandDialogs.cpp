#include "plugin/controller/CommandDialogs.h"

#include "settings/localisation/OnlineHelpTopic.h"

namespace Orva::Plugin {

void CCommandDialogs::OpenOnlineHelp() {
    m_log.LogText(L"@@CToolBarBand::OnClickHelpMenuItem()");
    Settings::OpenOnlineHelpTopic(L"FunID_SPAM_EMAIL_FILTER", m_loader, m_shell, m_log);
}

}  // namespace Orva::Plugin
