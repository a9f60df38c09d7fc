#pragma once

#include <cstdint>
#include <memory>

#include "common_src/platform/WindowMessaging.h"

namespace ZelCommon::Platform {

// The numeric value of a WNDPROC (0: none).
using WindowProcedure = std::uintptr_t;

// Swapping the window procedure of another window of the process (subclassing).
class IWindowProcedureHook {
public:
    virtual ~IWindowProcedureHook() = default;
    // GetWindowLongPtrW(GWLP_WNDPROC); 0 when it cannot be read.
    virtual WindowProcedure CurrentProcedure(WindowHandle window) = 0;
    // Puts the add-in's hook procedure in place; false when Windows refused.
    virtual bool InstallHook(WindowHandle window) = 0;
    // Puts `procedure` back; false when Windows refused.
    virtual bool Restore(WindowHandle window, WindowProcedure procedure) = 0;
    // CallWindowProcW with a saved procedure.
    virtual intptr_t CallProcedure(WindowProcedure procedure, WindowHandle window, uint32_t message,
                                   uintptr_t wParam, intptr_t lParam) = 0;
    // DefWindowProcW.
    virtual intptr_t CallDefault(WindowHandle window, uint32_t message, uintptr_t wParam,
                                 intptr_t lParam) = 0;
};

// `hookProcedure` is the WNDPROC that InstallHook puts in place.
std::unique_ptr<IWindowProcedureHook> CreateWindowProcedureHook(WindowProcedure hookProcedure);

}  // namespace ZelCommon::Platform
