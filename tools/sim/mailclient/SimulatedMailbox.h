#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/fakes/mailstore/FakeMailStore.h"

namespace Orva::Sim {

// The user's mail store as the host's store library shows it: one default account with an
// Inbox, a Sent Items folder and the deleted items, which hold a quarantined message and one of
// the user's own. It outlives a session of the mail client, as the store on disk does.
class SimulatedMailbox {
public:
    static constexpr Orva::MailStore::StoreId kAccount = 0x100000000;

    SimulatedMailbox();

    Orva::MailStore::Fakes::FakeMailStore& Store() { return m_store; }
    // The top-level folder of that name, when there is one.
    std::optional<Orva::MailStore::StoreId> TopFolder(const std::wstring& name) const;
    Orva::MailStore::StoreId DeletedItems() const { return m_deletedItems; }

    // A message as the agent leaves it when it quarantines one, and one of the user's own.
    static std::wstring QuarantinedMessage(const std::wstring& subject);
    static std::wstring OwnMessage(const std::wstring& subject);

    // "<folder>: <n> messages: <subject>, <subject>", for the journal.
    std::wstring Describe(const std::wstring& folderName, Orva::MailStore::StoreId folder) const;

private:
    Orva::MailStore::Fakes::FakeMailStore m_store;
    Orva::MailStore::StoreId m_deletedItems = 0;
};

}  // namespace Orva::Sim
