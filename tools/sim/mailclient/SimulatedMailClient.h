#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "SimulatedControllerWindow.h"
#include "SimulatedMailbox.h"
#include "SimulatedMessageLoop.h"
#include "SimulatedProcess.h"
#include "plugin/ORVA_WLMAApp.h"
#include "plugin/agent/AgentLink.h"
#include "plugin/host/HostEventRelay.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Sim {

// A mail client with the add-in loaded: the real application object and controller in a
// simulated process, driven by what the plug-in host, the user and the agent do. After each
// action the client's message loop runs until it is idle and a second goes by.
class SimulatedMailClient {
public:
    // `mailbox` is the user's mail store, which outlives the session.
    SimulatedMailClient(int mailClientVersion, AccountKind defaultAccount,
                        SimulatedMailbox& mailbox);
    ~SimulatedMailClient();
    SimulatedMailClient(const SimulatedMailClient&) = delete;
    SimulatedMailClient& operator=(const SimulatedMailClient&) = delete;

    // The plug-in host loads the add-in and calls InitializePlugin.
    void LoadAddin();
    // The host's init object reports that the client is ready; the ribbon it then shows is
    // journaled.
    void HostReady();
    // The agent tells the controller that it runs.
    void AgentReportsRunning();
    void SelectFolder(uint64_t folderId);
    // The report buttons: the ribbon's, or the classic band's when no ribbon was built.
    void ClickReportSpam();
    void ClickNotSpam();
    // The agent asks the controller to delete the spam of a folder (WM_COPYDATA 1078).
    void AgentDeletesAllSpam(uint64_t folderId, uint64_t messageId, bool allMarked);
    void SuiteWindowAppears();
    void SuiteWindowGoes();
    // An entry of the logo's drop-down (0 settings ... 4 about); the ribbon is journaled after.
    void ClickDropDownEntry(int32_t entry);
    // The agent asks the controller to import the user's contacts (4032).
    void AgentAsksContactImport();
    // The user's blocked list, as an earlier session left it.
    void SetBlockedSenders(const std::vector<std::wstring>& addresses);
    // What the user's list files hold, one journal entry each.
    void JournalListFiles();
    // The host reports the shut-down, then unloads the add-in.
    void ShutDown();

    // A setting of the user's own settings file, as the user would have chosen it.
    void SetUserSetting(const std::wstring& section, const std::wstring& key,
                        const std::wstring& value);
    // What a folder of the mailbox holds now, as a journal entry.
    void JournalFolder(const std::wstring& name, Orva::MailStore::StoreId folder);

    // The journal entries written since the previous call.
    std::vector<std::wstring> TakeNewEntries();

    SimulatedProcess& Process() { return m_process; }
    bool ControllerExists() const;
    const Orva::Plugin::CToolBarController* Controller() const;

private:
    void Settle();
    // What the host's ribbon shows now, one journal entry per item.
    void JournalRibbon();
    void ClickReportButton(int32_t ribbonButton, uint32_t agentMessage);

    // Wired as the add-in's DLL wires itself, on the simulated process.
    SimulatedProcess m_process;
    SimulatedMailbox& m_mailbox;
    SimulatedMessageLoop m_loop;
    Orva::Plugin::CHostEventRelay m_relay;
    // The classic band's buttons talk to the agent themselves, through a link of their own.
    Orva::Plugin::CAgentLink m_bandAgentLink;
    Orva::Settings::SettingsPaths m_paths;
    Orva::Settings::SettingsStore m_settings;
    Orva::Plugin::CAgentLink m_agent;
    ZelResourceStringLoader m_strings;
    SimulatedControllerWindow m_window;
    Orva::Plugin::CORVA_WLMAApp m_app;
    // The controller while the add-in is loaded: from its start-up to the end of the shut-down.
    SimulatedControllerWindow* m_controllerWindow = nullptr;
    ZelCommon::Platform::WindowHandle m_suiteWindow = 0;
    std::size_t m_entriesTaken = 0;
};

}  // namespace Orva::Sim
