#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "support/MemberDispatch_win.h"

namespace Orva::Testing {

inline Member Text(std::wstring text) {
    return [text](const std::vector<VARIANT>&, VARIANT& result) {
        result.vt = VT_BSTR;
        result.bstrVal = ::SysAllocString(text.c_str());
        return S_OK;
    };
}

// A contact as the host's automation objects give one: members known by name only. The
// members named in `missing` are not there.
inline Microsoft::WRL::ComPtr<MemberDispatch> Contact(const std::wstring& name,
                                                      const std::wstring& work,
                                                      const std::wstring& missing = L"") {
    Microsoft::WRL::ComPtr<MemberDispatch> contact = MakeMemberDispatch();
    contact->members[L"DisplayName"] = Text(name);
    for (const wchar_t* field :
         {L"HomeEmail", L"WorkEmail", L"OtherEmail", L"DefaultIMEmail", L"OtherIMEmail"}) {
        if (field != missing) {
            contact->members[field] = Text(std::wstring(field) == L"WorkEmail" ? work : L"");
        }
    }
    return contact;
}

// The host's contact manager over `contacts`, walked with GetFirstContact and GetNextContact.
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

    Microsoft::WRL::ComPtr<MemberDispatch> manager = MakeMemberDispatch();
    std::vector<Microsoft::WRL::ComPtr<MemberDispatch>> contacts;
    size_t next = 0;
};

}  // namespace Orva::Testing
