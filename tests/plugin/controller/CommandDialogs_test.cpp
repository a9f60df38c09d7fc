#include "plugin/controller/CommandDialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/localisation/StringLoaderFixture.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/plugin/FakePluginPorts.h"

namespace {

// The help entry with its parts registered as an administrator would, or one of them missing.
class HelpEntry : public Orva::Testing::StringLoaderTest {
protected:
    static constexpr const wchar_t* kRoot = L"SOFTWARE\\Halvion\\Corelane\\1700";

    HelpEntry() {
        WriteTable(L"en-US", L"IDS_OK", L"OK");
        for (const auto& [key, value] :
             {std::pair{L"ProductRootRegKey", kRoot},
              {L"URLKey", L"OnlineHelp\\URL"},
              {L"PIDKey", L"PID"},
              {L"FunID_SPAM_EMAIL_FILTER", L"OnlineHelp\\Topics\\FunID_SPAM_EMAIL_FILTER"}}) {
            WriteEntry(InstallFile(), L"OnlinHelp", key, value);
        }
        SetMachineValue(kRoot, L"PID", L"1700");
        SetMachineValue(std::wstring(kRoot) + L"\\OnlineHelp", L"URL", L"https://help.example/");
    }

    // The help entry clicked; the log's lines of the entry itself.
    std::vector<std::wstring> Click() {
        ZelResourceStringLoader loader(Services());
        Orva::Plugin::CCommandDialogs dialogs(loader, shell, pending, log.Log());
        TakeLines();
        dialogs.OpenOnlineHelp();
        std::vector<std::wstring> lines;
        for (const std::wstring& line : TakeLines()) {
            if (line.starts_with(L"@@")) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    ZelCommon::Fakes::FakeShellOpen shell;
    ZelCommon::Fakes::FakeCommandDialogs pending;
};

TEST_F(HelpEntry, OpensTheSpamFiltersPageOrSaysWhyNot) {
    const std::wstring entry = L"@@CToolBarBand::OnClickHelpMenuItem()";
    EXPECT_EQ(Click(), (std::vector<std::wstring>{
                           entry, L"@@@ Error : Can't retrieve on-line help URL from registry."}));
    EXPECT_EQ(shell.opened, L"");

    SetMachineValue(std::wstring(kRoot) + L"\\OnlineHelp\\Topics", L"FunID_SPAM_EMAIL_FILTER",
                    L"spam-filter.htm");
    shell.refuses = true;
    EXPECT_EQ(Click(), (std::vector<std::wstring>{
                           entry, L"@@@ Error : Can't open on-line help URL in browser."}));

    shell.refuses = false;
    EXPECT_EQ(Click(), std::vector<std::wstring>{entry});
    EXPECT_EQ(shell.opened, L"https://help.example/en-US/1700/spam-filter.htm");
}

}  // namespace
