#pragma once

#include <windows.h>

#include <cstdint>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Testing {

// A real top-level window of its own registered class, destroyed and unregistered at the end
// of the test. Tests find it by its class or title and message it.
class TestWindow {
public:
    TestWindow(const wchar_t* className, const wchar_t* title, WNDPROC procedure) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.hInstance = ::GetModuleHandleW(nullptr);
        windowClass.lpszClassName = className;
        m_class.reset(::RegisterClassW(&windowClass));
        m_window.reset(::CreateWindowExW(0, className, title, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                         nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr));
    }

    HWND get() const { return m_window.get(); }
    std::uintptr_t handle() const { return reinterpret_cast<std::uintptr_t>(get()); }

private:
    // Declared first, so the class goes after its window.
    ZelCommon::Platform::unique_window_class m_class;
    ZelCommon::Platform::unique_hwnd m_window;
};

}  // namespace Orva::Testing
