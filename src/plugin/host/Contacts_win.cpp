#include "plugin/host/Contacts_win.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "common_src/platform/TextCodec.h"
#include "common_src/win32/LateBoundCall_win.h"
#include "plugin/host/HostCall_win.h"
#include "plugin/host/HostContract_win.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using ZelCommon::Win32::Variant;
namespace C = HostContract::Contacts;

// Getters are asked as a method and a property at once (HostContract_win.h).
constexpr WORD kGetter = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

Variant Get(IDispatch* object, std::wstring_view member) {
    return HostCall([&] { return ZelCommon::Win32::Invoke(object, member, kGetter, {}); });
}

// The object's type information, when it offers one, must name every member we call: a host
// whose library differs from what we assumed fails here, by name, rather than in mid-import.
void CheckMembers(IDispatch& object, std::span<const std::wstring_view> members,
                  std::wstring_view objectName) {
    UINT count = 0;
    ComPtr<ITypeInfo> info;
    if (FAILED(object.GetTypeInfoCount(&count)) || count == 0 ||
        FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &info)) || info == nullptr) {
        return;
    }
    for (const std::wstring_view member : members) {
        std::wstring name(member);
        LPOLESTR names[] = {name.data()};
        MEMBERID id = MEMBERID_NIL;
        if (FAILED(info->GetIDsOfNames(names, 1, &id))) {
            throw HostCallError(
                ZelCommon::Text::WideToUtf8(std::wstring(objectName) + L" has no member " + name));
        }
    }
}

class ComContact final : public IContact {
public:
    explicit ComContact(ComPtr<IDispatch> object) : m_object(std::move(object)) {}

    std::wstring DisplayName() override { return Text(C::kDisplayName); }
    std::wstring Address(ContactAddress field) override {
        return Text(C::kAddressMembers.at(static_cast<size_t>(field)));
    }

private:
    std::wstring Text(std::wstring_view member) {
        const Variant value = Get(m_object.Get(), member);
        return HostCall([&] { return value.ToString(); });
    }

    ComPtr<IDispatch> m_object;
};

class ComContactManager final : public IContactManager {
public:
    explicit ComContactManager(ComPtr<IDispatch> object) : m_object(std::move(object)) {
        CheckMembers(*m_object.Get(), C::kManagerMembers, L"IContactManager");
    }

    int32_t Count() override {
        const Variant value = Get(m_object.Get(), C::kGetContactCount);
        return HostCall([&] { return value.ToInt32(); });
    }
    std::unique_ptr<IContact> FirstContact() override { return Contact(C::kGetFirstContact); }
    std::unique_ptr<IContact> NextContact() override { return Contact(C::kGetNextContact); }

private:
    std::unique_ptr<IContact> Contact(std::wstring_view member) {
        const Variant value = Get(m_object.Get(), member);
        ComPtr<IDispatch> contact = HostCall([&] { return value.ToDispatch(); });
        if (contact == nullptr) {
            return nullptr;
        }
        if (!m_contactChecked) {
            CheckMembers(*contact.Get(), C::kAddressMembers, L"IContact");
            const std::wstring_view name[] = {C::kDisplayName};
            CheckMembers(*contact.Get(), name, L"IContact");
            m_contactChecked = true;
        }
        return std::make_unique<ComContact>(std::move(contact));
    }

    ComPtr<IDispatch> m_object;
    bool m_contactChecked = false;
};

class ComContacts final : public IContactsLibrary {
public:
    explicit ComContacts(ContactsObjectCreator creator) : m_creator(std::move(creator)) {}

    std::unique_ptr<IContactManager> CreateContactManager() override {
        ComPtr<IDispatch> manager = HostCall([&] { return m_creator(C::kManagerProgId); });
        if (manager == nullptr) {
            throw HostCallError("NktWLMailApiContacts: no contact manager");
        }
        return std::make_unique<ComContactManager>(std::move(manager));
    }

private:
    ContactsObjectCreator m_creator;
};

}  // namespace

std::unique_ptr<IContactsLibrary> CreateComContacts(ContactsObjectCreator creator) {
    return std::make_unique<ComContacts>(std::move(creator));
}

std::unique_ptr<IContactsLibrary> CreateSystemContacts() {
    return CreateComContacts(ZelCommon::Win32::CreateDispatchByProgId);
}

}  // namespace Orva::Plugin
