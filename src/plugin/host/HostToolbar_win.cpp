#include "plugin/host/HostToolbar_win.h"

#include <optional>
#include <string>

#include "common_src/platform/TextCodec.h"
#include "common_src/win32/DispatchCall_win.h"
#include "plugin/host/HostContract_win.h"
#include "plugin/host/HostEventSinks_win.h"
#include "plugin/host/HostObjects.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

using Microsoft::WRL::ComPtr;
using ZelCommon::Win32::DispatchArg;
using ZelCommon::Win32::DispatchResult;
namespace Method = HostContract::ToolbarMethod;

// The system's text for the status, then the object's own words for it when it gave any.
[[noreturn]] void ThrowFailure(const DispatchResult& result) {
    std::string text = HResultText(result.status);
    if (!result.description.empty()) {
        text += ": " + ZelCommon::Text::WideToUtf8(result.description);
    }
    throw HostCallError(text);
}

DispatchResult Checked(DispatchResult result) {
    if (!result.Succeeded()) {
        ThrowFailure(result);
    }
    return result;
}

int32_t IdOf(const DispatchResult& result) {
    if (const std::optional<int32_t> id = ZelCommon::Win32::AsInt32(result.value.get())) {
        return *id;
    }
    ThrowFailure({DISP_E_TYPEMISMATCH, L"the host gave no id", {}});
}

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

IDispatch& CHostToolbar::Api() const {
    if (m_api == nullptr) {
        ThrowFailure({E_POINTER, {}, {}});
    }
    return *m_api.Get();
}

int32_t CHostToolbar::CreateGroup(const std::wstring& caption) {
    return IdOf(Checked(ZelCommon::Win32::CallMethod(Api(), Method::kCreateGroup, {caption})));
}

int32_t CHostToolbar::AddButton(int32_t group, const std::wstring& caption,
                                const std::wstring& imageFile) {
    return IdOf(Checked(
        ZelCommon::Win32::CallMethod(Api(), Method::kAddButton, {group, caption, imageFile})));
}

int32_t CHostToolbar::AddDropDownEntry(int32_t group, int32_t button, const std::wstring& caption,
                                       int32_t entryEvent) {
    const DispatchResult added = Checked(
        ZelCommon::Win32::CallMethod(Api(), Method::kAddDropDownEntry, {group, button, caption}));
    const VARIANT& value = added.value.get();
    if (value.vt != VT_DISPATCH || value.pdispVal == nullptr) {
        ThrowFailure({E_POINTER, L"the host gave no entry object", {}});
    }
    IDispatch& entry = *value.pdispVal;
    const int32_t id = IdOf(Checked(ZelCommon::Win32::GetProperty(entry, Method::kEntryId)));
    AdviseEntrySink(entry, entryEvent);
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
    Checked(ZelCommon::Win32::CallMethod(Api(), Method::kSetTooltip, {group, button, tooltip}));
}

void CHostToolbar::SetCaption(int32_t group, int32_t button, const std::wstring& caption) {
    Checked(ZelCommon::Win32::CallMethod(Api(), Method::kSetCaption, {group, button, caption}));
}

void CHostToolbar::EnableButton(int32_t group, int32_t button, bool enable) {
    Checked(ZelCommon::Win32::CallMethod(Api(), Method::kEnableButton, {group, button, enable}));
}

}  // namespace Orva::Plugin
