#pragma once

#include <memory>

#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/WindowMessaging.h"
#include "common_src/win32/ResourceHandle.h"
#include "plugin/agent/AgentLink.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The controller window as the application object drives it: built with everything it needs by
// the add-in's wiring, created by the application at its step of the start-up.
class IControllerHandle {
public:
    virtual ~IControllerHandle() = default;
    // Creates the window; false when Windows refused it.
    virtual bool Open() = 0;
    // False before Open and once the window has been destroyed (its WM_CLOSE ran).
    virtual bool Exists() const = 0;
    // Closes the window at the add-in's exit.
    virtual void Close() = 0;
    // The mail client's main window, handed in by SetWLMBrowserWnd.
    virtual void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) = 0;
};

// What the add-in's wiring builds once, for the process lifetime, and hands the application.
struct ApplicationParts {
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Platform::IDebuggerOutput& debugger;
    ZelCommon::Library::DebugLog& log;
    const Orva::Settings::SettingsPaths& paths;
    Orva::Settings::SettingsStore& settings;
    CAgentLink& agent;
    ZelResourceStringLoader& strings;
    IControllerHandle& controller;
};

// The add-in's application object: runs the start-up in its order (folders, debug-log switch,
// agent, language resources, controller window, the settings start) and closes the controller
// when the add-in is unloaded.
class CORVA_WLMAApp {
public:
    explicit CORVA_WLMAApp(ApplicationParts parts);
    ~CORVA_WLMAApp();
    CORVA_WLMAApp(const CORVA_WLMAApp&) = delete;
    CORVA_WLMAApp& operator=(const CORVA_WLMAApp&) = delete;

    // Runs once; later calls do nothing.
    void InitInstance();
    // Closes a controller that still exists.
    void ExitInstance();
    void SetWLMBrowserWnd(ZelCommon::Platform::WindowHandle window);

    bool IsStarted() const { return m_started; }

private:
    void StartSettings();

    ApplicationParts m_parts;
    bool m_started = false;
    std::unique_ptr<ZelCommon::Win32::ResourceHandle> m_mui;
};

}  // namespace Orva::Plugin
