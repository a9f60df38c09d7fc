#include "plugin/controller/ToolBarController.h"

#include <string>

#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
void CToolBarController::OnTimer() {
    if (m_mainWindow == 0) {
        m_mainWindow = m_ports.messaging.FindByClass(std::wstring(kMailClientMainClass));
        if (m_mainWindow != 0) {
            m_mainWindowAttached = true;
            Log(L"CToolBarWnd::OnTimer() Got WLM handle");
        } else {
            Log(L"CToolBarWnd::OnTimer() Get WLM handle Error:%d",
                static_cast<int32_t>(m_ports.process.LastError()));
        }
    }
    if (!m_parts.classic.IsBuilt() && m_mailClientVersion.value_or(0) < kFirstRibbonClientVersion) {
        m_parts.classic.OnBuildUserInterface(kTimerBuildWParam, kTimerBuildLParam);
        return;
    }
    if (m_mainWindow != 0) {
        m_ownWindow.KillTimer(kMainWindowTimerId);
    }
}

}  // namespace Orva::Plugin
