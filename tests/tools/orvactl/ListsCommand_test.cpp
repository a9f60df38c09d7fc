#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "tools/orvactl/ListsCommand.h"
#include "tools/orvactl/Orvactl.h"
#include "tools/orvactl/TextSink.h"

namespace Orva::Orvactl {
namespace {

class ListsCommandTest : public ::testing::Test {
protected:
    std::wstring File(const std::wstring& name) const { return m_folder.File(name); }
    static void Write(const std::wstring& path, const std::string& bytes) {
        Testing::WriteFileBytes(std::filesystem::path(path), bytes);
    }
    static std::string Read(const std::wstring& path) {
        return Testing::ReadFileBytes(std::filesystem::path(path));
    }
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
        return RunListsCommand(args, m_out, m_err);
    }

    Testing::TempFolder m_folder;
    std::wstring m_white = File(L"WhiteList.dat");
    std::wstring m_black = File(L"BlackList.dat");
    StringSink m_out;
    StringSink m_err;
};

TEST_F(ListsCommandTest, Show_PrintsAlignedTableInKeyOrder) {
    Write(m_white, ListBytes("WL_REC", {{"Zed", "zed@b.com"}, {"", "Al@long-domain.com"}}));
    EXPECT_EQ(kExitOk, Run({L"show", m_white}));
    EXPECT_EQ(
        L"ADDRESS             NAME\n"
        L"Al@long-domain.com  \n"
        L"zed@b.com           Zed\n",
        m_out.Text());
}

TEST_F(ListsCommandTest, Show_ReadsTheListOfTheFileNameOnly) {
    Write(m_black, ListBytes("WL_REC", {{"A", "a@b.com"}}));
    EXPECT_EQ(kExitOk, Run({L"show", m_black}));
    EXPECT_EQ(L"ADDRESS  NAME\n", m_out.Text());
}

TEST_F(ListsCommandTest, Show_UnknownFileNameIsAUsageError) {
    const std::wstring other = File(L"Other.dat");
    Write(other, ListBytes("WL_REC", {}));
    EXPECT_EQ(kExitUsage, Run({L"show", other}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"WhiteList.dat"));
}

TEST_F(ListsCommandTest, Show_MissingOrForeignFileFails) {
    EXPECT_EQ(kExitFailure, Run({L"show", m_white}));
    Write(m_white, "not a list\n");
    EXPECT_EQ(kExitFailure, Run({L"show", m_white}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"not a sender list file"));
}

TEST_F(ListsCommandTest, Add_CreatesTheFileAndStoresTheCheckedAddress) {
    EXPECT_EQ(kExitOk, Run({L"add", m_black, L"  **@Spam.com ", L" Spammer "}));
    EXPECT_EQ(L"added *@Spam.com\n", m_out.Text());
    EXPECT_EQ(ListBytes("BL_REC", {{"Spammer", "*@Spam.com"}}), Read(m_black));
}

TEST_F(ListsCommandTest, Add_RefusedAddressWritesNothing) {
    EXPECT_EQ(kExitFailure, Run({L"add", m_black, L"a*b*@c.com"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"not an e-mail address"));
    EXPECT_EQ("<missing>", Read(m_black));
}

TEST_F(ListsCommandTest, Add_AddressOfTheOtherListIsReportedNotMoved) {
    const std::string white = ListBytes("WL_REC", {{"", "friend@b.com"}});
    Write(m_white, white);
    EXPECT_EQ(kExitFailure, Run({L"add", m_black, L"FRIEND@b.com"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"is in WhiteList.dat"));
    EXPECT_EQ(white, Read(m_white));
    EXPECT_EQ("<missing>", Read(m_black));
}

TEST_F(ListsCommandTest, Add_ExistingAddressFailsAndKeepsTheFile) {
    const std::string black = ListBytes("BL_REC", {{"Old", "a@b.com"}});
    Write(m_black, black);
    EXPECT_EQ(kExitFailure, Run({L"add", m_black, L"A@B.com", L"New"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"already in"));
    EXPECT_EQ(black, Read(m_black));
}

TEST_F(ListsCommandTest, Add_ForeignFileIsNotOverwritten) {
    Write(m_black, "my notes\n");
    EXPECT_EQ(kExitFailure, Run({L"add", m_black, L"a@b.com"}));
    EXPECT_EQ("my notes\n", Read(m_black));
}

TEST_F(ListsCommandTest, Remove_TakesTheAddressOutWhateverItsCase) {
    Write(m_white, ListBytes("WL_REC", {{"A", "a@b.com"}, {"C", "c@d.com"}}));
    EXPECT_EQ(kExitOk, Run({L"remove", m_white, L"A@B.COM"}));
    EXPECT_EQ(ListBytes("WL_REC", {{"C", "c@d.com"}}), Read(m_white));
}

TEST_F(ListsCommandTest, Remove_AbsentAddressFails) {
    const std::string white = ListBytes("WL_REC", {{"A", "a@b.com"}});
    Write(m_white, white);
    EXPECT_EQ(kExitFailure, Run({L"remove", m_white, L"x@b.com"}));
    EXPECT_EQ(white, Read(m_white));
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

TEST_F(ListsCommandTest, Export_OneAddressALineOrCsv) {
    Write(m_white, ListBytes("WL_REC", {{"Lee, Ann \"A\"", "a@b.com"}, {"", "c@d.com"}}));
    EXPECT_EQ(kExitOk, Run({L"export", m_white}));
    EXPECT_EQ(L"a@b.com\nc@d.com\n", m_out.Text());
    EXPECT_EQ(kExitOk, Run({L"export", m_white, L"--csv"}));
    EXPECT_EQ(L"a@b.com,\"Lee, Ann \"\"A\"\"\"\nc@d.com,\n", m_out.Text());
}

TEST_F(ListsCommandTest, ExportThenImport_CsvCarriesNamesOver) {
    Write(m_white,
          ListBytes("WL_REC", {{"Lee, Ann \"A\"", "a@b.com"}, {"\xC3\xA9t\xC3\xA9", "c@d.com"}}));
    ASSERT_EQ(kExitOk, Run({L"export", m_white, L"--csv"}));
    const std::wstring text = File(L"export.csv");
    Write(text, ZelCommon::Text::WideToUtf8(m_out.Text()));
    const std::wstring otherFolder = File(L"peer");
    std::filesystem::create_directories(std::filesystem::path(otherFolder));
    const std::wstring target = ZelCommon::Path::ChildFile(otherFolder, L"WhiteList.dat");
    EXPECT_EQ(kExitOk, Run({L"import", target, L"--from", text, L"--csv"}));
    EXPECT_EQ(Read(m_white), Read(target));
}

TEST_F(ListsCommandTest, Import_AddsValidAddressesAndCountsPresentOnes) {
    Write(m_black, ListBytes("BL_REC", {{"", "old@b.com"}}));
    const std::wstring text = File(L"in.txt");
    Write(text, "\xEF\xBB\xBFnew@b.com\r\n\r\nOLD@b.com\n  *@spam.biz  \nnew@b.com");
    EXPECT_EQ(kExitOk, Run({L"import", m_black, L"--from", text}));
    EXPECT_EQ(L"imported 2, already present 2, refused 0\n", m_out.Text());
    EXPECT_EQ(ListBytes("BL_REC", {{"", "*@spam.biz"}, {"", "new@b.com"}, {"", "old@b.com"}}),
              Read(m_black));
}

TEST_F(ListsCommandTest, Import_ReadsUtf16TextWithMark) {
    const std::wstring text = File(L"in.txt");
    Write(text, "\xFF\xFE" + ZelCommon::Text::WideToUtf16Le(L"a@b.com\r\nc@d.com\r\n"));
    EXPECT_EQ(kExitOk, Run({L"import", m_white, L"--from", text}));
    EXPECT_EQ(ListBytes("WL_REC", {{"", "a@b.com"}, {"", "c@d.com"}}), Read(m_white));
}

TEST_F(ListsCommandTest, Import_RefusedLinesAreReportedByNumberAndNothingIsWritten) {
    const std::string black = ListBytes("BL_REC", {{"", "old@b.com"}});
    Write(m_black, black);
    const std::wstring text = File(L"in.txt");
    Write(text, "good@b.com\nnot an address\n\nx*y*@b.com\n");
    EXPECT_EQ(kExitFailure, Run({L"import", m_black, L"--from", text}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 2: refused not an address"));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 4: refused x*y*@b.com"));
    EXPECT_EQ(black, Read(m_black));
}

TEST_F(ListsCommandTest, Import_SkipRefusedImportsTheRest) {
    const std::wstring text = File(L"in.txt");
    Write(text, "good@b.com\nnot an address\n");
    EXPECT_EQ(kExitOk, Run({L"import", m_black, L"--from", text, L"--skip-refused"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 2: refused"));
    EXPECT_EQ(L"imported 1, already present 0, refused 1\n", m_out.Text());
    EXPECT_EQ(ListBytes("BL_REC", {{"", "good@b.com"}}), Read(m_black));
}

TEST_F(ListsCommandTest, Import_ConflictsWithTheOtherListAreReportedNotResolved) {
    const std::string white = ListBytes("WL_REC", {{"", "friend@b.com"}});
    Write(m_white, white);
    const std::wstring text = File(L"in.txt");
    Write(text, "spam@b.com\nFriend@b.com\n");
    EXPECT_EQ(kExitFailure, Run({L"import", m_black, L"--from", text}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 2: Friend@b.com is in WhiteList.dat"));
    EXPECT_EQ(white, Read(m_white));
    EXPECT_EQ("<missing>", Read(m_black));
}

TEST_F(ListsCommandTest, Import_BeyondTheLimitFailsAndWritesNothing) {
    std::string existing;
    std::vector<std::pair<std::string, std::string>> entries;
    for (int i = 0; i < 7999; ++i) {
        // Appending step by step sidesteps GCC 12's false -Wrestrict on "u" + to_string(i).
        std::string address = std::to_string(i);
        address.insert(0, 1, 'u');
        address += "@b.com";
        entries.emplace_back("", std::move(address));
    }
    const std::string black = ListBytes("BL_REC", entries);
    Write(m_black, black);
    const std::wstring text = File(L"in.txt");
    Write(text, "n1@b.com\nn2@b.com\nn3@b.com\n");
    EXPECT_EQ(kExitFailure, Run({L"import", m_black, L"--from", text, L"--skip-refused"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"2 address(es) do not fit"));
    EXPECT_EQ(black, Read(m_black));
}

TEST_F(ListsCommandTest, Import_CsvTakesNamesAndSkipsAHeading) {
    const std::wstring text = File(L"in.csv");
    Write(text, "Address,Name\n\"a@b.com\",\"Lee, Ann\"\nc@d.com\ne@f.com,x,y\n\"open,\n");
    EXPECT_EQ(kExitFailure, Run({L"import", m_white, L"--from", text, L"--csv"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 4: refused: not an address,name line"));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"line 5: refused: not an address,name line"));
    EXPECT_EQ(kExitOk, Run({L"import", m_white, L"--csv", L"--skip-refused", L"--from", text}));
    EXPECT_EQ(ListBytes("WL_REC", {{"Lee, Ann", "a@b.com"}, {"", "c@d.com"}}), Read(m_white));
}

TEST_F(ListsCommandTest, Import_MissingTextFileOrOptionFails) {
    EXPECT_EQ(kExitFailure, Run({L"import", m_white, L"--from", File(L"none.txt")}));
    EXPECT_EQ(kExitUsage, Run({L"import", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"import", m_white, L"--from"}));
    EXPECT_EQ("<missing>", Read(m_white));
}

TEST_F(ListsCommandTest, BadArguments_AreUsageErrors) {
    EXPECT_EQ(kExitUsage, Run({}));
    EXPECT_EQ(kExitUsage, Run({L"frobnicate"}));
    EXPECT_EQ(kExitUsage, Run({L"show"}));
    EXPECT_EQ(kExitUsage, Run({L"show", m_white, L"extra"}));
    EXPECT_EQ(kExitUsage, Run({L"add", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"remove", m_white}));
    EXPECT_EQ(kExitUsage, Run({L"export", m_white, L"--tsv"}));
    EXPECT_NE(std::wstring::npos, m_err.Text().find(L"orvactl --help"));
}

TEST(ListsHelpText, NamesEverySubCommand) {
    const std::wstring help = ListsHelpText();
    for (const wchar_t* command : {L"lists show", L"lists add", L"lists remove", L"lists validate",
                                   L"lists export", L"lists import"}) {
        EXPECT_NE(std::wstring::npos, help.find(command)) << command;
    }
}

}  // namespace
}  // namespace Orva::Orvactl
