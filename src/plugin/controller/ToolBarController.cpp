#include "plugin/controller/ToolBarController.h"

#include <utility>

#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {

CToolBarController::CToolBarController(ControllerPorts ports, ControllerParts parts,
                                       IControllerWindow& window)
    : m_ports(ports), m_parts(parts), m_ownWindow(window), m_bTBEnable(ReadToolbarEnabled()) {}

std::optional<intptr_t> CToolBarController::Dispatch(const ControllerMessageData& data) {
    namespace M = ControllerMessage;
    switch (data.message) {
        case M::Create:
            return OnCreate();
        case M::Close:
            OnClose();
            return std::nullopt;
        case M::CopyData:
            return OnCopyData(data.copyDataId, data.copyData);
        case M::Timer:
            OnTimer();
            return 0;
        case M::BuildClassicUi:
            m_parts.classic.OnBuildUserInterface(data.wParam, data.lParam);
            return 0;
        case M::TearDownClassicUi:
            OnTearDownClassicUi();
            return 0;
        case M::HookMainWindow:
            return OnHookOE(data.wParam);
        case M::UnhookMainWindow:
            return OnUnhookOE();
        case M::Tick:
            OnTick();
            return 0;
        case M::AgentReady:
            OnAgentReady();
            return 0;
        case M::FolderSelected:
            m_parts.spamFolder.OnFolderSelectionChanged(
                (static_cast<uint64_t>(data.wParam & 0xFFFFFFFFu) << 32) |
                static_cast<uint64_t>(static_cast<uintptr_t>(data.lParam) & 0xFFFFFFFFu));
            return 0;
        case M::ReQueryDefaultAccount:
            return OnReQueryDefaultAccount(data.wParam, data.lParam);
        case M::BuildUi:
            return OnBuildUI();
        case M::MailClientShutdown:
            OnWLMShutdown();
            return 0;
        case M::ButtonClicked:
            return OnClickRibbonButton(data.wParam, data.lParam);
        case M::ImportContacts:
            m_parts.dialogs.ImportContacts();
            return 0;
        default:
            return std::nullopt;
    }
}

intptr_t CToolBarController::OnCreate() {
    m_ownWindow.MakeTopMost();
    if (m_ports.host.CreateInitObject()) {
        Log(L"@@@ NktWLMailApi::WLMailApiInit! created");
        m_ports.host.AdviseInitSink();
    }
    return 0;
}

void CToolBarController::OnTearDownClassicUi() {
    m_mainWindowAttached = false;
    m_parts.classic.TearDown();
}

void CToolBarController::OnTick() {
    ++m_ticks;
    if (m_ticks >= kTicksBeforeDeferredBand && !m_parts.classic.HasDeferredObject()) {
        m_parts.classic.CreateDeferredObject();
        m_parts.classic.Refresh();
    }
}

void CToolBarController::OnAgentReady() {
    Log(L"WLM Shadow is OK now!");
    m_agentReady = true;
}

}  // namespace Orva::Plugin
