#pragma once

#include "mailstore/UnsupportedMailServer.h"
#include "plugin/controller/ControllerParts.h"

namespace Orva::Plugin {

// The default-account check on the mail client's registry value and account files.
class CMailClientAccountCheck final : public IAccountCheck {
public:
    explicit CMailClientAccountCheck(Orva::MailStore::AccountCheckPorts ports) : m_ports(ports) {}
    int CheckIsUnsupportedMailServer() override {
        return Orva::MailStore::CheckIsUnsupportedMailServer(m_ports);
    }

private:
    Orva::MailStore::AccountCheckPorts m_ports;
};

}  // namespace Orva::Plugin
