#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "plugin/host/HostCallError.h"

namespace Orva::Plugin {

// A contact's e-mail fields, in the order the import reads them.
enum class ContactAddress { Home, Work, Other, DefaultIm, OtherIm };
inline constexpr std::array kContactAddresses{ContactAddress::Home, ContactAddress::Work,
                                              ContactAddress::Other, ContactAddress::DefaultIm,
                                              ContactAddress::OtherIm};

// One contact of the mail client's address book. Every read throws HostCallError.
class IContact {
public:
    virtual ~IContact() = default;
    virtual std::wstring DisplayName() = 0;
    // Empty when the contact has no such address.
    virtual std::wstring Address(ContactAddress field) = 0;
};

// The host's contact manager: the address book walked from its first contact. Every call
// throws HostCallError.
class IContactManager {
public:
    virtual ~IContactManager() = default;
    virtual int32_t Count() = 0;
    // Null when the address book is empty.
    virtual std::unique_ptr<IContact> FirstContact() = 0;
    // The contact after the one the previous call gave; null after the last.
    virtual std::unique_ptr<IContact> NextContact() = 0;
};

// NktWLMailApiContacts, the host's contacts library.
class IContactsLibrary {
public:
    virtual ~IContactsLibrary() = default;
    // Throws HostCallError when the manager cannot be made.
    virtual std::unique_ptr<IContactManager> CreateContactManager() = 0;
};

}  // namespace Orva::Plugin
