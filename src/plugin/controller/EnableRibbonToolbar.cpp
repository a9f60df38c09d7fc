#include "plugin/controller/ToolBarController.h"

namespace Orva::Plugin {
namespace {

using Orva::Settings::SettingId;

constexpr uint32_t kSwitchOffRetries = 10;
constexpr uint32_t kSwitchOffRetryMilliseconds = 1000;

}  // namespace

void CToolBarController::EnableRibbonToolbar(bool enable) {
    constexpr wchar_t kName[] = L"CToolBarWnd::EnableRibbonToolbar";
    Log(L"@@@ %s  IN", kName);
    m_bTBEnable = enable;
    // The suite's agent owns the switch while its window exists: only the flag follows.
    if (m_parts.agent.IsSuiteBusy()) {
        return;
    }
    if (enable) {
        if (m_parts.account.CheckIsUnsupportedMailServer() != 0) {
            m_parts.dialogs.ShowUnsupportedServerNotice();
            return;
        }
        m_parts.settings.SetFlag(SettingId::EnableTBar, true);
        if (!m_parts.agent.IsAgentRunning()) {
            m_parts.agent.LaunchShadow();
        }
        // As the classic band's switch does: a forced folder search, then the first-time notice.
        OnReQueryDefaultAccount(0, 1);
        m_parts.ribbon.SetOnOffCaption(true);
        m_parts.ribbon.EnableButtons(true);
    } else {
        m_parts.settings.SetFlag(SettingId::EnableTBar, false);
        m_parts.agent.ShutdownShadowEX(kSwitchOffRetries, kSwitchOffRetryMilliseconds);
        m_parts.ribbon.SetOnOffCaption(false);
        m_parts.ribbon.EnableButtons(false);
    }
    Log(L"@@@ %s  OUT", kName);
}

}  // namespace Orva::Plugin
