#include <windows.h>

#include "common_src/platform/WindowMessaging.h"

namespace ZelCommon::Platform {
namespace {

HWND ToHwnd(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

class WindowsMessaging final : public IWindowMessaging {
public:
    WindowHandle FindByTitle(const std::wstring& title) override {
        return reinterpret_cast<WindowHandle>(::FindWindowW(nullptr, title.c_str()));
    }

    WindowHandle FindByClass(const std::wstring& className) override {
        return reinterpret_cast<WindowHandle>(::FindWindowW(className.c_str(), nullptr));
    }

    bool Post(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam) override {
        return ::PostMessageW(ToHwnd(window), message, wParam, lParam) != FALSE;
    }

    intptr_t Send(WindowHandle window, uint32_t message, uintptr_t wParam,
                  intptr_t lParam) override {
        return ::SendMessageW(ToHwnd(window), message, wParam, lParam);
    }
};

}  // namespace

IWindowMessaging& SystemWindowMessaging() {
    static WindowsMessaging messaging;
    return messaging;
}

}  // namespace ZelCommon::Platform
