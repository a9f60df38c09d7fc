#include "plugin/host/HostToolbar_win.h"

#include <optional>
#include <string>

#include "common_src/win32/LateBoundCall_win.h"
#include "plugin/host/HostCall_win.h"
#include "plugin/host/HostContract_win.h"
#include "plugin/host/HostEventSinks_win.h"
#include "plugin/host/HostObjects.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using ZelCommon::Win32::CallMethod;
namespace Method = HostContract::ToolbarMethod;

ComPtr<CSubButtonEventSink> EntrySink(int32_t entryEvent, CHostEventRelay& relay,
                                      ZelCommon::Library::DebugLog& log) {
    switch (entryEvent) {
        case DropDownEntry::Settings:
            return MakeSink<CSettingBtnEventSink>(relay, log);
        case DropDownEntry::Statistics:
            return MakeSink<CStatisticBtnEventSink>(relay, log);
        case DropDownEntry::OnOff:
            return MakeSink<COnOffBtnEventSink>(relay, log);
        case DropDownEntry::Help:
            return MakeSink<CHelpBtnEventSink>(relay, log);
        case DropDownEntry::About:
            return MakeSink<CAboutBtnEventSink>(relay, log);
        default:
            return nullptr;
    }
}

}  // namespace

CHostToolbar::CHostToolbar(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log)
    : m_relay(relay), m_log(log) {}

void CHostToolbar::Attach(ComPtr<IUnknown> api) {
    Release();
    if (api != nullptr) {
        api.As(&m_api);
    }
}

void CHostToolbar::Release() {
    for (CHostConnection& connection : m_entryConnections) {
        try {
            connection.Unadvise();
        } catch (const HostCallError& error) {
            m_log.LogText(L"!!! CToolBarWnd ribbon entry sink unadvise failed:[%S]", error.what());
        }
    }
    m_entryConnections.clear();
    m_api.Reset();
}

// A missing object is the late-bound call's own E_POINTER.
int32_t CHostToolbar::CreateGroup(const std::wstring& caption) {
    return HostCall(
        [&] { return CallMethod(m_api.Get(), Method::kCreateGroup, caption).ToInt32(); });
}

int32_t CHostToolbar::AddButton(int32_t group, const std::wstring& caption,
                                const std::wstring& imageFile) {
    return HostCall([&] {
        return CallMethod(m_api.Get(), Method::kAddButton, group, caption, imageFile).ToInt32();
    });
}

int32_t CHostToolbar::AddDropDownEntry(int32_t group, int32_t button, const std::wstring& caption,
                                       int32_t entryEvent) {
    const ComPtr<IDispatch> entry = HostCall([&] {
        return CallMethod(m_api.Get(), Method::kAddDropDownEntry, group, button, caption)
            .ToDispatch();
    });
    const int32_t id = HostCall(
        [&] { return ZelCommon::Win32::GetProperty(entry.Get(), Method::kEntryId).ToInt32(); });
    AdviseEntrySink(*entry.Get(), entryEvent);
    return id;
}

// An entry whose clicks cannot reach us is still on the ribbon; the failure is only logged, as
// the host's own sinks' are.
void CHostToolbar::AdviseEntrySink(IUnknown& entry, int32_t entryEvent) {
    const ComPtr<CSubButtonEventSink> sink = EntrySink(entryEvent, m_relay, m_log);
    if (sink == nullptr) {
        return;
    }
    if (std::optional<CHostConnection> connection = ConnectSink(entry, *sink.Get())) {
        m_entryConnections.push_back(std::move(*connection));
    } else {
        m_log.LogText(L"!!! CToolBarWnd ribbon entry %d: its sink could not be advised",
                      entryEvent);
    }
}

void CHostToolbar::SetTooltip(int32_t group, int32_t button, const std::wstring& tooltip) {
    HostCall([&] { CallMethod(m_api.Get(), Method::kSetTooltip, group, button, tooltip); });
}

void CHostToolbar::SetCaption(int32_t group, int32_t button, const std::wstring& caption) {
    HostCall([&] { CallMethod(m_api.Get(), Method::kSetCaption, group, button, caption); });
}

void CHostToolbar::EnableButton(int32_t group, int32_t button, bool enable) {
    HostCall([&] { CallMethod(m_api.Get(), Method::kEnableButton, group, button, enable); });
}

}  // namespace Orva::Plugin
