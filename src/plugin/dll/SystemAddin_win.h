#pragma once

#include <windows.h>

#include <memory>

#include "common_src/platform/Event.h"
#include "common_src/platform/WindowProcedureHook.h"
#include "mailstore/MailStore.h"
#include "mailstore/SpamFolderStrings.h"
#include "mailstore/SpamMailFolder.h"
#include "plugin/ORVA_WLMAApp.h"
#include "plugin/agent/AgentLink.h"
#include "plugin/controller/AbsentClassicBand.h"
#include "plugin/controller/CommandDialogs.h"
#include "plugin/controller/MailClientAccountCheck.h"
#include "plugin/controller/MailClientVersion.h"
#include "plugin/controller/MailStoreSpamFolder.h"
#include "plugin/controller/RibbonToolbar.h"
#include "plugin/controller/ToolBarWnd_win.h"
#include "plugin/dll/AccountManagerWatcher_win.h"
#include "plugin/dll/AddinDialogs_win.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/host/HostObjects.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/LoaderStrings.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// The controller window on the system's ports and everything behind it; the window, declared
// last, goes first.
class CSystemController final : public IControllerHandle {
public:
    CSystemController(HINSTANCE module, Orva::Settings::SettingsStore& settings, CAgentLink& agent,
                      ZelResourceStringLoader& strings, const Orva::Settings::SettingsPaths& paths,
                      ZelCommon::Library::DebugLog& log);

    bool Open() override;
    bool Exists() const override { return m_window && m_window->Exists(); }
    // The exit runs at unload, under the loader lock, where the controller's own close (a wait
    // for a shutdown the host will never signal, COM's and GDI+'s shut-down) must not run: the
    // host's sinks are unadvised and its objects released, and the window goes with its class
    // and the hook on the mail client's window, so nothing calls into the unloaded image.
    void Close() override;
    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) override;

private:
    HINSTANCE m_module;
    Orva::Settings::SettingsStore& m_settings;
    CAgentLink& m_agent;
    ZelCommon::Library::DebugLog& m_log;
    CHostEventRelay m_relay;
    std::unique_ptr<IHostObjects> m_host;
    std::unique_ptr<ZelCommon::Platform::IEvent> m_shutdownDone;
    std::unique_ptr<ZelCommon::Platform::IWindowProcedureHook> m_hook;
    CMailClientVersion m_version;
    Orva::Settings::CLoaderStrings m_strings;
    CRibbonToolbar m_ribbon;
    CMailClientAccountCheck m_accountCheck;
    CAbsentClassicBand m_classicBand;
    CAddinDialogs m_addinDialogs;
    CCommandDialogs m_dialogs;
    // The spam folder on the host's store, with a string loader of its own.
    std::unique_ptr<Orva::MailStore::IMailStoreFactory> m_mailStore;
    ZelResourceStringLoader m_spamFolderLoader;
    Orva::MailStore::CLoaderSpamFolderStrings m_spamFolderStrings;
    CAccountManagerSinkWatcher m_accountManagerWatcher;
    Orva::MailStore::CSpamMailFolder m_spamMailFolder;
    CMailStoreSpamFolder m_spamFolder;
    std::unique_ptr<CToolBarWnd> m_window;
};

// The whole add-in, wired once on the system's ports at the host's first call: the folders, the
// one settings store, the agent link, the string loader and the controller, handed to the
// application object.
class CSystemAddin {
public:
    explicit CSystemAddin(HINSTANCE module);
    CSystemAddin(const CSystemAddin&) = delete;
    CSystemAddin& operator=(const CSystemAddin&) = delete;

    CORVA_WLMAApp& App() { return m_app; }

private:
    ZelCommon::Library::DebugLog& m_log;
    Orva::Settings::SettingsPaths m_paths;
    Orva::Settings::SettingsStore m_settings;
    CAgentLink m_agent;
    ZelResourceStringLoader m_strings;
    CSystemController m_controller;
    CORVA_WLMAApp m_app;
};

}  // namespace Orva::Plugin
