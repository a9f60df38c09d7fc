#include "MailClientScenario.h"

#include <functional>

#include "SimulatedMailClient.h"
#include "SimulatedMailbox.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {
namespace {

struct StepScript {
    const wchar_t* title;
    std::function<void(SimulatedMailClient&, SimulatedMailbox&)> act;
};

// An Inbox as the store numbers it, and a message id the agent names along with the folder.
constexpr uint64_t kSelectedFolder = 0x100000002;
constexpr uint64_t kSpamMessage = 0x2A;
constexpr wchar_t kSpamFolderName[] = L"Spam Mail";

void FillAndEmptySpamFolder(SimulatedMailClient& client, SimulatedMailbox& mailbox) {
    // Without a ribbon the folder was never made: the agent asks for the Inbox instead.
    const uint64_t spam = mailbox.TopFolder(kSpamFolderName).value_or(*mailbox.TopFolder(L"Inbox"));
    mailbox.Store().AddMessage(spam, SimulatedMailbox::QuarantinedMessage(L"You have won"));
    mailbox.Store().AddMessage(spam, SimulatedMailbox::QuarantinedMessage(L"Re: invoice"));
    mailbox.Store().AddMessage(spam, SimulatedMailbox::OwnMessage(L"Holiday photos"));
    client.JournalFolder(L"Spam Mail before the request", spam);
    client.AgentDeletesAllSpam(spam, kSpamMessage, true);
    client.JournalFolder(L"Spam Mail after it", spam);
}

const StepScript kFirstSession[] = {
    {L"The host loads the add-in and calls InitializePlugin",
     [](SimulatedMailClient& client, SimulatedMailbox&) { client.LoadAddin(); }},
    {L"The host is ready: the controller builds its user interface and makes the spam folder",
     [](SimulatedMailClient& client, SimulatedMailbox&) { client.HostReady(); }},
    {L"The agent reports that it runs",
     [](SimulatedMailClient& client, SimulatedMailbox&) { client.AgentReportsRunning(); }},
    {L"The user selects a folder",
     [](SimulatedMailClient& client, SimulatedMailbox&) { client.SelectFolder(kSelectedFolder); }},
    {L"The user clicks Report spam",
     [](SimulatedMailClient& client, SimulatedMailbox&) { client.ClickReportSpam(); }},
    {L"The agent quarantines two messages, the user drags one of his own into the spam folder, "
     L"and the agent asks to delete all spam",
     FillAndEmptySpamFolder},
    {L"The companion suite's window appears, the user clicks Not spam, the window goes",
     [](SimulatedMailClient& client, SimulatedMailbox&) {
         client.SuiteWindowAppears();
         client.ClickNotSpam();
         client.SuiteWindowGoes();
     }},
    {L"The agent asks for the import of the user's contacts; the user's blocked list is kept as "
     L"BlackList.dat.bak before the import rewrites it",
     [](SimulatedMailClient& client, SimulatedMailbox&) {
         client.SetBlockedSenders({L"offers@shop.example", L"*@spam.example"});
         client.Process().contacts.contacts = {
             {L"Anna Weber", {L"anna@example.com", L"a.weber@work.example", L"", L"", L""}},
             {L"Bob", {L"bob@example.com", L"BOB@example.com", L"not an address", L"", L""}}};
         client.AgentAsksContactImport();
         client.JournalListFiles();
     }},
    {L"The user switches the add-in off from the drop-down",
     [](SimulatedMailClient& client, SimulatedMailbox&) {
         client.ClickDropDownEntry(Orva::Plugin::DropDownEntry::OnOff);
     }},
    {L"The user has chosen to empty the deleted items too; the mail client shuts down",
     [](SimulatedMailClient& client, SimulatedMailbox& mailbox) {
         client.SetUserSetting(L"General", L"DeleteDeleted", L"1");
         client.ShutDown();
         client.JournalFolder(L"Deleted Items", mailbox.DeletedItems());
     }},
};

}  // namespace

std::vector<ScenarioStep> RunMailClientScenario(int mailClientVersion, AccountKind defaultAccount) {
    SimulatedMailbox mailbox;
    std::vector<ScenarioStep> steps;
    int number = 0;
    {
        SimulatedMailClient client(mailClientVersion, defaultAccount, mailbox);
        for (const StepScript& step : kFirstSession) {
            step.act(client, mailbox);
            steps.push_back({++number, step.title, client.TakeNewEntries()});
        }
    }
    // The store keeps what the first session made.
    SimulatedMailClient again(mailClientVersion, defaultAccount, mailbox);
    again.LoadAddin();
    again.TakeNewEntries();
    again.HostReady();
    steps.push_back({++number, L"The mail client starts again: the add-in finds its spam folder",
                     again.TakeNewEntries()});
    again.ShutDown();
    return steps;
}

}  // namespace Orva::Sim
