#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {

template <class Unadvise>
void CToolBarController::UnadviseLogged(Unadvise unadvise) {
    try {
        unadvise();
    } catch (const HostCallError& error) {
        Log(L"!!! CWLMShadow::OnClose() WLMApi Event Sink excpetion:[%S]", error.what());
    } catch (...) {
        Log(L"xxx WLMApi Event Sink Fail!");
    }
}

void CToolBarController::OnWLMShutdown() {
    Log(L"@@@ %s  IN", L"CToolBarWnd::OnWLMShutdown");
    UnadviseLogged([this] { m_ports.host.UnadviseApiSink(); });
    m_parts.spamFolder.PostCleanDeletedFolder();
    m_ports.host.ShutdownGdiplus();
    m_ports.shutdownDone.Set();
    Log(L"@@@ %s  OUT", L"CToolBarWnd::OnWLMShutdown");
}

void CToolBarController::ReleaseHostAtUnload() {
    UnadviseLogged([this] { m_ports.host.UnadviseApiSink(); });
    UnadviseLogged([this] { m_ports.host.UnadviseInitSink(); });
    m_ports.host.ReleaseInitObject();
    m_parts.spamFolder.ReleaseStore();
}

void CToolBarController::OnClose() {
    Log(L"@@@ %s  IN", L"CToolBarWnd::OnClose");
    // The shut-down handling may still be running when the host posts the close: give it time,
    // but close anyway when it never finishes.
    if (m_ports.shutdownDone.Wait(kShutdownWaitMilliseconds)) {
        Log(L"CToolBarWnd::OnClose() wait for on shutdown success");
    } else {
        Log(L"CToolBarWnd::OnClose() wait for on shutdown failed");
    }
    UnadviseLogged([this] { m_ports.host.UnadviseInitSink(); });
    m_ports.host.ReleaseInitObject();
    // The store's objects are COM objects too: they go before COM does.
    m_parts.spamFolder.ReleaseStore();
    m_ports.host.UninitializeCom();
    m_parts.strings.Release();
}

}  // namespace Orva::Plugin
