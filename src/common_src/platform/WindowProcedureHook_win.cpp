#include <windows.h>

#include "common_src/platform/WindowProcedureHook.h"

namespace ZelCommon::Platform {
namespace {

HWND ToHwnd(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

// SetWindowLongPtrW answers the previous value, so 0 is only a failure when an error was set.
bool ReplaceProcedure(WindowHandle window, WindowProcedure procedure) {
    ::SetLastError(ERROR_SUCCESS);
    const LONG_PTR previous =
        ::SetWindowLongPtrW(ToHwnd(window), GWLP_WNDPROC, static_cast<LONG_PTR>(procedure));
    return previous != 0 || ::GetLastError() == ERROR_SUCCESS;
}

class WindowsProcedureHook final : public IWindowProcedureHook {
public:
    explicit WindowsProcedureHook(WindowProcedure hookProcedure) : m_hook(hookProcedure) {}

    WindowProcedure CurrentProcedure(WindowHandle window) override {
        return static_cast<WindowProcedure>(::GetWindowLongPtrW(ToHwnd(window), GWLP_WNDPROC));
    }

    bool InstallHook(WindowHandle window) override {
        return m_hook != 0 && ReplaceProcedure(window, m_hook);
    }

    bool Restore(WindowHandle window, WindowProcedure procedure) override {
        return procedure != 0 && ReplaceProcedure(window, procedure);
    }

    intptr_t CallProcedure(WindowProcedure procedure, WindowHandle window, uint32_t message,
                           uintptr_t wParam, intptr_t lParam) override {
        if (procedure == 0) {
            return 0;
        }
        return ::CallWindowProcW(reinterpret_cast<WNDPROC>(procedure), ToHwnd(window), message,
                                 wParam, lParam);
    }

    intptr_t CallDefault(WindowHandle window, uint32_t message, uintptr_t wParam,
                         intptr_t lParam) override {
        return ::DefWindowProcW(ToHwnd(window), message, wParam, lParam);
    }

private:
    WindowProcedure m_hook;
};

}  // namespace

std::unique_ptr<IWindowProcedureHook> CreateWindowProcedureHook(WindowProcedure hookProcedure) {
    return std::make_unique<WindowsProcedureHook>(hookProcedure);
}

}  // namespace ZelCommon::Platform
