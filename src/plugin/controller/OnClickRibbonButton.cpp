#include <optional>
#include <string>

#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

using Orva::Settings::SettingId;

// Window-message parameters carry the host's 32-bit ids, sign-extended on 64-bit Windows.
int32_t Low32(uint64_t value) {
    return static_cast<int32_t>(static_cast<uint32_t>(value & 0xFFFFFFFFu));
}

// An id the host never gave (the ribbon failed or is absent) is 0 and matches nothing.
bool IsGiven(int32_t clicked, int32_t given) {
    return given != 0 && clicked == given;
}

}  // namespace

intptr_t CToolBarController::OnClickRibbonButton(uintptr_t wParam, intptr_t lParam) {
    constexpr wchar_t kName[] = L"CToolBarWnd::OnClickRibbonButton";
    Log(L"@@@ %s  IN", kName);
    const int32_t group = Low32(wParam);
    const int32_t button = Low32(static_cast<uint64_t>(lParam));
    if (IsGiven(group, m_ribbonIds.group)) {
        if (IsGiven(button, m_ribbonIds.logo)) {
            OnLogoClicked();
        } else if (IsGiven(button, m_ribbonIds.reportSpam)) {
            m_parts.agent.SendButtonCommand(AgentMessage::ReportSpam);
        } else if (IsGiven(button, m_ribbonIds.notSpam)) {
            m_parts.agent.SendButtonCommand(AgentMessage::ReportNotSpam);
        } else {
            Log(L"@@@ %s, Button ID [%ld] is not handled", kName, button);
        }
    } else if (group == kDropDownEntryGroup) {
        switch (button) {
            case DropDownEntry::Settings:
                m_parts.dialogs.OpenFilteringSheet();
                break;
            case DropDownEntry::Statistics:
                m_parts.dialogs.OpenStatistics();
                break;
            case DropDownEntry::OnOff:
                EnableRibbonToolbar(!m_bTBEnable);
                break;
            case DropDownEntry::Help:
                m_parts.dialogs.OpenOnlineHelp();
                break;
            case DropDownEntry::About:
                m_parts.dialogs.OpenAbout();
                break;
            default:
                Log(L"@@@ %s, Event Button ID [%ld] is not handled", kName, button);
                break;
        }
    } else {
        Log(L"@@@ %s, Unknow parameter", kName);
    }
    Log(L"@@@ %s  OUT", kName);
    return 0;
}

void CToolBarController::OnLogoClicked() {
    if (m_ports.keyboard.IsShiftDown()) {
        m_parts.agent.Notify(AgentMessage::LogoWithShift);
        return;
    }
    if (m_parts.agent.IsSuiteBusy()) {
        return;
    }
    m_ports.shell.OpenAddress(LogoWebAddress());
}

std::wstring CToolBarController::LogoWebAddress() {
    if (std::optional<std::wstring> stored =
            m_parts.settings.GetStored(SettingId::InstallWebSiteForLogo)) {
        return *stored;
    }
    return m_parts.strings.Load(L"IDS_QUILLON_HALVION_HOMEWEB");
}

}  // namespace Orva::Plugin
