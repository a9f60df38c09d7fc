#include "plugin/agent/AgentNotices.h"

#include <string>

#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {

using ZelCommon::Platform::WindowHandle;

WindowHandle CAgentNotices::FindAgentWindow() {
    return m_messaging.FindByTitle(std::wstring(kAgentWindowTitle));
}

bool CAgentNotices::IsSuiteBusy() {
    return m_messaging.FindByTitle(std::wstring(kSuiteWindowTitle)) != 0;
}

std::optional<intptr_t> CAgentNotices::Notify(uint32_t message, uintptr_t wParam,
                                              intptr_t lParam) {
    const WindowHandle agent = FindAgentWindow();
    if (agent == 0) {
        return std::nullopt;
    }
    if (DeliveryOf(message) == AgentDelivery::Sent) {
        return m_messaging.Send(agent, message, wParam, lParam);
    }
    m_messaging.Post(agent, message, wParam, lParam);
    return 0;
}

}  // namespace Orva::Plugin
