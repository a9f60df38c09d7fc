#pragma once

#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <memory>

#include "plugin/host/HostObjects.h"

namespace Orva::Plugin {

// Makes the host object registered under a ProgID; null when it cannot be made.
using HostObjectCreator = std::function<Microsoft::WRL::ComPtr<IUnknown>(const wchar_t* progId)>;

// CLSIDFromProgID and CoCreateInstance.
Microsoft::WRL::ComPtr<IUnknown> CreateRegisteredHostObject(const wchar_t* progId);

// The host's objects made by `creator`, their sinks relaying through `relay`.
std::unique_ptr<IHostObjects> CreateHostObjects(CHostEventRelay& relay,
                                                ZelCommon::Library::DebugLog& log,
                                                HostObjectCreator creator);

}  // namespace Orva::Plugin
