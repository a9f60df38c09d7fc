#pragma once

#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <optional>
#include <string>

#include "plugin/host/DispatchSink_win.h"

namespace Orva::Plugin {

// The narrow system text of a COM status, or "0x%08X" when the system has none.
std::string HResultText(HRESULT status);

// A sink advised on one connection point of a host object. Unadvise reports a refusal; a
// connection dropped still connected unadvises quietly.
class CHostConnection {
public:
    CHostConnection(Microsoft::WRL::ComPtr<IConnectionPoint> point, DWORD cookie);
    ~CHostConnection();
    CHostConnection(CHostConnection&& other) noexcept;
    CHostConnection& operator=(CHostConnection&& other) noexcept;
    CHostConnection(const CHostConnection&) = delete;
    CHostConnection& operator=(const CHostConnection&) = delete;

    bool IsConnected() const { return m_point != nullptr; }
    // Throws HostCallError with the host's reason; the connection is over either way.
    void Unadvise();

private:
    void UnadviseQuietly() noexcept;

    Microsoft::WRL::ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

// Finds the object's event interface and the host's DISPIDs for the sink's events, then
// advises the sink; nothing when the object has no such connection point or refuses.
std::optional<CHostConnection> ConnectSink(IUnknown& object, CDispatchSink& sink);

}  // namespace Orva::Plugin
