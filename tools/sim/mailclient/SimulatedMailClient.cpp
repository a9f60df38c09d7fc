#include "SimulatedMailClient.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"
#include "lists/ListBackup.h"
#include "lists/SenderListSet.h"
#include "lists/SenderLists.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {

using namespace Orva::Plugin;

namespace {

void PutLittleEndian(std::span<std::byte> out, uint64_t value) {
    for (std::byte& byte : out) {
        byte = static_cast<std::byte>(value & 0xFFu);
        value >>= 8;
    }
}

}  // namespace

SimulatedMailClient::SimulatedMailClient(int mailClientVersion, AccountKind defaultAccount,
                                         SimulatedMailbox& mailbox)
    : m_process(mailClientVersion, defaultAccount),
      m_mailbox(mailbox),
      m_relay(m_process.messaging, m_process.log),
      m_bandAgentLink(m_process.messaging, m_process.clock, m_process.launcher, m_process.log,
                      m_process.AddinFolder()),
      m_paths(Orva::Settings::ComputeSettingsPaths(m_process.process, m_process.registry,
                                                   m_process.log)),
      m_settings(m_process.profile, Orva::Settings::FilesOf(m_paths, false)),
      m_agent(m_process.messaging, m_process.clock, m_process.launcher, m_process.log,
              m_paths.addinFolder),
      m_strings(m_process.StringServices()),
      m_window(m_process, m_loop, m_settings, m_agent, m_strings, m_paths.installFile,
               mailbox.Store(), m_paths.userFolder),
      m_app(ApplicationParts{m_process.process, m_process.debugger, m_process.log, m_paths,
                             m_settings, m_agent, m_strings, m_window}) {
    m_process.profile.SetJournal(&m_process.journal);
}

SimulatedMailClient::~SimulatedMailClient() {
    // As the unloading of the add-in would: the application object closes what still lives.
    try {
        m_app.ExitInstance();
    } catch (...) {
        // Nothing is left to report to at this point.
    }
}

void SimulatedMailClient::LoadAddin() {
    m_app.InitInstance();
    if (m_window.Exists()) {
        m_controllerWindow = &m_window;
    }
    // What the export itself does once the start-up ran.
    m_process.debugger.Write(L"ORVA InitializePlugin()");
    Settle();
}

void SimulatedMailClient::HostReady() {
    m_relay.OnReady();
    Settle();
    JournalRibbon();
}

void SimulatedMailClient::JournalRibbon() {
    if (m_controllerWindow != nullptr) {
        for (const ZelCommon::Fakes::FakeRibbonItem& item : m_controllerWindow->Toolbar().items) {
            m_process.journal.Add(L"ribbon " + item.Describe());
        }
    }
}

void SimulatedMailClient::AgentReportsRunning() {
    m_process.messaging.Post(m_process.messaging.FindByClass(std::wstring(kControllerClassName)),
                             ControllerMessage::AgentReady, 0, 0);
    Settle();
}

void SimulatedMailClient::SelectFolder(uint64_t folderId) {
    m_relay.OnFolderSelectionChanged(folderId);
    Settle();
}

void SimulatedMailClient::ClickReportSpam() {
    const auto* controller = Controller();
    ClickReportButton(controller != nullptr ? controller->Ribbon().reportSpam : 0,
                      AgentMessage::ReportSpam);
}

void SimulatedMailClient::ClickNotSpam() {
    const auto* controller = Controller();
    ClickReportButton(controller != nullptr ? controller->Ribbon().notSpam : 0,
                      AgentMessage::ReportNotSpam);
}

void SimulatedMailClient::ClickReportButton(int32_t ribbonButton, uint32_t agentMessage) {
    const auto* controller = Controller();
    if (controller != nullptr && controller->Ribbon().group != 0) {
        m_relay.OnToolbarButtonClicked(controller->Ribbon().group, ribbonButton);
    } else if (m_controllerWindow != nullptr && m_controllerWindow->HasClassicBand()) {
        m_process.journal.Add(
            ZelCommon::Text::Format(L"classic band button clicked, command %u", agentMessage));
        m_bandAgentLink.SendButtonCommand(agentMessage);
    } else {
        m_process.journal.Add(L"no toolbar: there is no button to click");
    }
    Settle();
}

void SimulatedMailClient::AgentDeletesAllSpam(uint64_t folderId, uint64_t messageId,
                                              bool allMarked) {
    std::array<std::byte, kDeleteAllSpamPayloadSize> record{};
    PutLittleEndian(std::span(record).subspan(0, 8), folderId);
    PutLittleEndian(std::span(record).subspan(8, 8), messageId);
    record[16] = allMarked ? std::byte{1} : std::byte{0};
    if (m_controllerWindow != nullptr) {
        m_controllerWindow->SendCopyData(kDeleteAllSpamCopyDataId, record);
    }
    Settle();
}

