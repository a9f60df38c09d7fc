#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <memory>

#include "plugin/host/Contacts.h"

namespace Orva::Plugin {

// Makes the object registered under a ProgID; throws ZelCommon::Win32::ComCallError.
using ContactsObjectCreator =
    std::function<Microsoft::WRL::ComPtr<IDispatch>(const wchar_t* progId)>;

// The address book through the host's automation objects, made by `creator`, their members
// called by name (HostContract_win.h).
std::unique_ptr<IContactsLibrary> CreateComContacts(ContactsObjectCreator creator);

// The same over the objects registered in this machine.
std::unique_ptr<IContactsLibrary> CreateSystemContacts();

}  // namespace Orva::Plugin
