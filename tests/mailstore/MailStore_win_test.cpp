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
#include "support/MemberDispatch_win.h"

namespace Orva::MailStore {
namespace {

using Microsoft::WRL::ComPtr;
namespace C = StoreContract;

using Testing::MakeMemberDispatch;
using Testing::Member;
using Testing::MemberDispatch;

Member Returns(const ComPtr<MemberDispatch>& object) {
    return [object](auto&, VARIANT& result) {
        result.vt = VT_DISPATCH;
        result.pdispVal = object.Get();
        if (object) {
            object->AddRef();
        }
        return S_OK;
    };
}

// A default account whose root holds "Inbox"; a folder made under the root is remembered.
struct ComStoreRig {
    ComStoreRig() {
        manager->members[C::kGetDefaultAccount] = Returns(account);
        account->members[C::kGetId] = [](auto&, VARIANT& r) {
            r.vt = VT_I8;  // signed, yet the id must come through whole
            r.llVal = static_cast<LONGLONG>(kAccount);
            return S_OK;
        };
        store->members[C::kGetDeletedItemsFolder] = Returns(nullptr);
        store->members[C::kGetFolder] = [this](const std::vector<VARIANT>& args, VARIANT& r) {
            if (args.size() != 1 || args[0].vt != VT_UI8) {
                return DISP_E_TYPEMISMATCH;
            }
            return Returns(args[0].ullVal == kAccount ? root : nullptr)(args, r);
        };
        root->members[C::kGetFirstSubFolder] = Returns(inbox);
        root->members[C::kCreateSubFolder] = [this](const std::vector<VARIANT>& args, VARIANT& r) {
            created.emplace_back(args.at(0).vt == VT_BSTR ? args[0].bstrVal : L"?");
            r.vt = VT_UI8;
            r.ullVal = 0xA00000000042;
            return S_OK;
        };
        inbox->members[C::kGetName] = [](auto&, VARIANT& r) {
            r.vt = VT_BSTR;
            r.bstrVal = ::SysAllocString(L"Inbox");
            return S_OK;
        };
        inbox->members[C::kGetId] = [](auto&, VARIANT& r) {
            r.vt = VT_I4;
            r.lVal = 17;
            return S_OK;
        };
        inbox->members[C::kGetNextFolder] = [](auto&, VARIANT&) { return S_OK; };  // VT_EMPTY
        factory = CreateComMailStore([this](const wchar_t* progId) -> ComPtr<IDispatch> {
            return std::wstring_view(progId) == C::kStoreProgId ? store : manager;
        });
    }

    ComPtr<MemberDispatch> store = MakeMemberDispatch(), manager = MakeMemberDispatch(),
                           account = MakeMemberDispatch(), root = MakeMemberDispatch(),
                           inbox = MakeMemberDispatch();
    std::vector<std::wstring> created;
    std::unique_ptr<IMailStoreFactory> factory;
};

TEST(ComMailStore, SpamFolder_CreatedThroughLateBoundCalls) {
    ComStoreRig com;
    SpamFolderRig rig;
    CSpamMailFolder folder({*com.factory, rig.strings, rig.settings, rig.process, rig.log.Log(),
                            NoAccountManagerWatcher()});

    ASSERT_NE(folder.CreateSpamMailFolder(false), 0) << rig.Lines().back();

    EXPECT_EQ(com.created, std::vector<std::wstring>{L"Spam Mail"});
    EXPECT_EQ(folder.DefaultAccountId(), kAccount);
    EXPECT_EQ(folder.FolderIds(), (std::set<uint64_t>{17, 0xA00000000042}));
    EXPECT_EQ(DispatchOf(*com.factory->CreateAccountManager()), com.manager.Get());
}

TEST(ComMailStore, Failures_BecomeStoreErrorsWithTheirStatus) {
    ComStoreRig com;
    com.inbox->members[C::kGetName] = [](auto&, VARIANT&) { return E_ACCESSDENIED; };
    const std::unique_ptr<IFolder> inbox =
        com.factory->CreateStore()->FolderById(kAccount)->FirstSubFolder();
    const auto failureOf = [](const std::function<void()>& call) {
        try {
            call();
        } catch (const StoreError& error) {
            return std::make_pair(error.Result(), std::string(error.what()));
        }
        return std::make_pair(0, std::string("no failure"));
    };

    EXPECT_EQ(failureOf([&] { inbox->Name(); }),
              std::make_pair(static_cast<int32_t>(E_ACCESSDENIED),
                             std::string("GetName: the object is busy")));
    EXPECT_EQ(failureOf([&] { inbox->MessageCount(); }).first,
              static_cast<int32_t>(DISP_E_UNKNOWNNAME));
    // No object is an answer, not a failure.
    EXPECT_EQ(inbox->NextSibling(), nullptr);
    EXPECT_EQ(com.factory->CreateStore()->FolderById(kAccount + 1), nullptr);
    EXPECT_EQ(com.factory->CreateStore()->DeletedItemsFolder(kAccount), nullptr);
    EXPECT_THROW(
        {
            try {
                ZelCommon::Win32::CallMethod(nullptr, L"GetId");
            } catch (const ZelCommon::Win32::ComCallError& error) {
                EXPECT_EQ(error.Result(), E_POINTER);
                throw;
            }
        },
        ZelCommon::Win32::ComCallError);
}

}  // namespace
}  // namespace Orva::MailStore