void SimulatedMailClient::SuiteWindowAppears() {
    if (m_suiteWindow == 0) {
        m_suiteWindow = m_process.OpenWindow(std::wstring(kSuiteWindowTitle));
    }
}

void SimulatedMailClient::SuiteWindowGoes() {
    if (m_suiteWindow != 0) {
        m_process.CloseWindow(m_suiteWindow);
        m_suiteWindow = 0;
    }
}

void SimulatedMailClient::ClickDropDownEntry(int32_t entry) {
    const auto* controller = Controller();
    if (controller != nullptr && controller->Ribbon().group != 0) {
        m_relay.OnSubButtonClicked(entry);
        Settle();
        JournalRibbon();
        return;
    } else if (m_controllerWindow != nullptr && m_controllerWindow->HasClassicBand()) {
        m_process.journal.Add(L"classic band: its drop-down is not simulated");
    } else {
        m_process.journal.Add(L"no toolbar: there is no drop-down to open");
    }
    Settle();
}

void SimulatedMailClient::AgentAsksContactImport() {
    m_process.messaging.Post(m_process.messaging.FindByClass(std::wstring(kControllerClassName)),
                             ControllerMessage::ImportContacts, 0, 0);
    Settle();
}

void SimulatedMailClient::SetBlockedSenders(const std::vector<std::wstring>& addresses) {
    ZelCommon::Path::CreateFolderWithParents(m_paths.userFolder);
    Orva::Lists::CBListSet blocked;
    for (const std::wstring& address : addresses) {
        blocked.Add(address.c_str(), {L"", address});
    }
    blocked.SaveTo(Orva::Lists::BlockedListPath(m_paths.userFolder));
}

void SimulatedMailClient::JournalListFiles() {
    const Orva::Lists::SenderListPaths paths = Orva::Lists::SenderListPathsIn(m_paths.userFolder);
    const auto describe = [this](const wchar_t* name, const auto& set) {
        std::wstring entry =
            ZelCommon::Text::Format(L"%s holds %u:", name, static_cast<unsigned>(set.Count()));
        for (const Orva::Lists::SenderEntry& sender : set.Entries()) {
            entry += L" " + sender.address;
        }
        m_process.journal.Add(entry);
    };
    Orva::Lists::CWListSet approved;
    approved.Load(paths.approved);
    describe(L"WhiteList.dat", approved);
    for (const std::wstring& path : {paths.blocked, Orva::Lists::BackupPathOf(paths.blocked)}) {
        Orva::Lists::CBListSet blocked;
        blocked.Load(path);
        describe(std::wstring(ZelCommon::Path::FileNameOf(path)).c_str(), blocked);
    }
}

void SimulatedMailClient::ShutDown() {
    m_relay.OnShutdown();
    Settle();
    m_app.ExitInstance();
    m_controllerWindow = nullptr;
}

void SimulatedMailClient::SetUserSetting(const std::wstring& section, const std::wstring& key,
                                         const std::wstring& value) {
    ZelCommon::Path::CreateFolderWithParents(m_paths.userFolder);
    m_process.profile.WriteString(section.c_str(), key.c_str(), value.c_str(),
                                  m_paths.userFile.c_str());
}

void SimulatedMailClient::JournalFolder(const std::wstring& name, Orva::MailStore::StoreId folder) {
    m_process.journal.Add(m_mailbox.Describe(name, folder));
}

std::vector<std::wstring> SimulatedMailClient::TakeNewEntries() {
    const std::vector<std::wstring> all = m_process.journal.Entries();
    const auto first =
        all.begin() + static_cast<std::ptrdiff_t>(std::min(m_entriesTaken, all.size()));
    m_entriesTaken = all.size();
    return {first, all.end()};
}

bool SimulatedMailClient::ControllerExists() const {
    return m_controllerWindow != nullptr && m_controllerWindow->Exists();
}

const CToolBarController* SimulatedMailClient::Controller() const {
    return m_controllerWindow != nullptr ? &m_controllerWindow->Controller() : nullptr;
}

void SimulatedMailClient::Settle() {
    m_loop.RunPending();
    if (m_controllerWindow != nullptr) {
        m_controllerWindow->LetTimersFire();
        m_loop.RunPending();
    }
}

}  // namespace Orva::Sim
