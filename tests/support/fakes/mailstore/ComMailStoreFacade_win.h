#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include "mailstore/MailStore.h"

namespace Orva::MailStore::Fakes {

// The store's two top objects as the host's store library would hand them out: automation
// objects whose members, named as the add-in assumes, answer from `factory`'s objects. A
// StoreError of the fake becomes the member's failure.
Microsoft::WRL::ComPtr<IDispatch> StoreObjectOver(IMailStoreFactory& factory);
Microsoft::WRL::ComPtr<IDispatch> AccountManagerObjectOver(IMailStoreFactory& factory);

}  // namespace Orva::MailStore::Fakes
