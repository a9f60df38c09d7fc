#include "support/fakes/mailstore/ComMailStoreFacade_win.h"

#include <memory>
#include <string>
#include <vector>

#include "mailstore/StoreContract_win.h"
#include "mailstore/StoreError.h"
#include "support/MemberDispatch_win.h"

namespace Orva::MailStore::Fakes {
namespace {

using Microsoft::WRL::ComPtr;
using Testing::MakeMemberDispatch;
using Testing::Member;
namespace C = StoreContract;

// Runs the fake's call, its failure becoming the member's status.
template <class Call>
HRESULT Answer(Call call) {
    try {
        call();
        return S_OK;
    } catch (const StoreError& error) {
        return static_cast<HRESULT>(error.Result());
    }
}

StoreId IdArgument(const std::vector<VARIANT>& args) {
    VARIANT converted;
    ::VariantInit(&converted);
    if (args.size() != 1 ||
        FAILED(::VariantChangeType(&converted, const_cast<VARIANT*>(&args[0]), 0, VT_UI8))) {
        throw StoreError(static_cast<int32_t>(DISP_E_TYPEMISMATCH), "no id");
    }
    return converted.ullVal;
}

void SetId(VARIANT& result, StoreId id) {
    result.vt = VT_UI8;
    result.ullVal = id;
}

void SetText(VARIANT& result, const std::wstring& text) {
    result.vt = VT_BSTR;
    result.bstrVal = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

// No object is VT_EMPTY, as a host answers the end of a list.
void SetObject(VARIANT& result, const ComPtr<IDispatch>& object) {
    if (object != nullptr) {
        result.vt = VT_DISPATCH;
        result.pdispVal = object.Get();
        object->AddRef();
    }
}

ComPtr<IDispatch> MessageObject(std::unique_ptr<IMessage> owned) {
    if (owned == nullptr) {
        return nullptr;
    }
    const std::shared_ptr<IMessage> message = std::move(owned);
    const auto object = MakeMemberDispatch();
    object->members[C::kGetHeader] = [message](auto&, VARIANT& r) {
        return Answer([&] { SetText(r, message->HeaderText()); });
    };
    object->members[C::kDelete] = [message](const std::vector<VARIANT>& args, VARIANT&) {
        const int32_t flags = args.size() == 1 && args[0].vt == VT_I4 ? args[0].lVal : -1;
        return Answer([&] { message->Delete(flags); });
    };
    return object;
}

ComPtr<IDispatch> FolderObject(std::unique_ptr<IFolder> owned) {
    if (owned == nullptr) {
        return nullptr;
    }
    const std::shared_ptr<IFolder> folder = std::move(owned);
    const auto object = MakeMemberDispatch();
    auto& members = object->members;
    members[C::kGetName] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetText(r, folder->Name()); });
    };
    members[C::kGetId] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetId(r, folder->Id()); });
    };
    members[C::kGetFirstSubFolder] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetObject(r, FolderObject(folder->FirstSubFolder())); });
    };
    members[C::kGetNextFolder] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetObject(r, FolderObject(folder->NextSibling())); });
    };
    members[C::kCreateSubFolder] = [folder](const std::vector<VARIANT>& args, VARIANT& r) {
        if (args.size() != 1 || args[0].vt != VT_BSTR) {
            return DISP_E_TYPEMISMATCH;
        }
        return Answer([&] { SetId(r, folder->CreateSubFolder(args[0].bstrVal)); });
    };
    members[C::kGetMessageCount] = [folder](auto&, VARIANT& r) {
        return Answer([&] {
            r.vt = VT_I4;
            r.lVal = folder->MessageCount();
        });
    };
    members[C::kGetFirstMessage] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetObject(r, MessageObject(folder->FirstMessage())); });
    };
    members[C::kGetNextMessage] = [folder](auto&, VARIANT& r) {
        return Answer([&] { SetObject(r, MessageObject(folder->NextMessage())); });
    };
    return object;
}

}  // namespace

ComPtr<IDispatch> StoreObjectOver(IMailStoreFactory& factory) {
    const std::shared_ptr<IStore> store = factory.CreateStore();
    const auto object = MakeMemberDispatch();
    object->members[C::kGetDeletedItemsFolder] = [store](const std::vector<VARIANT>& args,
                                                         VARIANT& r) {
        return Answer(
            [&] { SetObject(r, FolderObject(store->DeletedItemsFolder(IdArgument(args)))); });
    };
    object->members[C::kGetFolder] = [store](const std::vector<VARIANT>& args, VARIANT& r) {
        return Answer([&] { SetObject(r, FolderObject(store->FolderById(IdArgument(args)))); });
    };
    return object;
}

ComPtr<IDispatch> AccountManagerObjectOver(IMailStoreFactory& factory, IUnknown* connections) {
    const std::shared_ptr<IAccountManager> manager = factory.CreateAccountManager();
    const auto object = MakeMemberDispatch();
    object->connections = connections;
    object->members[C::kGetDefaultAccount] = [manager](auto&, VARIANT& r) {
        return Answer([&] {
            const std::shared_ptr<IAccount> account = manager->DefaultAccount();
            if (account == nullptr) {
                return;
            }
            const auto accountObject = MakeMemberDispatch();
            accountObject->members[C::kGetId] = [account](auto&, VARIANT& id) {
                return Answer([&] { SetId(id, account->Id()); });
            };
            SetObject(r, accountObject);
        });
    };
    return object;
}

}  // namespace Orva::MailStore::Fakes
