#include "MailClientScenario.h"

#include <functional>

#include "SimulatedMailClient.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {
namespace {

struct StepScript {
    const wchar_t* title;
    std::function<void(SimulatedMailClient&)> act;
};

// An Inbox as the store numbers it, and a message in it.
constexpr uint64_t kSelectedFolder = 0x100000002;
constexpr uint64_t kSpamFolder = 0x10000000B;
constexpr uint64_t kSpamMessage = 0x2A;

}  // namespace

std::vector<ScenarioStep> RunMailClientScenario(int mailClientVersion, AccountKind defaultAccount) {
    const StepScript script[] = {
        {L"The host loads the add-in and calls InitializePlugin",
         [](SimulatedMailClient& client) { client.LoadAddin(); }},
        {L"The host is ready: the controller builds its user interface",
         [](SimulatedMailClient& client) { client.HostReady(); }},
        {L"The agent reports that it runs",
         [](SimulatedMailClient& client) { client.AgentReportsRunning(); }},
        {L"The user selects a folder",
         [](SimulatedMailClient& client) { client.SelectFolder(kSelectedFolder); }},
        {L"The user clicks Report spam",
         [](SimulatedMailClient& client) { client.ClickReportSpam(); }},
        {L"The agent asks the controller to delete all spam",
         [](SimulatedMailClient& client) {
             client.AgentDeletesAllSpam(kSpamFolder, kSpamMessage, true);
         }},
        {L"The companion suite's window appears, the user clicks Not spam, the window goes",
         [](SimulatedMailClient& client) {
             client.SuiteWindowAppears();
             client.ClickNotSpam();
             client.SuiteWindowGoes();
         }},
        {L"The user switches the add-in off from the drop-down",
         [](SimulatedMailClient& client) {
             client.ClickDropDownEntry(Orva::Plugin::DropDownEntry::OnOff);
         }},
        {L"The mail client shuts down", [](SimulatedMailClient& client) { client.ShutDown(); }},
    };

    SimulatedMailClient client(mailClientVersion, defaultAccount);
    std::vector<ScenarioStep> steps;
    int number = 0;
    for (const StepScript& step : script) {
        step.act(client);
        steps.push_back({++number, step.title, client.TakeNewEntries()});
    }
    return steps;
}

}  // namespace Orva::Sim
