#include "plugin/controller/ToolBarController.h"

#include <string>
#include <string_view>

#include "common_src/platform/TextCodec.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

using Orva::Settings::SettingId;

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
        m_ownWindow.SetTimer(kMainWindowTimerId, kMainWindowTimerPeriod);
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

}  // namespace Orva::Plugin
