#pragma once

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "plugin/host/HostContract_win.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// An event's arguments, converted to the kinds its declaration names.
class EventArgs {
public:
    int32_t Int32(std::size_t index) const {
        return static_cast<int32_t>(static_cast<uint32_t>(m_values.at(index)));
    }
    uint64_t UInt64(std::size_t index) const { return m_values.at(index); }
    void Set(std::size_t index, uint64_t value) { m_values.at(index) = value; }

private:
    std::array<uint64_t, 2> m_values{};
};

// COM interfaces have no virtual destructor by design; the sink's own one is virtual.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
// The dispatch interface through which a host fires one event interface at us. A sink is
// reference counted, deletes itself at zero and only ever answers through OnEvent.
class CDispatchSink : public IDispatch {
public:
    CDispatchSink(const CDispatchSink&) = delete;
    CDispatchSink& operator=(const CDispatchSink&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
                        VARIANT* result, EXCEPINFO* exception, UINT* argError) override;

    // The interface the host will ask for when we advise it.
    void SetEventIid(const IID& iid) { m_eventIid = iid; }
    // Takes the host's own DISPIDs for the events it names.
    void ResolveDispIds(ITypeInfo& eventInterface);
    DISPID DispIdOf(std::size_t event) const { return m_dispIds.at(event); }

    // Sinks alive in this process; the host may keep one past its unadvise.
    static long LiveSinks() { return s_live.load(); }

protected:
    CDispatchSink(std::wstring_view sinkName, std::span<const HostContract::EventDecl> events,
                  ZelCommon::Library::DebugLog& log);
    virtual ~CDispatchSink();

    virtual void OnEvent(std::size_t event, const EventArgs& args) = 0;
    ZelCommon::Library::DebugLog& Log() { return m_log; }

private:
    HRESULT ReadArguments(const HostContract::EventDecl& decl, const DISPPARAMS* params,
                          EventArgs& args, UINT* argError);

    // The first owner's AddRef makes it one.
    std::atomic<ULONG> m_references{0};
    IID m_eventIid = IID_NULL;
    std::wstring m_sinkName;
    std::span<const HostContract::EventDecl> m_events;
    std::vector<DISPID> m_dispIds;
    ZelCommon::Library::DebugLog& m_log;
    static std::atomic<long> s_live;
};
#pragma GCC diagnostic pop

// A new sink holding its first reference.
template <class T, class... Args>
Microsoft::WRL::ComPtr<T> MakeSink(Args&&... args) {
    return Microsoft::WRL::ComPtr<T>(new T(std::forward<Args>(args)...));
}

}  // namespace Orva::Plugin
