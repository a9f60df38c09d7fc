#pragma once

#include <cstdint>
#include <string>

namespace ZelCommon::Platform {

// A top-level window as the Win32 API sees it: the numeric value of an HWND (0: none).
using WindowHandle = std::uintptr_t;

// Finding windows and messaging them. Posts and sends carry no payload beyond the two
// parameters.
class IWindowMessaging {
public:
    virtual ~IWindowMessaging() = default;
    // FindWindowW with a null class name.
    virtual WindowHandle FindByTitle(const std::wstring& title) = 0;
    // FindWindowW with a null title.
    virtual WindowHandle FindByClass(const std::wstring& className) = 0;
    virtual bool Post(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam) = 0;
    virtual intptr_t Send(WindowHandle window, uint32_t message, uintptr_t wParam,
                          intptr_t lParam) = 0;
};

IWindowMessaging& SystemWindowMessaging();

}  // namespace ZelCommon::Platform
