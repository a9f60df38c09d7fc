#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/WindowMessaging.h"
#include "common_src/win32/ResourceHandle.h"
#include "plugin/agent/AgentLink.h"
#include "settings/log/DebugLog.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/StringLoaderServices.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Plugin {

// The controller window as the application object owns it.
class IControllerHandle {
public:
    virtual ~IControllerHandle() = default;
    // False once the window has been destroyed (its WM_CLOSE ran).
    virtual bool Exists() const = 0;
    // Closes the window at the add-in's exit.
    virtual void Close() = 0;
    // The mail client's main window, handed in by SetWLMBrowserWnd.
    virtual void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) = 0;
};

// What the application object hands the controller it creates: the folders fixed at start and
// the services the application owns for the process lifetime.
struct ApplicationContext {
    const Orva::Settings::SettingsPaths& paths;
    Orva::Settings::SettingsStore& settings;
    CAgentLink& agent;
    ZelResourceStringLoader& strings;
};

// Creates the controller window; null when the window could not be created.
using ControllerFactory =
    std::function<std::unique_ptr<IControllerHandle>(const ApplicationContext& context)>;

struct ApplicationPorts {
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Platform::IDebuggerOutput& debugger;
    ZelCommon::Platform::IWindowMessaging& messaging;
    ZelCommon::Platform::IClock& clock;
    ZelCommon::Platform::IProcessLauncher& launcher;
    ZelCommon::Storage::IRegistryApi& registry;
    ZelCommon::Storage::IProfileApi& profile;
    ZelCommon::Library::DebugLog& log;
    Orva::Settings::StringLoaderServices strings;
};

// The add-in's application object: starts the agent, the language resources and the controller
// window when the add-in is loaded, and closes the controller when it is unloaded.
class CORVA_WLMAApp {
public:
    CORVA_WLMAApp(ApplicationPorts ports, ControllerFactory createController);
    ~CORVA_WLMAApp();
    CORVA_WLMAApp(const CORVA_WLMAApp&) = delete;
    CORVA_WLMAApp& operator=(const CORVA_WLMAApp&) = delete;

    // Runs once; later calls do nothing.
    void InitInstance();
    // Closes a controller that still exists; what the application holds is released with it.
    void ExitInstance();
    void SetWLMBrowserWnd(ZelCommon::Platform::WindowHandle window);

    bool IsStarted() const { return m_paths.has_value(); }
    bool HasController() const { return m_controller != nullptr; }
    const Orva::Settings::SettingsPaths& Paths() const { return *m_paths; }

private:
    void StartSettings(bool windows64);

    ApplicationPorts m_ports;
    ControllerFactory m_createController;
    std::optional<Orva::Settings::SettingsPaths> m_paths;
    std::optional<Orva::Settings::SettingsStore> m_settings;
    std::optional<CAgentLink> m_agent;
    ZelResourceStringLoader m_strings;
    std::unique_ptr<ZelCommon::Win32::ResourceHandle> m_mui;
    std::unique_ptr<IControllerHandle> m_controller;
};

}  // namespace Orva::Plugin
