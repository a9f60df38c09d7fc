#include <string>

#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {

intptr_t CToolBarController::HookProcedure(ZelCommon::Platform::WindowHandle window,
                                           uint32_t message, uintptr_t wParam, intptr_t lParam) {
    if (message == ControllerMessage::Close) {
        Log(L"@@@ WLM will close and notice WLMA to quit at once");
        // The band lives in the main window's rebar: it must go before the window does.
        if (const auto controller =
                m_ports.messaging.FindByClass(std::wstring(kControllerClassName));
            controller != 0) {
            m_ports.messaging.Send(controller, ControllerMessage::TearDownClassicUi, 0, 0);
        } else {
            Log(L"@@@ Error : find oea failed when close oe");
        }
        if (m_savedProcedure != 0) {
            if (m_ports.hook.Restore(window, m_savedProcedure)) {
                Log(L"@@@ WndProc Set back OK");
                const auto result =
                    m_ports.hook.CallProcedure(m_savedProcedure, window, message, wParam, lParam);
                m_savedProcedure = 0;
                m_hookedWindow = 0;
                return result;
            }
            Log(L"@@@ Error : set the old oe winproc failed");
        } else {
            Log(L"@@@ Proc is NULL");
        }
    } else if (message == ControllerMessage::NcDestroy) {
        Log(L"@@@ OE WM_NCDESTROY come in");
    }
    if (m_savedProcedure != 0) {
        return m_ports.hook.CallProcedure(m_savedProcedure, window, message, wParam, lParam);
    }
    return m_ports.hook.CallDefault(window, message, wParam, lParam);
}

}  // namespace Orva::Plugin
