#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common_src/platform/TextCodec.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "tools/orvactl/ListsCommand.h"
#include "tools/orvactl/Orvactl.h"
#include "tools/orvactl/TextSink.h"

namespace Orva::Orvactl {
namespace {

using Testing::ReadFileBytes;
using Testing::WriteFileBytes;

class ListsCommandTest : public ::testing::Test {
protected:
    std::wstring File(const std::wstring& name) const { return m_folder.File(name); }
    static std::string ListBytes(const std::string& recordTag,
                                 const std::vector<std::pair<std::string, std::string>>& entries) {
        std::string bytes = "\xEF\xBB\xBF; Written by ORVA v3.5 (c) 2005 Halvion\n";
        for (const auto& [name, address] : entries) {
            bytes += "<" + recordTag + "><SN_ATTR>" + name + "<\\SN_ATTR><SA_ATTR>" + address +
                     "<\\SA_ATTR><\\" + recordTag + ">\n";
        }
        return bytes;
    }

    int Run(std::vector<std::wstring> args) {
        m_out = StringSink();
        m_err = StringSink();
        return RunListsCommand(args, m_out, m_err, m_windows);
    }

    Testing::TempFolder m_folder;
    std::wstring m_white = File(L"WhiteList.dat");
    std::wstring m_black = File(L"BlackList.dat");
    std::wstring m_text = File(L"in.txt");
    StringSink m_out;
    StringSink m_err;
    ZelCommon::Fakes::FakeWindowMessaging m_windows;
};

struct OutcomeCase {
    const char* label;
    std::string white;  // the files before the command; empty for none
    std::string black;
    std::string text;
    std::vector<std::wstring> args;  // FILE and TEXTFILE as "W", "B" and "T"
    int exitCode;
    std::wstring out;
    std::wstring errPart;
};

// What each outcome prints, and that a command that fails leaves the files as they were.
TEST_F(ListsCommandTest, Outcomes_PrintTheirTextAndExitCode) {
    const std::string white = ListBytes("WL_REC", {{"", "friend@b.com"}});
    const std::string black = ListBytes("BL_REC", {{"", "old@b.com"}, {"S", "*@s.com"}});
    const std::string utf16 =
        "\xFF\xFE" + ZelCommon::Text::WideToUtf16Le(L"a@b.com\r\nc@d.com\r\n");
    const std::vector<std::wstring> importText{L"import", L"B", L"--from", L"T"};
    // clang-format off
    const OutcomeCase cases[] = {
        {"ShowAligned", ListBytes("WL_REC", {{"Zed", "zed@b.com"}, {"", "Al@long-domain.com"}}), "",
         "", {L"show", L"W"}, kExitOk,
         L"ADDRESS             NAME\nAl@long-domain.com  \nzed@b.com           Zed\n", L""},
        {"ShowReadsTheListOfTheFileNameOnly", "", ListBytes("WL_REC", {{"A", "a@b.com"}}), "",
         {L"show", L"B"}, kExitOk, L"ADDRESS  NAME\n", L""},
        {"Added", "", "", "", {L"add", L"B", L" **@Spam.com ", L" Spammer "}, kExitOk,
         L"added *@Spam.com\n", L""},
        {"AddRefused", white, black, "", {L"add", L"B", L"a*b*@c.com"}, kExitFailure, L"",
         L"refused a*b*@c.com: not an e-mail address"},
        {"AddInOtherList", white, black, "", {L"add", L"B", L"FRIEND@b.com"}, kExitFailure, L"",
         L"FRIEND@b.com is in WhiteList.dat; remove it there first"},
        {"AddExisting", white, black, "", {L"add", L"B", L"OLD@b.com"}, kExitFailure, L"",
         L"OLD@b.com is already in "},
        {"AddToForeignFile", white, "my notes\n", "", {L"add", L"B", L"a@b.com"}, kExitFailure, L"",
         L"BlackList.dat: not a sender list file"},
        {"AddBesideForeignFile", "my notes\n", black, "", {L"add", L"B", L"a@b.com"}, kExitFailure,
         L"", L"WhiteList.dat: not a sender list file"},
        {"Removed", white, black, "", {L"remove", L"B", L" ***@S.com"}, kExitOk,
         L"removed *@S.com\n", L""},
        {"RemoveAbsent", white, black, "", {L"remove", L"B", L"x@b.com"}, kExitFailure, L"",
         L"x@b.com is not in "},
        {"RemoveFromMissingFile", "", "", "", {L"remove", L"B", L"x@b.com"}, kExitFailure, L"",
         L"BlackList.dat: cannot be read"},
        {"Imported", white, black, "new@b.com\nOLD@b.com\n\n*@spam.biz\n", importText, kExitOk,
         L"imported 2, already present 1, refused 0\n", L""},
        {"ImportRefused", white, black, "good@b.com\nnot an address\nFriend@b.com\n", importText,
         kExitFailure, L"", L"line 2: refused not an address: not an e-mail address\n"
                            L"line 3: Friend@b.com is in WhiteList.dat\n"},
        {"ImportBadCsvLine", white, black, "a@b.com,x,y\n",
         {L"import", L"B", L"--csv", L"--from", L"T"}, kExitFailure, L"",
         L"line 1: refused: not an address,name line\norvactl: 1 line(s) refused; nothing "
         L"imported (--skip-refused imports the rest)"},
        {"ImportSkipRefused", white, black, "good@b.com\nnot an address\n",
         {L"import", L"B", L"--from", L"T", L"--skip-refused"}, kExitOk,
         L"imported 1, already present 0, refused 1\n", L"line 2: refused"},
        {"ImportFromUtf16Text", white, black, utf16, importText, kExitOk,
         L"imported 2, already present 0, refused 0\n", L""},
        {"ImportFromMissingText", white, black, "", importText, kExitFailure, L"",
         L"in.txt: cannot be read"},
        {"ExportCsv", white, ListBytes("BL_REC", {{"Lee, Ann \"A\"", "a@b.com"}}), "",
         {L"export", L"B", L"--csv"}, kExitOk, L"a@b.com,\"Lee, Ann \"\"A\"\"\"\n", L""},
    };
    // clang-format on
    for (const OutcomeCase& test : cases) {
        for (const auto& [path, bytes] :
             {std::pair(m_white, test.white), std::pair(m_black, test.black),
              std::pair(m_text, test.text)}) {
            std::filesystem::remove(std::filesystem::path(path));
            if (!bytes.empty()) {
                WriteFileBytes(path, bytes);
            }
        }
        std::vector<std::wstring> args = test.args;
        for (std::wstring& arg : args) {
            arg = arg == L"W" ? m_white : arg == L"B" ? m_black : arg == L"T" ? m_text : arg;
        }
        EXPECT_EQ(test.exitCode, Run(args)) << test.label;
        EXPECT_EQ(test.out, m_out.Text()) << test.label;
        EXPECT_NE(std::wstring::npos, m_err.Text().find(test.errPart))
            << test.label << ": " << testing::PrintToString(m_err.Text());
        if (test.exitCode != kExitOk) {
            EXPECT_EQ(test.white.empty() ? "<missing>" : test.white, ReadFileBytes(m_white))
                << test.label;
            EXPECT_EQ(test.black.empty() ? "<missing>" : test.black, ReadFileBytes(m_black))
                << test.label;
        }
    }
}

TEST_F(ListsCommandTest, AgentWindow_IsToldAfterEachWriteOnly) {
    const auto agent = m_windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
    unsigned told = 0;
    m_windows.SetHandler(agent, [&told](const ZelCommon::Fakes::FakeWindowMessaging::Message& m) {
        told += m.message == 1033 ? 1 : 100;
        return intptr_t{0};
    });
    WriteFileBytes(m_text, "c@d.com\n");
    EXPECT_EQ(kExitOk, Run({L"add", m_black, L"a@b.com"}));
    EXPECT_EQ(kExitFailure, Run({L"add", m_black, L"a@b.com"}));
    EXPECT_EQ(kExitOk, Run({L"import", m_black, L"--from", m_text}));
    EXPECT_EQ(kExitOk, Run({L"remove", m_black, L"a@b.com"}));
    EXPECT_EQ(kExitOk, Run({L"show", m_black}));
    EXPECT_EQ(kExitOk, Run({L"export", m_black}));
    EXPECT_EQ(3u, told);
}

TEST_F(ListsCommandTest, Validate_ReportsEachArgument) {
    EXPECT_EQ(kExitFailure, Run({L"validate", L" ***@b.com", L"bad", std::wstring(300, L'a')}));
    EXPECT_EQ(
        L"ok *@b.com\n"
        L"refused not an e-mail address\n"
        L"refused the address is longer than 256 characters\n",
        m_out.Text());
    EXPECT_EQ(kExitOk, Run({L"validate", L"a@b.com"}));
    EXPECT_EQ(kExitUsage, Run({L"validate"}));
}

TEST_F(ListsCommandTest, BadArguments_AreUsageErrors) {
    WriteFileBytes(File(L"Other.dat"), ListBytes("WL_REC", {}));
    EXPECT_EQ(kExitUsage, Run({L"show", File(L"Other.dat")}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"WhiteList.dat"));
    EXPECT_EQ(kExitUsage, Run({}));
    EXPECT_EQ(kExitUsage, Run({L"frobnicate"}));
    EXPECT_EQ(kExitUsage, Run({L"show"}));
    EXPECT_EQ(kExitUsage, Run({L"show", m_white, L"extra"}));
    EXPECT_EQ(kExitUsage, Run({L"add", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"remove", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"export", m_white, L"--tsv"}));
    EXPECT_EQ(kExitUsage, Run({L"import", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"import", m_white, L"--from"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"orvactl --help"));
    EXPECT_EQ("<missing>", ReadFileBytes(m_white));
}

struct RestoreCase {
    const char* label;
    std::string backup;  // empty: none
    int exitCode;
    bool restored;
    unsigned told;
};

TEST_F(ListsCommandTest, Restore_PutsTheBackupBackOnlyWhenItIsAList) {
    const std::string current = ListBytes("BL_REC", {});
    const std::string kept = ListBytes("BL_REC", {{"Spam", "*@spam.example"}});
    const RestoreCase cases[] = {
        {"a kept list", kept, kExitOk, true, 1},
        {"an older product's list", "; Written by ZelQuillon v1.0 (c) 2003 Halvion\n", kExitOk,
         true, 1},
        {"no backup", "", kExitFailure, false, 0},
        {"not a list", "[General]\nLevel=1\n", kExitFailure, false, 0},
    };
    m_windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
    for (const RestoreCase& test : cases) {
        WriteFileBytes(m_black, current);
        std::filesystem::remove(std::filesystem::path(m_black + L".bak"));
        if (!test.backup.empty()) {
            WriteFileBytes(m_black + L".bak", test.backup);
        }
        m_windows.ClearMessages();
        EXPECT_EQ(test.exitCode, Run({L"restore", L"--data", m_folder.Path()})) << test.label;
        EXPECT_EQ(test.restored ? test.backup : current, ReadFileBytes(m_black)) << test.label;
        EXPECT_EQ(test.told, m_windows.Messages().size()) << test.label;
        EXPECT_EQ(test.restored, m_err.Text().empty()) << test.label;
    }
    EXPECT_EQ(kExitUsage, Run({L"restore", m_folder.Path()}));
}

TEST(ListsHelpText, NamesEverySubCommand) {
    const std::wstring help = ListsHelpText();
    for (const wchar_t* command : {L"lists show", L"lists add", L"lists remove", L"lists validate",
                                   L"lists export", L"lists import", L"lists restore"}) {
        EXPECT_NE(std::wstring::npos, help.find(command)) << command;
    }
}

}  // namespace
}  // namespace Orva::Orvactl
