#include <windows.h>

#include "plugin/controller/ControllerWindow.h"

namespace Orva::Plugin {
namespace {

class WindowsControllerWindow final : public IControllerWindow {
public:
    explicit WindowsControllerWindow(HWND window) : m_window(window) {}

    void MakeTopMost() override {
        ::SetWindowPos(m_window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
    bool SetTimer(uintptr_t id, uint32_t milliseconds) override {
        return ::SetTimer(m_window, id, milliseconds, nullptr) != 0;
    }
    bool KillTimer(uintptr_t id) override { return ::KillTimer(m_window, id) != FALSE; }

private:
    HWND m_window;
};

}  // namespace

std::unique_ptr<IControllerWindow> CreateSystemControllerWindow(
    ZelCommon::Platform::WindowHandle window) {
    return std::make_unique<WindowsControllerWindow>(reinterpret_cast<HWND>(window));
}

}  // namespace Orva::Plugin
