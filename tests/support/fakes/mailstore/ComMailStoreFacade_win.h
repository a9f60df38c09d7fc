#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include "mailstore/MailStore.h"

namespace Orva::MailStore::Fakes {

// The store's two top objects as the host's store library would hand them out: automation
// objects whose members, named as the add-in assumes, answer from `factory`'s objects. A
// StoreError of the fake becomes the member's failure. The account manager's events come from
// `connections` when the test gives it.
Microsoft::WRL::ComPtr<IDispatch> StoreObjectOver(IMailStoreFactory& factory);
Microsoft::WRL::ComPtr<IDispatch> AccountManagerObjectOver(IMailStoreFactory& factory,
                                                           IUnknown* connections = nullptr);

}  // namespace Orva::MailStore::Fakes
