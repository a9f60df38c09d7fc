#include "ui/LinkFilterPageModel.h"

#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Ui {

void CLinkFilterPageModel::Load() {
    m_panel.Load(m_services.settings);
    m_loaded = true;
}

PendingWrites CLinkFilterPageModel::PendingWrites() const {
    return m_loaded ? m_panel.Save() : Ui::PendingWrites{};
}

// Writing both keys on every OK is what ends the installation file's say: from then on the
// settings file holds the user's choice. The agent is told only of values that reached it.
bool CLinkFilterPageModel::Apply() {
    if (!m_loaded) {
        return false;
    }
    if (!WritePending(PendingWrites(), m_services.settings, m_services.log, L"CLinkFilter")) {
        return false;
    }
    m_services.agent.Notify(Plugin::AgentMessage::LinkFilterChanged);
    return true;
}

}  // namespace Orva::Ui
