#include "plugin/ORVA_WLMAApp.h"

#include <utility>

#include "common_src/win32/MuiResource.h"
#include "settings/probes/FileVersionReader.h"
#include "settings/SettingsStartup.h"

namespace Orva::Plugin {

CORVA_WLMAApp::CORVA_WLMAApp(ApplicationPorts ports, ControllerFactory createController)
    : m_ports(std::move(ports)),
      m_createController(std::move(createController)),
      m_strings(m_ports.strings) {}

CORVA_WLMAApp::~CORVA_WLMAApp() = default;

void CORVA_WLMAApp::InitInstance() {
    if (IsStarted()) {
        return;
    }
    m_paths = Orva::Settings::ComputeSettingsPaths(m_ports.process, m_ports.registry);
    const bool windows64 = m_ports.strings.isWindows64 && m_ports.strings.isWindows64();
    m_settings.emplace(m_ports.profile, Orva::Settings::FilesOf(*m_paths, windows64));

    m_agent.emplace(m_ports.messaging, m_ports.clock, m_ports.launcher, m_ports.log,
                    m_paths->addinFolder);
    m_agent->LaunchShadow();

    m_mui = ZelCommon::Win32::LoadMuiResource(
        [this] { return m_strings.GetResFolderByAutoDetectLanguage(); }, m_ports.debugger);

    if (m_createController) {
        m_controller =
            m_createController(ApplicationContext{*m_paths, *m_settings, *m_agent, m_strings});
    }
    StartSettings(windows64);
}

// The controller's settings start: the log is switched on here, so everything before it (the
// agent's launch included) is only ever seen on the debugger output.
void CORVA_WLMAApp::StartSettings(bool windows64) {
    const Orva::Settings::FileVersionReader module(m_ports.process.ModuleFilePath());
    const std::wstring version = module.Query(L"FileVersion").value_or(std::wstring());
    Orva::Settings::StartAddinSettings(*m_paths, m_ports.profile, windows64, version, m_ports.log);
}

void CORVA_WLMAApp::ExitInstance() {
    if (m_controller && m_controller->Exists()) {
        m_controller->Close();
    }
}

void CORVA_WLMAApp::SetWLMBrowserWnd(ZelCommon::Platform::WindowHandle window) {
    if (m_controller && m_controller->Exists()) {
        m_controller->SetMailClientWindow(window);
    }
}

}  // namespace Orva::Plugin
