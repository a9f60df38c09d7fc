#include "plugin/dll/AddinDialogs_win.h"

#include <utility>

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/ProcessLauncher.h"
#include "plugin/agent/AgentListNotifier.h"
#include "plugin/host/Contacts_win.h"
#include "settings/localisation/OnlineHelpTopic.h"
#include "ui/AboutContent.h"
#include "ui/AboutDialog_win.h"
#include "ui/ConfirmationDialog_win.h"
#include "ui/ContactImportRun.h"
#include "ui/FilteringSheetOpener.h"
#include "ui/ImportDialog_win.h"
#include "ui/StatisticsDialog_win.h"
#include "ui/UpdatesDialog_win.h"

namespace Orva::Plugin {

CAddinDialogs::CAddinDialogs(const Parts& parts)
    : m_agent(parts.messaging),
      m_services{parts.settings, m_agent, parts.strings, parts.log},
      // The fourth path is kept beside the others for the pages; none reads it.
      m_sheetPaths{parts.paths.userFile, parts.paths.userFolder, parts.paths.addinFolder,
                   parts.paths.dataRoot},
      m_loader(parts.loader),
      m_shell(parts.shell),
      m_messaging(parts.messaging),
      m_log(parts.log),
      m_windows([this](std::wstring_view topic) { OpenHelpTopic(topic); }),
      m_editSender(m_boxes, parts.strings) {}

void CAddinDialogs::OpenFilteringSheet() {
    Ui::OpenFilteringSheet(m_services, m_sheetPaths, {m_boxes, m_editSender, *this}, m_windows,
                           m_mailClient);
}

void CAddinDialogs::OpenAbout() {
    Ui::CAboutDlg about(Ui::ReadAboutContent(m_services.settings, m_services.strings,
                                             m_sheetPaths.programFolder, Ui::ThisModuleVersion()),
                        m_services, m_shell, [this](HWND owner) {
                            RunUpdates(reinterpret_cast<ZelCommon::Platform::WindowHandle>(owner));
                        });
    about.RunModal(reinterpret_cast<HWND>(m_mailClient));
}

bool CAddinDialogs::ShowUnsupportedServerNotice() {
    Ui::CConfirmationDlg notice(m_services.strings.LoadShown(L"IDS_CAPTION_UNSUPPORTED"),
                                m_services.strings.LoadShown(L"IDS_MSG_UNSUPPORTED"),
                                m_services.strings);
    notice.RunModal(reinterpret_cast<HWND>(m_mailClient));
    return notice.DontShowAgain();
}

void CAddinDialogs::OpenStatistics() {
    Ui::RunStatisticsDialog(m_services, m_boxes, reinterpret_cast<HWND>(m_mailClient));
}

void CAddinDialogs::ImportContacts() {
    // The agent asked for the import: it rereads the lists it changed.
    if (RunImport(m_mailClient)) {
        CAgentListNotifier(m_messaging).SenderListsChanged();
    }
}

bool CAddinDialogs::RunImport(ZelCommon::Platform::WindowHandle owner) {
    if (std::exchange(m_importing, true)) {
        return false;
    }
    const struct Done {
        bool& importing;
        ~Done() { importing = false; }
    } done{m_importing};
    const std::unique_ptr<IContactsLibrary> contacts = CreateSystemContacts();
    Ui::CImportDlg progress(m_services.strings, reinterpret_cast<HWND>(owner));
    return Ui::ImportContactList({*contacts, progress, m_boxes, m_services.strings, m_messaging,
                                  ZelCommon::Platform::SystemProcessContext(), m_log},
                                 Lists::SenderListPathsIn(m_sheetPaths.dataFolder))
        .saved;
}

void CAddinDialogs::RunUpdates(ZelCommon::Platform::WindowHandle owner) {
    Ui::RunUpdatesDialog(m_services,
                         {ZelCommon::Storage::SystemRegistryApi(), m_messaging,
                          ZelCommon::Platform::SystemProcessLauncher()},
                         m_sheetPaths.programFolder, {m_boxes, m_protector},
                         reinterpret_cast<HWND>(owner));
}

void CAddinDialogs::OpenHelpTopic(std::wstring_view topic) {
    Settings::OpenOnlineHelpTopic(topic, m_loader, m_shell, m_log);
}

}  // namespace Orva::Plugin
