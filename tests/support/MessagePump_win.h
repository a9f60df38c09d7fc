#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tools/sim/agent/SimAgentProtocol.h"

namespace Orva::Testing {

// Dispatches this thread's messages until `done` holds or about `milliseconds` passed.
inline bool PumpMessagesUntil(const std::function<bool()>& done, DWORD milliseconds = 5000) {
    const DWORD start = ::GetTickCount();
    for (;;) {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::DispatchMessageW(&message);
        }
        if (done()) {
            return true;
        }
        if (::GetTickCount() - start > milliseconds) {
            return false;
        }
        ::Sleep(10);
    }
}

// Waits for a top-level window of another process to appear; null when it does not.
inline HWND WaitForWindowTitled(const std::wstring& title, DWORD milliseconds = 10000) {
    HWND window = nullptr;
    PumpMessagesUntil([&] { return (window = ::FindWindowW(nullptr, title.c_str())) != nullptr; },
                      milliseconds);
    return window;
}

// Closes every window with this title (agents a failed test left behind) and waits until they
// are gone.
inline void CloseWindowsTitled(const std::wstring& title) {
    PumpMessagesUntil([&] {
        const HWND window = ::FindWindowW(nullptr, title.c_str());
        if (window != nullptr) {
            ::PostMessageW(window, WM_CLOSE, 0, 0);
        }
        return window == nullptr;
    });
}

// Tells the simulated agent what to send the controller.
inline LRESULT SendAgentCommand(HWND agent, const Orva::Sim::AgentCommand& command) {
    std::vector<uint8_t> bytes = Orva::Sim::EncodeCommand(command);
    COPYDATASTRUCT data{};
    data.dwData = Orva::Sim::kCommandCopyDataId;
    data.cbData = static_cast<DWORD>(bytes.size());
    data.lpData = bytes.data();
    return ::SendMessageW(agent, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
}

}  // namespace Orva::Testing
