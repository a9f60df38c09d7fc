#pragma once

#include <windows.h>

#include <cstdint>

namespace Orva::Testing {

// A real top-level window of its own registered class, destroyed and unregistered at the end
// of the test. Tests find it by its class or title and message it.
class TestWindow {
public:
    TestWindow(const wchar_t* className, const wchar_t* title, WNDPROC procedure)
        : m_className(className) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.hInstance = ::GetModuleHandleW(nullptr);
        windowClass.lpszClassName = className;
        ::RegisterClassW(&windowClass);
        m_window = ::CreateWindowExW(0, className, title, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                     nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    }
    ~TestWindow() {
        if (m_window != nullptr) {
            ::DestroyWindow(m_window);
        }
        ::UnregisterClassW(m_className, ::GetModuleHandleW(nullptr));
    }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND get() const { return m_window; }
    std::uintptr_t handle() const { return reinterpret_cast<std::uintptr_t>(m_window); }

private:
    const wchar_t* m_className;
    HWND m_window = nullptr;
};

}  // namespace Orva::Testing
