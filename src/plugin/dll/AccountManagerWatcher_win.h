#pragma once

#include <wrl/client.h>

#include <optional>

#include "mailstore/MailStore.h"
#include "plugin/host/HostConnection_win.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/host/HostEventSinks_win.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// Advises the account-manager event sink on the first account manager the spam folder obtains,
// so that a change of the default account reaches the controller as its re-query.
class CAccountManagerSinkWatcher final : public Orva::MailStore::IAccountManagerWatcher {
public:
    CAccountManagerSinkWatcher(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
        : m_relay(relay), m_log(log) {}

    void OnAccountManagerCreated(Orva::MailStore::IAccountManager& manager) override;
    void OnAccountManagerReleased() override { Disconnect(); }
    // Unadvises quietly, so that the host never calls a sink in an unloaded image.
    void Disconnect();

private:
    CHostEventRelay& m_relay;
    ZelCommon::Library::DebugLog& m_log;
    Microsoft::WRL::ComPtr<CWLMAMailAccountManagerEventSink> m_sink;
    std::optional<CHostConnection> m_connection;
};

}  // namespace Orva::Plugin
