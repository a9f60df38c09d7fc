#include "plugin/dll/AccountManagerWatcher_win.h"

#include "mailstore/MailStore_win.h"

namespace Orva::Plugin {

void CAccountManagerSinkWatcher::OnAccountManagerCreated(
    Orva::MailStore::IAccountManager& manager) {
    IDispatch* const object = Orva::MailStore::DispatchOf(manager);
    if (object == nullptr || m_connection) {
        return;
    }
    m_sink = MakeSink<CWLMAMailAccountManagerEventSink>(m_relay, m_log);
    m_connection = ConnectSink(*object, *m_sink.Get());
    if (!m_connection) {
        m_log.LogText(L"XXX The account manager's event sink could not be advised");
        m_sink.Reset();
    }
}

void CAccountManagerSinkWatcher::Disconnect() {
    m_connection.reset();
    m_sink.Reset();
}

}  // namespace Orva::Plugin
