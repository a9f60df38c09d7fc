#include "plugin/agent/AgentLink.h"

#include <utility>

#include "common_src/platform/WideFormat.h"
#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {

using ZelCommon::Platform::WindowHandle;

CAgentLink::CAgentLink(ZelCommon::Platform::IWindowMessaging& messaging,
                       ZelCommon::Platform::IClock& clock,
                       ZelCommon::Platform::IProcessLauncher& launcher,
                       ZelCommon::Library::DebugLog& log, std::wstring pluginFolder)
    : m_messaging(messaging),
      m_notices(messaging),
      m_clock(clock),
      m_launcher(launcher),
      m_log(log),
      m_pluginFolder(std::move(pluginFolder)) {}

std::wstring CAgentLink::CommandLine() const {
    return ZelCommon::Text::Format(L"\"%s%s\" %s", m_pluginFolder, kAgentProgramName,
                                   kAgentWindowTitle);
}

void CAgentLink::LaunchShadow() {
    m_log.LogText(L"@@@ %s  IN", L"CToolBarWnd::LaunchShadow");
    // The agent inherits the mail client's current folder; it finds its files by its own path.
    if (!m_launcher.Launch(CommandLine(), std::wstring())) {
        m_log.LogText(L"Failed to create ORVA_WLM.exe");
    }
    m_log.LogText(L"@@@ %s  OUT", L"CToolBarWnd::LaunchShadow");
}

void CAgentLink::ShutdownShadowEX(uint32_t retries, uint32_t intervalMilliseconds) {
    if (const WindowHandle agent = FindAgentWindow(); agent != 0) {
        m_messaging.Post(agent, AgentMessage::Stop, 0, 0);
        return;
    }
    // The agent may still be starting: give its window a few chances to appear.
    for (uint32_t attempt = 0; attempt < retries; ++attempt) {
        m_clock.Sleep(intervalMilliseconds);
        if (const WindowHandle agent = FindAgentWindow(); agent != 0) {
            m_log.LogText(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle success");
            m_messaging.Post(agent, AgentMessage::Stop, 0, 0);
            return;
        }
        m_log.LogText(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle failed, retry");
    }
}

WindowHandle CAgentLink::FindAgentWindow() {
    return m_notices.FindAgentWindow();
}

bool CAgentLink::IsSuiteBusy() {
    return m_notices.IsSuiteBusy();
}

void CAgentLink::SendButtonCommand(uint32_t message) {
    if (IsSuiteBusy()) {
        return;
    }
    if (const WindowHandle agent = FindAgentWindow(); agent != 0) {
        m_messaging.Post(agent, message, 0, 0);
    }
}

std::optional<intptr_t> CAgentLink::Notify(uint32_t message, uintptr_t wParam, intptr_t lParam) {
    return m_notices.Notify(message, wParam, lParam);
}

}  // namespace Orva::Plugin
