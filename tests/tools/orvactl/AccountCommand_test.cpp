#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "support/TempFolder.h"
#include "tools/orvactl/OrvactlRun.h"

namespace {

using Orva::Testing::RunTool;

void WriteAccountFile(const std::wstring& folder, const std::wstring& name,
                      const std::wstring& xml) {
    ZelCommon::Path::CreateFolderWithParents(folder);
    std::ofstream file(ZelCommon::Text::WideToUtf8(ZelCommon::Path::ChildFile(folder, name)),
                       std::ios::binary);
    file << "\xFF\xFE" << ZelCommon::Text::WideToUtf16Le(xml);
}

std::wstring LastLine(const std::wstring& out) {
    const size_t end = out.size() - (out.ends_with(L"\n") ? 1 : 0);
    const size_t start = out.rfind(L'\n', end - 1);
    return out.substr(start == std::wstring::npos ? 0 : start + 1, end - (start + 1));
}

// The answer is the add-in's for the same folder: the account file one level down, found
// whatever its case, and an account the folder does not hold answers 0 with a note.
TEST(AccountCommand, AnswersAsTheAddinForTheFolderAndAccount) {
    Orva::Testing::TempFolder temp;
    const std::wstring data = temp.Folder(L"Windows Live Mail");
    WriteAccountFile(ZelCommon::Path::ChildFolder(data, L"imap.example"), L"Account{1}.OEACCOUNT",
                     L"<MessageAccount><IMAP_Server type=\"SZ\">imap.example</IMAP_Server>"
                     L"</MessageAccount>");
    WriteAccountFile(ZelCommon::Path::ChildFolder(data, L"pop.example"), L"Account{2}.oeaccount",
                     L"<MessageAccount><POP3_Server type=\"SZ\">pop.example</POP3_Server>"
                     L"</MessageAccount>");

    const auto imap =
        RunTool({L"account", L"--data-folder", data, L"--account", L"account{1}.oeaccount"});
    EXPECT_EQ(imap.exitCode, 0);
    EXPECT_EQ(LastLine(imap.out), L"1");
    EXPECT_NE(imap.out.find(L"Dafault account is IMAP protocol\n1\n"), std::wstring::npos);

    const auto pop =
        RunTool({L"account", L"--data-folder", data, L"--account=Account{2}.oeaccount"});
    EXPECT_EQ(LastLine(pop.out), L"0");

    const auto missing = RunTool({L"account", L"--data-folder", data, L"--account", L"none"});
    EXPECT_EQ(missing.exitCode, 0);
    EXPECT_EQ(missing.out, L"0\n");
    EXPECT_NE(missing.err.find(L"no settings file for account none"), std::wstring::npos);

    EXPECT_EQ(RunTool({L"account", L"--account", L"x"}).exitCode, 2);
    EXPECT_EQ(RunTool({L"account", L"--data-folder", temp.Folder(L"absent"), L"--account", L"x"})
                  .exitCode,
              1);
}

}  // namespace
