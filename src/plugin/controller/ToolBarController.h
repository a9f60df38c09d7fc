#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string>

#include "common_src/platform/Clock.h"
#include "common_src/platform/Event.h"
#include "common_src/platform/Keyboard.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowMessaging.h"
#include "common_src/platform/WindowProcedureHook.h"
#include "plugin/agent/AgentLink.h"
#include "plugin/controller/ControllerParts.h"
#include "plugin/controller/ControllerWindow.h"
#include "plugin/controller/MailClientVersion.h"
#include "plugin/host/HostObjects.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"
#include "settings/probes/OsInfo.h"

namespace Orva::Plugin {

// The operating system and the host, as the controller reaches them.
struct ControllerPorts {
    ZelCommon::Platform::IWindowMessaging& messaging;
    ZelCommon::Platform::IClock& clock;
    ZelCommon::Platform::IEvent& shutdownDone;
    ZelCommon::Platform::IWindowProcedureHook& hook;
    ZelCommon::Platform::IShellOpen& shell;
    ZelCommon::Platform::IKeyboard& keyboard;
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Platform::IDebuggerOutput& debugger;
    Orva::Settings::IOsInfo& os;
    IHostObjects& host;
    IMailClientVersion& version;
    ZelCommon::Library::DebugLog& log;
};

// The add-in's own parts that the controller drives.
struct ControllerParts {
    IRibbonCommands& ribbon;
    IClassicBand& classic;
    ISpamFolder& spamFolder;
    IAccountCheck& account;
    ICommandDialogs& dialogs;
    ILocalisedStrings& strings;
    Orva::Settings::SettingsStore& settings;
    CAgentLink& agent;
};

// One message to the controller window. For WM_COPYDATA the window procedure fills copyData
// from the record; its bytes come from another process and are read as they are.
struct ControllerMessageData {
    uint32_t message = 0;
    uintptr_t wParam = 0;
    intptr_t lParam = 0;
    uintptr_t copyDataId = 0;
    std::span<const std::byte> copyData;
};

// The work behind the controller window: every event of the mail client and every request of
// the agent arrives here as a window message, on the mail client's GUI thread.
class CToolBarController {
public:
    // `window` is the controller's own window (top-most switch, timers).
    CToolBarController(ControllerPorts ports, ControllerParts parts, IControllerWindow& window);

    // The controller's own window, to which it posts the default-account re-query.
    void SetWindow(ZelCommon::Platform::WindowHandle window) { m_window = window; }

    // The result for the window procedure, or none when the message goes on to the default
    // processing (unknown messages, and WM_CLOSE after its work, which destroys the window).
    std::optional<intptr_t> Dispatch(const ControllerMessageData& data);

    intptr_t OnCreate();
    void OnClose();
    intptr_t OnCopyData(uintptr_t copyDataId, std::span<const std::byte> payload);
    void OnTimer();
    intptr_t OnBuildUI();
    // The add-in is unloaded while the host still holds its sinks (the mail client never shut
    // it down): unadvises them and releases the host's objects, so that nothing of the host
    // calls into the unloaded image. It neither waits for the shutdown event (the host will
    // never signal it) nor shuts COM or GDI+ down, which the loader lock forbids.
    void ReleaseHostAtUnload();
    intptr_t OnHookOE(ZelCommon::Platform::WindowHandle mainWindow);
    intptr_t OnUnhookOE();
    void OnTearDownClassicUi();
    void OnTick();
    void OnAgentReady();
    void OnWLMShutdown();
    intptr_t OnReQueryDefaultAccount(uintptr_t wParam, intptr_t lParam);
    intptr_t OnClickRibbonButton(uintptr_t wParam, intptr_t lParam);
    void OnBuildRibbonToolbar();
    void EnableRibbonToolbar(bool enable);
    // The add-in's window procedure on the mail client's main window while it is hooked.
    intptr_t HookProcedure(ZelCommon::Platform::WindowHandle window, uint32_t message,
                           uintptr_t wParam, intptr_t lParam);

    // SetWLMBrowserWnd: the host names the mail client's main window.
    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) { m_mainWindow = window; }

    ZelCommon::Platform::WindowHandle MailClientWindow() const { return m_mainWindow; }
    bool IsMainWindowAttached() const { return m_mainWindowAttached; }
    bool IsToolbarEnabled() const { return m_bTBEnable; }
    bool IsAgentReady() const { return m_agentReady; }
    uint32_t TickCount() const { return m_ticks; }
    std::optional<int> MailClientMajorVersion() const { return m_mailClientVersion; }
    const RibbonIds& Ribbon() const { return m_ribbonIds; }
    ZelCommon::Platform::WindowHandle HookedWindow() const { return m_hookedWindow; }
    ZelCommon::Platform::WindowProcedure SavedProcedure() const { return m_savedProcedure; }

private:
    template <class... Args>
    void Log(std::wstring_view format, const Args&... args) {
        m_ports.log.LogText(format, args...);
    }
    bool ReadToolbarEnabled() const;
    void OnLogoClicked();
    std::wstring LogoWebAddress();
    void DisableForUnsupportedServer();
    void PostAccountInfoReady(uint32_t message);
    // Unadvises a host sink; its failure is logged and never stops the shut-down.
    template <class Unadvise>
    void UnadviseLogged(Unadvise unadvise);

    ControllerPorts m_ports;
    ControllerParts m_parts;
    IControllerWindow& m_ownWindow;
    ZelCommon::Platform::WindowHandle m_window = 0;
    ZelCommon::Platform::WindowHandle m_mainWindow = 0;
    bool m_mainWindowAttached = false;
    std::optional<int> m_mailClientVersion;
    bool m_bTBEnable = false;
    bool m_agentReady = false;
    uint32_t m_ticks = 0;
    RibbonIds m_ribbonIds;
    ZelCommon::Platform::WindowHandle m_hookedWindow = 0;
    ZelCommon::Platform::WindowProcedure m_savedProcedure = 0;
    // Windows' critical sections may be entered again by the same thread: a delete-all that
    // pumps messages may receive the next request while it runs, and must not start it.
    std::recursive_mutex m_copyDataLock;
    bool m_copyDataRunning = false;
};

}  // namespace Orva::Plugin
