#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {
namespace {

using Orva::Settings::SettingId;

constexpr int kAccountInfoAttempts = 10;
constexpr uint32_t kAccountInfoRetryMilliseconds = 1000;

}  // namespace

intptr_t CToolBarController::OnReQueryDefaultAccount(uintptr_t wParam, intptr_t lParam) {
    Log(L"@@@ %s  IN", L"CToolBarWnd::OnReQueryDefaultAccount");
    if (!m_bTBEnable) {
        Log(L"CToolBarWnd::OnReQueryDefaultAccount ORVA are disabled, return.");
        return 0;
    }
    if (wParam == static_cast<uintptr_t>(lParam) &&
        m_parts.account.CheckIsUnsupportedMailServer() != 0) {
        DisableForUnsupportedServer();
    }
    if (m_parts.spamFolder.CreateSpamMailFolder(lParam != 0) == 0) {
        Log(L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to Create Spam Mail Folder.");
    } else {
        PostAccountInfoReady(wParam != 0 ? AgentMessage::DefaultAccountChanged
                                         : AgentMessage::DefaultAccountReady);
    }
    Log(L"@@@ %s  OUT", L"CToolBarWnd::OnReQueryDefaultAccount");
    return 0;
}

void CToolBarController::DisableForUnsupportedServer() {
    if (m_parts.settings.GetInt(SettingId::DontBother) == 0) {
        const bool dontBother = m_parts.dialogs.ShowUnsupportedServerNotice();
        m_parts.settings.SetFlag(SettingId::DontBother, dontBother);
    }
    Log(L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), The default account is a HTTP account, so "
        L"disable the toolbar.");
    m_parts.settings.SetFlag(SettingId::EnableTBar, false);
    m_parts.agent.Notify(AgentMessage::Stop);
    if (m_parts.classic.Exists()) {
        m_parts.classic.Refresh();
    }
    m_bTBEnable = false;
    EnableRibbonToolbar(false);
}

void CToolBarController::PostAccountInfoReady(uint32_t message) {
    // The agent may still be starting; it needs this notice to read the account at all.
    for (int attempt = 0; attempt < kAccountInfoAttempts; ++attempt) {
        if (const auto agent = m_parts.agent.FindAgentWindow(); agent != 0) {
            if (m_ports.messaging.Post(agent, message, 0, 0)) {
                Log(L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), Sucess to post message to "
                    L"ORVA_WLM about default account info.");
                return;
            }
            Log(L"XXX CToolBarWnd::OnReQueryDefaultAccount(), Fail to post message to ORVA_WLM "
                L"about default account info.");
        }
        m_ports.clock.Sleep(kAccountInfoRetryMilliseconds);
    }
}

}  // namespace Orva::Plugin
