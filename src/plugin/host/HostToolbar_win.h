#pragma once

#include <windows.h>
#include <wrl/client.h>

#include <vector>

#include "plugin/host/HostConnection_win.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/host/HostToolbar.h"

namespace Orva::Plugin {

// The ribbon on the host's WLMailApi object, its methods called by name. Each drop-down entry
// gets the sink that relays its clicks as the entry's event; the sinks stay advised until the
// object is released.
class CHostToolbar final : public IHostToolbar {
public:
    CHostToolbar(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);

    // The API object the calls go to; without one every call fails with E_POINTER.
    void Attach(Microsoft::WRL::ComPtr<IUnknown> api);
    // Unadvises the entries' sinks (a refusal is only logged) and lets the object go.
    void Release();

    int32_t CreateGroup(const std::wstring& caption) override;
    int32_t AddButton(int32_t group, const std::wstring& caption,
                      const std::wstring& imageFile) override;
    int32_t AddDropDownEntry(int32_t group, int32_t button, const std::wstring& caption,
                             int32_t entryEvent) override;
    void SetTooltip(int32_t group, int32_t button, const std::wstring& tooltip) override;
    void SetCaption(int32_t group, int32_t button, const std::wstring& caption) override;
    void EnableButton(int32_t group, int32_t button, bool enable) override;

private:
    void AdviseEntrySink(IUnknown& entry, int32_t entryEvent);

    CHostEventRelay& m_relay;
    ZelCommon::Library::DebugLog& m_log;
    Microsoft::WRL::ComPtr<IDispatch> m_api;
    std::vector<CHostConnection> m_entryConnections;
};

}  // namespace Orva::Plugin
