#include <string>
#include <string_view>

#include "common_src/platform/TextCodec.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "plugin/controller/ToolBarController.h"

namespace Orva::Plugin {
namespace {

using Orva::Settings::SettingId;

constexpr int kClassicClientVersion = 14;
constexpr int kFirstRibbonClientVersion = 15;
constexpr int kLastRibbonClientVersion = 16;

}  // namespace

bool CToolBarController::ReadToolbarEnabled() const {
    return ZelCommon::Text::TrimBlanks(m_parts.settings.GetString(SettingId::EnableTBar)) != L"0";
}

intptr_t CToolBarController::OnBuildUI() {
    Log(L"@@@ %s  IN", L"CToolBarWnd::OnBuildUI");
    m_mailClientVersion = m_ports.version.MajorVersion();
    if (!m_mailClientVersion) {
        Log(L"!!! Fatal error, get WLM version fail.");
        return 1;
    }
    m_ports.host.InitializeCom();
    if (!m_ports.host.HasApiObject()) {
        Log(L"@@@ Creating NktWLMailApi::WLMailApi !");
        if (!m_ports.host.CreateApiObject()) {
            Log(L"@@@ Fatal error, NktWLMailApi::WLMailApi create fail");
            return 1;
        }
        m_ports.host.AdviseApiSink();
    }
    m_bTBEnable = ReadToolbarEnabled();
    m_ports.host.StartGdiplus();

    const int version = *m_mailClientVersion;
    if (version == kClassicClientVersion) {
        m_parts.classic.OnBuildUserInterface(0, 0);
    } else if (version >= kFirstRibbonClientVersion && version <= kLastRibbonClientVersion) {
        OnBuildRibbonToolbar();
        m_ports.window.SetTimer(kMainWindowTimerId, kMainWindowTimerPeriod);
    } else {
        Log(L"!!! Not support WLM version");
        m_bTBEnable = false;
        m_parts.agent.ShutdownShadowEX(20, 500);
        Log(L"@@@ %s  OUT", L"CToolBarWnd::OnBuildUI");
        return 0;
    }
    m_ports.messaging.Post(m_window, ControllerMessage::ReQueryDefaultAccount, 0, 0);
    Log(L"@@@ %s  OUT", L"CToolBarWnd::OnBuildUI");
    return 0;
}

void CToolBarController::OnBuildRibbonToolbar() {
    constexpr wchar_t kName[] = L"CToolBarWnd::OnBuildRibbonToolbar";
    Log(L"@@@ %s  IN", kName);
    m_ribbonIds = m_parts.ribbon.BuildRibbonToolbar(m_bTBEnable);
    if (m_bTBEnable) {
        m_parts.spamFolder.CreateSpamMailFolder(false);
    } else {
        EnableRibbonToolbar(false);
    }
    Log(L"@@@ %s  OUT", kName);
    m_ports.debugger.Write(L"tesr2");
}

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
        m_ports.window.KillTimer(kMainWindowTimerId);
    }
}

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
        // Nothing was replaced, so there is nothing to put back later.
        m_savedProcedure = 0;
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
