#pragma once

#include <ocidl.h>
#include <windows.h>

#include <string>
#include <vector>

#include "common_src/platform/WindowMessaging.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "settings/log/DebugLog.h"
#include "support/TempFolder.h"
#include "support/TestWindow_win.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/JournalDebuggerOutput.h"

namespace Orva::Testing {

struct ControllerMessageRecord {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const ControllerMessageRecord&) const = default;
};

inline std::vector<ControllerMessageRecord>& ReceivedMessages() {
    static std::vector<ControllerMessageRecord> received;
    return received;
}

// Closing is recorded rather than done, so that the window lives to the end of the test.
inline LRESULT CALLBACK RecordingProcedure(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    if (message == WM_CLOSE || message >= WM_USER) {
        ReceivedMessages().push_back({message, wParam, lParam});
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

// A real controller window that records the controller's messages it is sent or posted, and
// the relay of the system's window messaging in front of it.
class HostEventRig {
public:
    HostEventRig() : controller(Plugin::kControllerClassName.data(), L"", RecordingProcedure) {
        ReceivedMessages().clear();
        log.OpenLog(folder.File(L"host.log"));
    }

    // Delivers whatever was posted to the window and returns everything it has received.
    std::vector<ControllerMessageRecord> Messages() {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::DispatchMessageW(&message);
        }
        return ReceivedMessages();
    }

    TempFolder folder;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Fakes::FakeJournal journal;
    ZelCommon::Fakes::JournalDebuggerOutput output{journal};
    ZelCommon::Library::DebugLog log{clock, process, output};
    Plugin::CHostEventRelay relay{ZelCommon::Platform::SystemWindowMessaging(), log};

    TestWindow controller;
};

// A sign-extended wParam, as the relay sends a negative id.
inline WPARAM Signed(int value) {
    return static_cast<WPARAM>(static_cast<INT_PTR>(value));
}

inline VARIANT Int32Arg(LONG value) {
    VARIANT arg{};
    V_VT(&arg) = VT_I4;
    V_I4(&arg) = value;
    return arg;
}

inline VARIANT Int64Arg(LONGLONG value) {
    VARIANT arg{};
    V_VT(&arg) = VT_I8;
    V_I8(&arg) = value;
    return arg;
}

// Refers to `target`, which must outlive the call that uses it; every value of a VARIANT
// starts at the same address.
inline VARIANT ByRef(VARIANT& target) {
    VARIANT arg{};
    V_VT(&arg) = static_cast<VARTYPE>(V_VT(&target) | VT_BYREF);
    V_BYREF(&arg) = &V_I4(&target);
    return arg;
}

// Calls the sink the way a host fires an event: the arguments go in last one first.
inline HRESULT FireEvent(IDispatch& sink, DISPID id, std::vector<VARIANT> args,
                         UINT* argError = nullptr) {
    std::vector<VARIANT> reversed(args.rbegin(), args.rend());
    DISPPARAMS params{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    UINT unusedError = 0;
    return sink.Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, nullptr,
                       argError != nullptr ? argError : &unusedError);
}

}  // namespace Orva::Testing
