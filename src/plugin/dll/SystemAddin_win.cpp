#include "plugin/dll/SystemAddin_win.h"

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/Keyboard.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowMessaging.h"
#include "mailstore/MailStore_win.h"
#include "settings/localisation/StringLoaderServices.h"
#include "settings/probes/OsInfo.h"
#include "settings/probes/OsVersion.h"

namespace Orva::Plugin {

using namespace ZelCommon::Platform;

CSystemController::CSystemController(HINSTANCE module, Orva::Settings::SettingsStore& settings,
                                     CAgentLink& agent, ZelResourceStringLoader& strings,
                                     const Orva::Settings::SettingsPaths& paths,
                                     ZelCommon::Library::DebugLog& log)
    : m_module(module),
      m_settings(settings),
      m_agent(agent),
      m_log(log),
      m_relay(SystemWindowMessaging(), m_log),
      m_host(CreateSystemHostObjects(m_relay, m_log)),
      m_shutdownDone(CreateAutoResetEvent()),
      m_hook(CreateWindowProcedureHook(CToolBarWnd::MainWindowHookProcedure())),
      m_strings(strings, paths.installFile, ZelCommon::Storage::SystemProfileApi()),
      m_ribbon(m_host->Toolbar(), m_strings, SystemProcessContext(),
               Orva::Settings::DefaultInstallFolder(), m_log),
      m_accountCheck({ZelCommon::Storage::SystemRegistryApi(), SystemProcessContext(), m_log}),
      m_classicBand(m_log),
      m_addinDialogs(
          {settings, paths, m_strings, strings, SystemShellOpen(), SystemWindowMessaging(), m_log}),
      m_dialogs(strings, SystemShellOpen(), m_addinDialogs, m_log),
      m_mailStore(Orva::MailStore::CreateSystemMailStore()),
      m_spamFolderLoader(Orva::Settings::SystemStringLoaderServices()),
      m_spamFolderStrings(m_spamFolderLoader, ZelCommon::Storage::SystemProfileApi(),
                          settings.Files().installFile),
      m_accountManagerWatcher(m_relay, m_log),
      m_spamMailFolder({*m_mailStore, m_spamFolderStrings, settings, SystemProcessContext(), m_log,
                        m_accountManagerWatcher}),
      m_spamFolder(m_spamMailFolder, m_log) {}

bool CSystemController::Open() {
    m_window = CToolBarWnd::Create(
        m_module,
        ControllerPorts{SystemWindowMessaging(), SystemClock(), *m_shutdownDone, *m_hook,
                        SystemShellOpen(), SystemKeyboard(), SystemProcessContext(),
                        SystemDebuggerOutput(), Orva::Settings::SystemOsInfo(), *m_host, m_version,
                        m_log},
        ControllerParts{m_ribbon, m_classicBand, m_spamFolder, m_accountCheck, m_dialogs, m_strings,
                        m_settings, m_agent},
        m_log);
    return m_window != nullptr;
}

void CSystemController::Close() {
    if (m_window) {
        m_window->Controller().ReleaseHostAtUnload();
    }
    m_accountManagerWatcher.Disconnect();
    m_window.reset();
}

void CSystemController::SetMailClientWindow(WindowHandle window) {
    m_addinDialogs.SetMailClientWindow(window);
    if (m_window) {
        m_window->SetMailClientWindow(window);
    }
}

CSystemAddin::CSystemAddin(HINSTANCE module)
    : m_log(ZelCommon::Library::TheLog()),
      m_paths(Orva::Settings::ComputeSettingsPaths(SystemProcessContext(),
                                                   ZelCommon::Storage::SystemRegistryApi(), m_log)),
      m_settings(ZelCommon::Storage::SystemProfileApi(),
                 Orva::Settings::FilesOf(m_paths, Orva::Settings::CComUtilSet::IsWindows64())),
      m_agent(SystemWindowMessaging(), SystemClock(), SystemProcessLauncher(), m_log,
              m_paths.addinFolder),
      m_strings(Orva::Settings::SystemStringLoaderServices()),
      m_controller(module, m_settings, m_agent, m_strings, m_paths, m_log),
      m_app(ApplicationParts{SystemProcessContext(), SystemDebuggerOutput(), m_log, m_paths,
                             m_settings, m_agent, m_strings, m_controller}) {}

}  // namespace Orva::Plugin
