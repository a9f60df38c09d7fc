#pragma once

#include <string_view>

#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowMessaging.h"
#include "plugin/agent/AgentNotices.h"
#include "plugin/controller/ControllerParts.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/OnlineHelpTopic.h"
#include "settings/localisation/ZelResourceStringLoader.h"
#include "settings/log/DebugLog.h"
#include "ui/ContactImport.h"
#include "ui/EditSenderDialog_win.h"
#include "ui/FilteringSheetModel.h"
#include "ui/MessageBoxes_win.h"
#include "ui/PageServices.h"
#include "ui/PasswordProtector_win.h"
#include "ui/SheetWindows_win.h"

namespace Orva::Plugin {

// The windows of the add-in: the filtering sheet, the statistics dialog, the About box and the
// unsupported-server notice, modal over the mail client's main window, and the updates dialog,
// which the About box opens. The approved-sender page starts the contact import through it.
class CAddinDialogs final : public ICommandDialogs, public Ui::IContactImport {
public:
    struct Parts {
        Settings::SettingsStore& settings;
        const Settings::SettingsPaths& paths;
        ILocalisedStrings& strings;
        ZelResourceStringLoader& loader;
        ZelCommon::Platform::IShellOpen& shell;
        ZelCommon::Platform::IWindowMessaging& messaging;
        ZelCommon::Library::DebugLog& log;
    };

    explicit CAddinDialogs(const Parts& parts);

    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) { m_mailClient = window; }

    void OpenFilteringSheet() override;
    void OpenStatistics() override;
    void OpenOnlineHelp() override { OpenHelpTopic(Settings::kSpamFilterHelpTopic); }
    void OpenAbout() override;
    bool ShowUnsupportedServerNotice() override;
    // The agent's request (4032): the contacts into the approved list, over the mail client.
    void ImportContacts() override;
    // The approved page's import button: the page saves before and reloads and tells the agent
    // after.
    void RunContactImport(ZelCommon::Platform::WindowHandle owner) override { RunImport(owner); }
    // The ribbon has no entry for it: the About box offers it.
    void OpenUpdates() { RunUpdates(m_mailClient); }

private:
    void OpenHelpTopic(std::wstring_view topic);
    void RunUpdates(ZelCommon::Platform::WindowHandle owner);
    // False when it did not run, or saved nothing.
    bool RunImport(ZelCommon::Platform::WindowHandle owner);

    CAgentNotices m_agent;
    Ui::PageServices m_services;
    Ui::SheetPaths m_sheetPaths;
    ZelResourceStringLoader& m_loader;
    ZelCommon::Platform::IShellOpen& m_shell;
    ZelCommon::Platform::IWindowMessaging& m_messaging;
    ZelCommon::Library::DebugLog& m_log;
    Ui::CUserPasswordProtector m_protector;
    Ui::CSheetWindows m_windows;
    Ui::CMessageBoxes m_boxes;
    Ui::CEditSenderDialogs m_editSender;
    ZelCommon::Platform::WindowHandle m_mailClient = 0;
    // The import window answers messages while it runs, the agent's among them: a request
    // that comes meanwhile is dropped.
    bool m_importing = false;
};

}  // namespace Orva::Plugin
