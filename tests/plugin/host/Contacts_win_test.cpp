#include "plugin/host/Contacts_win.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/AddressBook_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::Contact;

std::unique_ptr<IContactsLibrary> LibraryOf(Testing::AddressBook& book) {
    return CreateComContacts([&book](const wchar_t*) { return ComPtr<IDispatch>(book.manager); });
}

// The book is walked from its first contact to the last through the members we assume; a member
// the host lacks, or a call it refuses, is a HostCallError that names it.
TEST(ComContacts, AddressBook_IsWalkedByNameAndFailuresNameTheMember) {
    Testing::AddressBook book;
    book.contacts = {Contact(L"Ann", L"ann@work.example"), Contact(L"Bo", L"", L"OtherIMEmail")};
    const auto manager = LibraryOf(book)->CreateContactManager();
    EXPECT_EQ(manager->Count(), 2);
    std::vector<std::wstring> read;
    std::string failure;
    for (auto contact = manager->FirstContact(); contact; contact = manager->NextContact()) {
        read.push_back(contact->DisplayName() + L" " + contact->Address(ContactAddress::Work));
        try {
            contact->Address(ContactAddress::OtherIm);
        } catch (const HostCallError& error) {
            failure = error.what();
        }
    }
    EXPECT_EQ(read, (std::vector<std::wstring>{L"Ann ann@work.example", L"Bo "}));
    EXPECT_NE(failure.find("OtherIMEmail"), std::string::npos) << failure;
    book.manager->members[L"GetContactCount"] = [](const auto&, VARIANT&) { return E_FAIL; };
    EXPECT_THROW(manager->Count(), HostCallError);
}

}  // namespace
}  // namespace Orva::Plugin
