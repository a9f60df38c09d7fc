#include "tools/sim/mailclient/MailClientScenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common_src/platform/TextCodec.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "tools/sim/mailclient/ScenarioReport.h"
#include "tools/sim/mailclient/SimulatedMailClient.h"
#include "tools/sim/mailclient/SimulatorOptions.h"

namespace Orva::Sim {
namespace {

const std::wstring kAgent(Plugin::kAgentWindowTitle);
const std::wstring kController(Plugin::kControllerWindowTitle);

// True when each of `expected` is part of an entry, in that order.
bool HasInOrder(const std::vector<std::wstring>& entries,
                const std::vector<std::wstring>& expected) {
    auto from = entries.begin();
    for (const std::wstring& part : expected) {
        from = std::find_if(from, entries.end(), [&](const std::wstring& entry) {
            return entry.find(part) != std::wstring::npos;
        });
        if (from == entries.end()) {
            return false;
        }
        ++from;
    }
    return true;
}

TEST(MailClientScenario, Version16_EachStepShowsItsWorkInTheRealOrder) {
    const std::vector<ScenarioStep> steps = RunMailClientScenario(16);
    ASSERT_EQ(steps.size(), 11u);
    const std::vector<std::vector<std::wstring>> expected = {
        {L"ORVA_WLM.exe\" " + kAgent, L"send " + kController + L" 1 0 0", L"host AdviseInitSink",
         L"debugger ORVA InitializePlugin()"},
        // The re-query was posted: it runs only once the build has returned.
        {L"send " + kController + L" 4029 0 0", L"dump button ID: 1000, 1001",
         L"log @@@ Creating spam mail folder [Spam Mail]", L"spam mail folder was created",
         L"post " + kController + L" 4028", L"log @@@ CToolBarWnd::OnBuildUI  OUT",
         L"log @@@ CToolBarWnd::OnReQueryDefaultAccount  IN", L"post " + kAgent + L" 4027 0 0",
         L"log CToolBarWnd::OnTimer() Got WLM handle",
         L"ribbon 1004 entry 2 of 1001 \"Turn Protection Off\""},
        {L"post " + kController + L" 1075 0 0", L"log WLM Shadow is OK now!"},
        {L"folderId=[0x100000002]", L"post " + kController + L" 1076 1 2",
         L"log folder under quick view is selected"},
        {L"post " + kController + L" 4031 1000 1007", L"post " + kAgent + L" 1041 0 0"},
        // The user's own mail stays; so does the ordinary mail in the deleted items.
        {L"mailbox Spam Mail before the request: 3 messages", L"Spam mail deleted.",
         L"Spam mail deleted.", L"mailbox Spam Mail after it: 1 messages: Holiday photos"},
        {L"window opens " + std::wstring(Plugin::kSuiteWindowTitle),
         L"log @@@ CToolBarWnd::OnClickRibbonButton  OUT"},
        // The blocked list is kept before the import rewrites it from the approved list's file.
        {L"log @@@ CToolBarWnd::ImportContactList  IN", L"import window open",
         L"log @@@ Imported contact item: anna@example.com, Anna Weber",
         L"log @@@ Imported contact item: bob@example.com, Bob", L"import window closed",
         L"BlackList.dat.bak]", L"import added 3, saved yes", L"WhiteList.dat holds 3:",
         L"BlackList.dat holds 0:", L"BlackList.dat.bak holds 2: *@spam.example"},
        {L"ini ORVA_WLM.ini [Antispam] EnableTBar = \"0\"", L"post " + kAgent + L" 1069 0 0",
         L"\"Turn Protection On\"", L"ribbon 1007 button \"Spam\"", L" disabled"},
        {L"send " + kAgent + L" 16 0 0", L"send " + kController + L" 4030 0 0",
         L"Total nCount=(2) in folder(Deleted Items)",
         L"[COEShadow::PostCleanDeletedFolder] Spam mail deleted.",
         L"post " + kController + L" 16 0 0",
         L"log CToolBarWnd::OnClose() wait for on shutdown success",
         L"window destroyed " + kController, L"mailbox Deleted Items: 1 messages: Old newsletter"},
        {L"get the folder name in create spam folder = Spam Mail",
         L"log @@@ CToolBarWnd::CreateSpamMailFolder  OUT"},
    };
    for (size_t index = 0; index < steps.size(); ++index) {
        EXPECT_EQ(steps[index].number, static_cast<int>(index + 1));
        EXPECT_TRUE(HasInOrder(steps[index].entries, expected[index]))
            << "step " << index + 1 << ":\n"
            << ZelCommon::Text::WideToUtf8(RenderScenario(16, {steps[index]}));
    }
    // Found again, never made twice.
    EXPECT_FALSE(HasInOrder(steps[10].entries, {L"Creating spam mail folder"}));
    // With the suite's window there, the not-spam click reaches no agent.
    EXPECT_FALSE(HasInOrder(steps[6].entries, {L" " + kAgent + L" "}));

    const std::wstring report = RenderScenario(16, steps);
    EXPECT_NE(report.find(L"\n5. The user clicks Report spam\n      log @@@ CWLMAApiEventSink"),
              std::wstring::npos);
    EXPECT_NE(
        report.find(L"\n      post agent 1041 0 0   (report the selected messages as spam)\n"),
        std::wstring::npos);
}

// An IMAP or web-mail default account, read from the user's account files, switches the add-in
// off once the ribbon is built: the notice, the flag, the agent told, the switch offering "on".
TEST(MailClientScenario, UnservedDefaultAccount_SwitchesTheAddinOff) {
    for (const AccountKind kind : {AccountKind::Imap, AccountKind::WebMail}) {
        const std::vector<ScenarioStep> steps = RunMailClientScenario(16, kind);
        EXPECT_TRUE(HasInOrder(steps[1].entries,
                               {kind == AccountKind::Imap ? L"Dafault account is IMAP protocol"
                                                          : L"Dafault account is HTTP protocol",
                                L"dialog unsupported", L"EnableTBar = \"0\"",
                                L"post " + kAgent + L" 1069 0 0", L"\"Turn Protection On\""}));
    }
    const std::vector<ScenarioStep> pop = RunMailClientScenario(16, AccountKind::Pop);
    EXPECT_FALSE(HasInOrder(pop[1].entries, {L"dialog unsupported"}));
}

TEST(MailClientScenario, Version17_StopsTheAgentAndBuildsNothing) {
    const std::vector<ScenarioStep> steps = RunMailClientScenario(17);
    EXPECT_TRUE(HasInOrder(steps[1].entries,
                           {L"log !!! Not support WLM version", L"post " + kAgent + L" 1069 0 0"}));
    EXPECT_FALSE(HasInOrder(steps[1].entries, {L" 4028 "}));
    EXPECT_FALSE(HasInOrder(steps[1].entries, {L"dump button ID"}));
    EXPECT_FALSE(HasInOrder(steps[4].entries, {L" 1041 "}));
}

TEST(MailClientScenario, Version14_BuildsTheClassicBandAndReportsThroughIt) {
    const std::vector<ScenarioStep> steps = RunMailClientScenario(14);
    EXPECT_TRUE(HasInOrder(steps[1].entries, {L"classic build 0 0", L"post " + kAgent + L" 4027"}));
    EXPECT_FALSE(HasInOrder(steps[1].entries, {L"dump button ID"}));
    EXPECT_TRUE(HasInOrder(steps[4].entries, {L"post " + kAgent + L" 1041 0 0"}));
}

TEST(SimulatedMailClient, ShutDown_LeavesNeitherControllerNorAgentWindow) {
    SimulatedMailbox mailbox;
    SimulatedMailClient client(16, AccountKind::Pop, mailbox);
    client.LoadAddin();
    client.HostReady();
    EXPECT_TRUE(client.ControllerExists());
    EXPECT_NE(client.Process().AgentWindow(), 0u);

    client.ShutDown();
    EXPECT_FALSE(client.ControllerExists());
    EXPECT_EQ(client.Process().AgentWindow(), 0u);
    EXPECT_EQ(client.Process().messaging.FindByClass(std::wstring(Plugin::kControllerClassName)),
              0u);
}

TEST(ScenarioReport, DescribeEntry_NamesWindowsByRoleAndMessagesByMeaning) {
    const struct {
        std::wstring entry;
        std::wstring described;
    } cases[] = {
        {L"post " + kAgent + L" 1041 0 0",
         L"post agent 1041 0 0   (report the selected messages as spam)"},
        {L"send " + kController + L" 4029 0 0",
         L"send controller 4029 0 0   (build the user interface)"},
        {L"post " + kController + L" 4031 " + std::to_wstring(UINTPTR_MAX) + L" 2",
         L"post controller 4031 -1 2   (button clicked)"},
        {L"post " + kAgent + L" 9999 0 0", L"post agent 9999 0 0"},
        {L"window closes " + kAgent, L"window closes agent"},
        {L"post {unknown} 1041 0 0", L"post {unknown} 1041 0 0"},
        {L"post ", L"post "},
        {L"log @@@ post " + kAgent, L"log @@@ post " + kAgent},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(DescribeEntry(test.entry), test.described);
    }
}

TEST(SimulatorOptions, Arguments_ParsedOrRefused) {
    const struct {
        std::vector<std::string> arguments;
        int version;
        bool help;
        bool error;
    } cases[] = {
        {{}, 16, false, false},
        {{"--client-version", "14"}, 14, false, false},
        {{"--help"}, 16, true, false},
        {{"--client-version"}, 16, false, true},
        {{"--client-version", "1x"}, 16, false, true},
        {{"--client-version", "0"}, 16, false, true},
        {{"--verbose"}, 16, false, true},
    };
    for (const auto& test : cases) {
        const SimulatorOptions options = ParseSimulatorOptions(test.arguments);
        EXPECT_EQ(options.mailClientVersion, test.version);
        EXPECT_EQ(options.help, test.help);
        EXPECT_EQ(!options.error.empty(), test.error);
    }
}

}  // namespace
}  // namespace Orva::Sim
