#pragma once

#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <optional>

namespace Orva::Plugin {

// The interface a host object fires its events through: its default source interface when it
// says so, else the interface of its first connection point.
std::optional<IID> FindEventIid(IUnknown& object);

// The type information of that interface, when the object publishes its class information.
Microsoft::WRL::ComPtr<ITypeInfo> FindEventTypeInfo(IUnknown& object);

}  // namespace Orva::Plugin
