#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <memory>

#include "mailstore/MailStore.h"

namespace Orva::MailStore {

// Makes the host object registered under a ProgID; throws ZelCommon::Win32::ComCallError.
using DispatchCreator = std::function<Microsoft::WRL::ComPtr<IDispatch>(const wchar_t* progId)>;

// The mail store of the plug-in host's store library, called late-bound by the names of
// StoreContract_win.h. Every COM failure is thrown as StoreError.
std::unique_ptr<IMailStoreFactory> CreateComMailStore(DispatchCreator creator);
// The same on the objects registered in this process's COM.
std::unique_ptr<IMailStoreFactory> CreateSystemMailStore();

// The host object behind an account manager of this store, for advising its event sink; null
// for any other account manager.
IDispatch* DispatchOf(IAccountManager& manager);

}  // namespace Orva::MailStore
