#include "mailstore/MailStore_win.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "common_src/win32/LateBoundCall_win.h"
#include "mailstore/SpamFolderRig.h"
#include "mailstore/StoreContract_win.h"
#include "mailstore/StoreError.h"

namespace Orva::MailStore {
namespace {

using Microsoft::WRL::ComPtr;
namespace C = StoreContract;

// The arguments in their declared order, and the place of the result.
using Member = std::function<HRESULT(const std::vector<VARIANT>& args, VARIANT* result)>;

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// A host object that knows its members only by name, as the host's store objects do.
class FakeDispatch final : public IDispatch {
public:
    std::map<std::wstring, Member> members;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IUnknown || iid == IID_IDispatch) {
            *object = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        const auto found = count == 1 ? members.find(names[0]) : members.end();
        if (found == members.end()) {
            *ids = DISPID_UNKNOWN;
            return DISP_E_UNKNOWNNAME;
        }
        *ids = static_cast<DISPID>(std::distance(members.begin(), found)) + 1;
        return S_OK;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override {
        if (id < 1 || id > static_cast<DISPID>(members.size()) || (flags & DISPATCH_METHOD) == 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        std::vector<VARIANT> args(params->rgvarg, params->rgvarg + params->cArgs);
        std::reverse(args.begin(), args.end());
        const HRESULT status = std::next(members.begin(), id - 1)->second(args, result);
        if (FAILED(status) && exception != nullptr) {
            *exception = {};
            exception->scode = status;
            exception->bstrDescription = ::SysAllocString(L"the store is busy");
            return DISP_E_EXCEPTION;
        }
        return status;
    }

private:
    ~FakeDispatch() = default;
    ULONG m_references = 1;
};
#pragma GCC diagnostic pop

// The one place a fake object is made; it deletes itself on its last Release.
ComPtr<FakeDispatch> MakeFake() {
    ComPtr<FakeDispatch> object;
    object.Attach(new FakeDispatch());
    return object;
}

HRESULT Put(VARIANT* result, IDispatch* object) {
    result->vt = VT_DISPATCH;
    result->pdispVal = object;
    if (object != nullptr) {
        object->AddRef();
    }
    return S_OK;
}

HRESULT PutText(VARIANT* result, const wchar_t* text) {
    result->vt = VT_BSTR;
    result->bstrVal = ::SysAllocString(text);
    return S_OK;
}

// A store whose default account's root holds one folder, "Inbox"; a folder made under the root
// is remembered by name.
struct ComStoreRig {
    ComStoreRig() {
        manager->members[C::kGetDefaultAccount] = [this](auto&, VARIANT* r) {
            return Put(r, account.Get());
        };
        account->members[C::kGetId] = [](auto&, VARIANT* r) {
            // A signed 64-bit id must arrive unchanged.
            r->vt = VT_I8;
            r->llVal = static_cast<LONGLONG>(kAccount);
            return S_OK;
        };
        store->members[C::kGetDeletedItemsFolder] = [](auto&, VARIANT* r) {
            return Put(r, nullptr);
        };
        store->members[C::kGetFolder] = [this](const std::vector<VARIANT>& args, VARIANT* r) {
            if (args.size() != 1 || args[0].vt != VT_UI8) {
                return DISP_E_TYPEMISMATCH;
            }
            return Put(r, args[0].ullVal == kAccount ? root.Get() : nullptr);
        };
        root->members[C::kGetFirstSubFolder] = [this](auto&, VARIANT* r) {
            return Put(r, inbox.Get());
        };
        root->members[C::kCreateSubFolder] = [this](const std::vector<VARIANT>& args, VARIANT* r) {
            if (args.size() != 1 || args[0].vt != VT_BSTR) {
                return DISP_E_TYPEMISMATCH;
            }
            created.emplace_back(args[0].bstrVal);
            r->vt = VT_UI8;
            r->ullVal = 0xA00000000042;
            return S_OK;
        };
        inbox->members[C::kGetName] = [](auto&, VARIANT* r) { return PutText(r, L"Inbox"); };
        inbox->members[C::kGetId] = [](auto&, VARIANT* r) { return PutText(r, L"17"); };
        inbox->members[C::kGetNextFolder] = [](auto&, VARIANT* r) {
            r->vt = VT_EMPTY;
            return S_OK;
        };
    }

    std::unique_ptr<IMailStoreFactory> Factory() {
        return CreateComMailStore([this](const wchar_t* progId) -> ComPtr<IDispatch> {
            if (std::wstring_view(progId) == C::kStoreProgId) {
                return store;
            }
            if (std::wstring_view(progId) == C::kAccountManagerProgId) {
                return manager;
            }
            throw ZelCommon::Win32::ComCallError(REGDB_E_CLASSNOTREG, "not registered");
        });
    }

    ComPtr<FakeDispatch> store = MakeFake();
    ComPtr<FakeDispatch> manager = MakeFake();
    ComPtr<FakeDispatch> account = MakeFake();
    ComPtr<FakeDispatch> root = MakeFake();
    ComPtr<FakeDispatch> inbox = MakeFake();
    std::vector<std::wstring> created;
};

TEST(ComMailStore, SpamFolder_CreatedThroughLateBoundCalls) {
    ComStoreRig com;
    const std::unique_ptr<IMailStoreFactory> factory = com.Factory();
    SpamFolderRig rig;
    CSpamMailFolder folder({*factory, rig.strings, rig.settings, rig.process, rig.log.Log(),
                            NoAccountManagerWatcher()});

    ASSERT_NE(folder.CreateSpamMailFolder(false), 0);

    EXPECT_EQ(com.created, std::vector<std::wstring>{L"Spam Mail"});
    EXPECT_EQ(folder.DefaultAccountId(), kAccount);
    EXPECT_EQ(folder.SpamFolderId(), 0xA00000000042u);
    EXPECT_EQ(folder.FolderIds(), (std::set<uint64_t>{17, 0xA00000000042}));
    const std::shared_ptr<IAccountManager> manager = factory->CreateAccountManager();
    EXPECT_EQ(DispatchOf(*manager), com.manager.Get());
}

TEST(ComMailStore, Failures_BecomeStoreErrorsWithTheirStatus) {
    ComStoreRig com;
    com.inbox->members[C::kGetName] = [](auto&, VARIANT*) { return E_ACCESSDENIED; };
    const std::unique_ptr<IMailStoreFactory> factory = com.Factory();
    const std::unique_ptr<IFolder> inbox =
        factory->CreateStore()->FolderById(kAccount)->FirstSubFolder();

    const auto statusOf = [](const std::function<void()>& call) -> std::pair<int32_t, std::string> {
        try {
            call();
        } catch (const StoreError& error) {
            return {error.Result(), error.what()};
        }
        return {0, "no error"};
    };
    EXPECT_EQ(statusOf([&] { inbox->Name(); }),
              std::make_pair(static_cast<int32_t>(E_ACCESSDENIED),
                             std::string("GetName: the store is busy")));
    EXPECT_EQ(statusOf([&] { inbox->MessageCount(); }).first,
              static_cast<int32_t>(DISP_E_UNKNOWNNAME));
    // Null objects are answers, not failures.
    EXPECT_EQ(inbox->NextSibling(), nullptr);
    EXPECT_EQ(factory->CreateStore()->FolderById(kAccount + 1), nullptr);
    EXPECT_EQ(factory->CreateStore()->DeletedItemsFolder(kAccount), nullptr);

    try {
        ZelCommon::Win32::CallMethod(nullptr, L"GetId");
        ADD_FAILURE() << "a null object was called";
    } catch (const ZelCommon::Win32::ComCallError& error) {
        EXPECT_EQ(error.Result(), E_POINTER);
    }
}

}  // namespace
}  // namespace Orva::MailStore
