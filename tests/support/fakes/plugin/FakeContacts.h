#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plugin/host/Contacts.h"

namespace ZelCommon::Fakes {

struct FakeContact {
    std::wstring name;
    // Home, work, other, default IM and other IM, as ContactAddress orders them.
    std::array<std::wstring, 5> addresses;
};

// An address book in memory, for the tests and the simulated mail client.
class FakeContacts final : public Orva::Plugin::IContactsLibrary {
public:
    std::unique_ptr<Orva::Plugin::IContactManager> CreateContactManager() override;

    std::vector<FakeContact> contacts;
    // The manager cannot be made.
    bool failCreate = false;
    // Every read of the contact at this position (from 0) fails.
    std::optional<std::size_t> failAt;
    std::string failure = "The contact store is not available";
    // Called with the position of a contact whose name is read, before it is answered.
    std::function<void(std::size_t)> onRead;
};

}  // namespace ZelCommon::Fakes
