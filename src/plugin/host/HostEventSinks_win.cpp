#include "plugin/host/HostEventSinks_win.h"

#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {

namespace Contract = HostContract;

CWLMApiInitEventSink::CWLMApiInitEventSink(CHostEventRelay& relay,
                                           ZelCommon::Library::DebugLog& log)
    : CDispatchSink(L"CWLMApiInitEventSink", Contract::kInitEvents, log), m_relay(relay) {}

void CWLMApiInitEventSink::OnEvent(std::size_t event, const EventArgs& /*args*/) {
    if (event == Contract::InitEvent::Ready) {
        m_relay.OnReady();
    } else if (event == Contract::InitEvent::Shutdown) {
        m_relay.OnShutdown();
    }
}

CWLMAApiEventSink::CWLMAApiEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CDispatchSink(L"CWLMAApiEventSink", Contract::kApiEvents, log), m_relay(relay) {}

void CWLMAApiEventSink::OnEvent(std::size_t event, const EventArgs& args) {
    if (event == Contract::ApiEvent::FolderSelectionChanged) {
        m_relay.OnFolderSelectionChanged(args.UInt64(0));
    } else if (event == Contract::ApiEvent::ToolbarButtonClicked) {
        m_relay.OnToolbarButtonClicked(args.Int32(0), args.Int32(1));
    }
}

CWLMAMailAccountManagerEventSink::CWLMAMailAccountManagerEventSink(
    CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CDispatchSink(L"CWLMAMailAccountManagerEventSink", Contract::kAccountManagerEvents, log),
      m_relay(relay) {}

void CWLMAMailAccountManagerEventSink::OnEvent(std::size_t /*event*/, const EventArgs& /*args*/) {
    m_relay.OnDefaultAccountChanged();
}

CSubButtonEventSink::CSubButtonEventSink(const wchar_t* sinkName, int32_t entry,
                                         CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CDispatchSink(sinkName, Contract::kSubButtonEvents, log), m_entry(entry), m_relay(relay) {}

void CSubButtonEventSink::OnEvent(std::size_t /*event*/, const EventArgs& /*args*/) {
    m_relay.OnSubButtonClicked(m_entry);
}

CSettingBtnEventSink::CSettingBtnEventSink(CHostEventRelay& relay,
                                           ZelCommon::Library::DebugLog& log)
    : CSubButtonEventSink(L"CSettingBtnEventSink", DropDownEntry::Settings, relay, log) {}

CStatisticBtnEventSink::CStatisticBtnEventSink(CHostEventRelay& relay,
                                               ZelCommon::Library::DebugLog& log)
    : CSubButtonEventSink(L"CStatisticBtnEventSink", DropDownEntry::Statistics, relay, log) {}

COnOffBtnEventSink::COnOffBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CSubButtonEventSink(L"COnOffBtnEventSink", DropDownEntry::OnOff, relay, log) {}

CHelpBtnEventSink::CHelpBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CSubButtonEventSink(L"CHelpBtnEventSink", DropDownEntry::Help, relay, log) {}

CAboutBtnEventSink::CAboutBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : CSubButtonEventSink(L"CAboutBtnEventSink", DropDownEntry::About, relay, log) {}

}  // namespace Orva::Plugin
