#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "SimulatedControllerWindow.h"
#include "SimulatedMessageLoop.h"
#include "SimulatedProcess.h"
#include "plugin/agent/AgentLink.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/ORVA_WLMAApp.h"

namespace Orva::Sim {

// A mail client with the add-in loaded: the real application object and controller in a
// simulated process, driven by what the plug-in host, the user and the agent do. After each
// action the client's message loop runs until it is idle and a second goes by.
class SimulatedMailClient {
public:
    explicit SimulatedMailClient(int mailClientVersion);
    ~SimulatedMailClient();
    SimulatedMailClient(const SimulatedMailClient&) = delete;
    SimulatedMailClient& operator=(const SimulatedMailClient&) = delete;

    // The plug-in host loads the add-in and calls InitializePlugin.
    void LoadAddin();
    // The host's init object reports that the client is ready.
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
    // An entry of the logo's drop-down (0 settings ... 4 about).
    void ClickDropDownEntry(int32_t entry);
    // The host reports the shut-down, then unloads the add-in.
    void ShutDown();

    // The journal entries written since the previous call.
    std::vector<std::wstring> TakeNewEntries();

    SimulatedProcess& Process() { return m_process; }
    bool ControllerExists() const;
    const Orva::Plugin::CToolBarController* Controller() const;

private:
    void Settle();
    void ClickReportButton(int32_t ribbonButton, uint32_t agentMessage);

    SimulatedProcess m_process;
    SimulatedMessageLoop m_loop;
    Orva::Plugin::CHostEventRelay m_relay;
    // The classic band's buttons talk to the agent themselves, through a link of their own.
    Orva::Plugin::CAgentLink m_bandAgentLink;
    // Owned by the application object; cleared when the application lets it go.
    SimulatedControllerWindow* m_controllerWindow = nullptr;
    std::unique_ptr<Orva::Plugin::CORVA_WLMAApp> m_app;
    ZelCommon::Platform::WindowHandle m_suiteWindow = 0;
    std::size_t m_entriesTaken = 0;
};

}  // namespace Orva::Sim
