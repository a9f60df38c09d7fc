#pragma once

#include <windows.h>

#include <memory>

#include "plugin/controller/ControllerWindow.h"
#include "plugin/controller/ToolBarController.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The hidden controller window: a top-most popup of the class by which everyone finds the
// controller. Its procedure hands every message to CToolBarController; no exception leaves it.
// One lives in a process at a time, and it must be used on the thread that created it.
class CToolBarWnd final : public IControllerWindow {
    // Only Create makes one.
    struct Key {
        explicit Key() = default;
    };

public:
    // Registers the class in `module` and creates the window with its controller on `ports` and
    // `parts` (the controller exists before the window: WM_CREATE already needs it); null when
    // Windows refused.
    static std::unique_ptr<CToolBarWnd> Create(HINSTANCE module, const ControllerPorts& ports,
                                               const ControllerParts& parts,
                                               ZelCommon::Library::DebugLog& log);
    CToolBarWnd(Key, HINSTANCE module, ZelCommon::Library::DebugLog& log);
    ~CToolBarWnd() override;
    CToolBarWnd(const CToolBarWnd&) = delete;
    CToolBarWnd& operator=(const CToolBarWnd&) = delete;

    // The procedure that subclasses the mail client's main window; it reaches the live
    // controller, or the default procedure when none lives.
    static ZelCommon::Platform::WindowProcedure MainWindowHookProcedure();
    // At unload: gives a still subclassed main window its procedure back and unregisters the
    // class, so that nothing points into the library once it is gone.
    static void ReleaseAtUnload(HINSTANCE module);

    HWND Handle() const { return m_window; }
    CToolBarController& Controller() { return *m_controller; }

    void MakeTopMost() override;
    bool SetTimer(uintptr_t id, uint32_t milliseconds) override;
    bool KillTimer(uintptr_t id) override;

    bool Exists() const { return m_window != nullptr; }
    // Sends WM_CLOSE, from the window's own thread only.
    void SendClose();
    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window);

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam);
    static LRESULT CALLBACK HookProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void RestoreHookedMainWindow();

    HINSTANCE m_module;
    ZelCommon::Library::DebugLog& m_log;
    HWND m_window = nullptr;
    std::unique_ptr<IControllerWindow> m_calls;
    std::unique_ptr<CToolBarController> m_controller;
    bool m_classRegistered = false;
};

}  // namespace Orva::Plugin
