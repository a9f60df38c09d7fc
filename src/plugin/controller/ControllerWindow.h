#pragma once

#include <cstdint>
#include <memory>

#include "common_src/platform/WindowMessaging.h"

namespace Orva::Plugin {

// What the controller asks of its own window.
class IControllerWindow {
public:
    virtual ~IControllerWindow() = default;
    // SetWindowPos(HWND_TOPMOST) without moving or sizing.
    virtual void MakeTopMost() = 0;
    virtual bool SetTimer(uintptr_t id, uint32_t milliseconds) = 0;
    virtual bool KillTimer(uintptr_t id) = 0;
};

// The window calls on a real window; natively there are no windows and every call fails.
std::unique_ptr<IControllerWindow> CreateSystemControllerWindow(
    ZelCommon::Platform::WindowHandle window);

}  // namespace Orva::Plugin
