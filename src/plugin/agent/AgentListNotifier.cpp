#include "plugin/agent/AgentListNotifier.h"

#include <string>

#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {

CAgentListNotifier::CAgentListNotifier(ZelCommon::Platform::IWindowMessaging& messaging)
    : m_messaging(messaging) {}

void CAgentListNotifier::SenderListsChanged() {
    PostToAgent(AgentMessage::SenderListsChanged);
}

void CAgentListNotifier::EncodingsChanged() {
    PostToAgent(AgentMessage::EncodingsChanged);
}

void CAgentListNotifier::PostToAgent(uint32_t message) {
    const ZelCommon::Platform::WindowHandle agent =
        m_messaging.FindByTitle(std::wstring(kAgentWindowTitle));
    if (agent != 0) {
        m_messaging.Post(agent, message, 0, 0);
    }
}

}  // namespace Orva::Plugin
