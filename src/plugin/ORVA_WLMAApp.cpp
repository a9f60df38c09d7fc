#include "plugin/ORVA_WLMAApp.h"

#include "common_src/win32/MuiResource.h"
#include "plugin/DefaultEncodings.h"
#include "settings/DebugLogSwitch.h"
#include "settings/SettingsStartup.h"
#include "settings/probes/FileVersionReader.h"

namespace Orva::Plugin {

CORVA_WLMAApp::CORVA_WLMAApp(ApplicationParts parts) : m_parts(parts) {}

CORVA_WLMAApp::~CORVA_WLMAApp() = default;

void CORVA_WLMAApp::InitInstance() {
    if (m_started) {
        return;
    }
    m_started = true;
    Orva::Settings::CreateSettingsFolders(m_parts.paths);
    // Before the agent's launch, so that a launch that fails is in the log file.
    Orva::Settings::SwitchOnDebugLog(m_parts.settings, m_parts.paths.logFolder, m_parts.log);
    // Before the agent starts, so that it finds the encoding groups from its start.
    CopyDefaultEncodings(m_parts.paths.addinFolder, m_parts.paths.userFolder, m_parts.log);

    m_parts.agent.LaunchShadow();
    m_mui = ZelCommon::Win32::LoadMuiResource(
        [this] { return m_parts.strings.GetResFolderByAutoDetectLanguage(); }, m_parts.debugger);
    m_parts.controller.Open();
    StartSettings();
}

void CORVA_WLMAApp::StartSettings() {
    const Orva::Settings::FileVersionReader module(m_parts.process.ModuleFilePath());
    const std::wstring version = module.Query(L"FileVersion").value_or(std::wstring());
    Orva::Settings::StartAddinSettings(m_parts.settings, m_parts.paths, version, m_parts.log);
}

void CORVA_WLMAApp::ExitInstance() {
    if (m_parts.controller.Exists()) {
        m_parts.controller.Close();
    }
}

void CORVA_WLMAApp::SetWLMBrowserWnd(ZelCommon::Platform::WindowHandle window) {
    if (m_parts.controller.Exists()) {
        m_parts.controller.SetMailClientWindow(window);
    }
}

}  // namespace Orva::Plugin
