#include "plugin/controller/CommandDialogs.h"

#include "settings/localisation/OnlineHelpTopic.h"

namespace Orva::Plugin {

void CCommandDialogs::OpenOnlineHelp() {
    m_log.LogText(L"@@CToolBarBand::OnClickHelpMenuItem()");
    Settings::OpenOnlineHelpTopic(Settings::kSpamFilterHelpTopic, m_loader, m_shell, m_log);
}

}  // namespace Orva::Plugin
