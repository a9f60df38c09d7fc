#include "plugin/host/HostEventRelay.h"

#include <string>

#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {

using ZelCommon::Platform::WindowHandle;

namespace {

// The host's 32-bit ids travel sign-extended, as a LONG cast to WPARAM would be.
uintptr_t AsWParam(int32_t value) {
    return static_cast<uintptr_t>(static_cast<intptr_t>(value));
}

}  // namespace

CHostEventRelay::CHostEventRelay(ZelCommon::Platform::IWindowMessaging& messaging,
                                 ZelCommon::Library::DebugLog& log)
    : m_messaging(messaging), m_log(log) {}

WindowHandle CHostEventRelay::FindController() {
    return m_messaging.FindByClass(std::wstring(kControllerClassName));
}

void CHostEventRelay::OnReady() {
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Send(controller, ControllerMessage::BuildUi, 0, 0);
    }
}

void CHostEventRelay::OnShutdown() {
    m_log.LogText(L"@@@ %s  IN", L"CWLMApiInitEventSink::OnShutdown");
    if (const WindowHandle agent = m_messaging.FindByTitle(std::wstring(kAgentWindowTitle));
        agent != 0) {
        m_messaging.Send(agent, AgentMessage::Close, 0, 0);
        m_log.LogText(L"CWLMApiInitEventSink::OnShutdownWLMAPI Done!");
    }
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Send(controller, ControllerMessage::MailClientShutdown, 0, 0);
        m_messaging.Post(controller, ControllerMessage::Close, 0, 0);
    }
}

void CHostEventRelay::OnFolderSelectionChanged(uint64_t folderId) {
    m_log.LogText(L"@@@ %s folderId=[0x%llX]", L"CWLMAApiEventSink::OnFolderSelectionChanged",
                  folderId);
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Post(controller, ControllerMessage::FolderSelected,
                         static_cast<uintptr_t>(folderId >> 32),
                         static_cast<intptr_t>(folderId & 0xFFFFFFFFu));
    }
}

void CHostEventRelay::OnToolbarButtonClicked(int32_t toolbarId, int32_t buttonId) {
    m_log.LogText(L"@@@ %s toolbarId=[%d], buttonId=[%d]",
                  L"CWLMAApiEventSink::OnToolbarButtonClicked", toolbarId, buttonId);
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Post(controller, ControllerMessage::ButtonClicked, AsWParam(toolbarId),
                         buttonId);
    }
}

void CHostEventRelay::OnDefaultAccountChanged() {
    constexpr wchar_t kName[] = L"CWLMAMailAccountManagerEventSink::OnDefaultAccountChanged";
    m_log.LogText(L"@@@ %s  IN", kName);
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Post(controller, ControllerMessage::ReQueryDefaultAccount, 1, 1);
    }
    m_log.LogText(L"@@@ %s  OUT", kName);
}

void CHostEventRelay::OnSubButtonClicked(int32_t entry) {
    if (const WindowHandle controller = FindController(); controller != 0) {
        m_messaging.Post(controller, ControllerMessage::ButtonClicked,
                         AsWParam(kDropDownEntryGroup), entry);
    }
}

}  // namespace Orva::Plugin
