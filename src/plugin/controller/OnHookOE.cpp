#include "plugin/controller/ToolBarController.h"

namespace Orva::Plugin {

intptr_t CToolBarController::OnHookOE(ZelCommon::Platform::WindowHandle mainWindow) {
    Log(L"@@@ OnHookOE IN");
    if (m_savedProcedure != 0 || mainWindow == 0) {
        Log(L"@@@ OnHookOE OUT");
        return 1;
    }
    m_savedProcedure = m_ports.hook.CurrentProcedure(mainWindow);
    if (m_savedProcedure == 0) {
        return 0;
    }
    if (!m_ports.hook.InstallHook(mainWindow)) {
        // The procedure stays saved, so a second request finds it and leaves the window alone.
        return 0;
    }
    m_hookedWindow = mainWindow;
    Log(L"@@@ OnHookOE OUT");
    return 1;
}

intptr_t CToolBarController::OnUnhookOE() {
    Orva::Settings::OsVersionRecord os;
    // Only Windows 6.x gets its procedure back; elsewhere the hook stays until the window closes.
    if (m_savedProcedure != 0 && m_ports.os.QueryVersion(os) && os.majorVersion == 6) {
        m_ports.hook.Restore(m_hookedWindow, m_savedProcedure);
        m_savedProcedure = 0;
        m_hookedWindow = 0;
    }
    return 0;
}

}  // namespace Orva::Plugin
