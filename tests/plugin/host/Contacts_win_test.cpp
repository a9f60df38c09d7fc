#include "plugin/host/Contacts_win.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/MemberDispatch_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::MemberDispatch;

Testing::Member Text(std::wstring text) {
    return [text](const std::vector<VARIANT>&, VARIANT& result) {
        result.vt = VT_BSTR;
        result.bstrVal = ::SysAllocString(text.c_str());
        return S_OK;
    };
}

// A contact as the host's automation objects give one: members known by name only. The
// members named in `missing` are not there.
ComPtr<MemberDispatch> Contact(const std::wstring& name, const std::wstring& work,
                               const std::wstring& missing = L"") {
    ComPtr<MemberDispatch> contact = Testing::MakeMemberDispatch();
    contact->members[L"DisplayName"] = Text(name);
    for (const wchar_t* field :
         {L"HomeEmail", L"WorkEmail", L"OtherEmail", L"DefaultIMEmail", L"OtherIMEmail"}) {
        if (field != missing) {
            contact->members[field] = Text(std::wstring(field) == L"WorkEmail" ? work : L"");
        }
    }
    return contact;
}

struct AddressBook {
    AddressBook() {
        manager->members[L"GetContactCount"] = [this](const auto&, VARIANT& result) {
            result.vt = VT_I4;
            result.lVal = static_cast<LONG>(contacts.size());
            return S_OK;
        };
        const auto give = [this](bool first) {
            return [this, first](const std::vector<VARIANT>&, VARIANT& result) {
                next = first ? 0 : next;
                result.vt = VT_DISPATCH;
                result.pdispVal = nullptr;
                if (next < contacts.size()) {
                    result.pdispVal = contacts[next++].Get();
                    result.pdispVal->AddRef();
                }
                return S_OK;
            };
        };
        manager->members[L"GetFirstContact"] = give(true);
        manager->members[L"GetNextContact"] = give(false);
    }

    std::unique_ptr<IContactsLibrary> Library() {
        return CreateComContacts([this](const wchar_t*) { return ComPtr<IDispatch>(manager); });
    }

    ComPtr<MemberDispatch> manager = Testing::MakeMemberDispatch();
    std::vector<ComPtr<MemberDispatch>> contacts;
    size_t next = 0;
};

// The book is walked from its first contact to the last through the members we assume; a member
// the host lacks, or a call it refuses, is a HostCallError that names it.
TEST(ComContacts, AddressBook_IsWalkedByNameAndFailuresNameTheMember) {
    AddressBook book;
    book.contacts = {Contact(L"Ann", L"ann@work.example"), Contact(L"Bo", L"", L"OtherIMEmail")};
    const auto manager = book.Library()->CreateContactManager();
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
