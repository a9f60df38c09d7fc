#include "tools/orvactl/StringsCommand.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "OrvactlRun.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"
#include "settings/localisation/StringIds.h"
#include "support/SourceRoot.h"
#include "support/TempFolder.h"
#include "tools/orvactl/Orvactl.h"

namespace Orva::Orvactl {
namespace {

using StringsRun = Testing::OrvactlRun;

StringsRun Strings(std::vector<std::wstring> args) {
    StringSink out;
    StringSink err;
    const int exitCode = RunStringsCommand(args, out, err, ZelCommon::Storage::SystemProfileApi());
    return StringsRun{exitCode, out.Text(), err.Text()};
}

std::wstring Bundle() {
    return Testing::BundleFolder().wstring();
}

TEST(StringsCommand, ShippedEnglishAndGerman_AreComplete) {
    for (const wchar_t* localeName : {L"en-US", L"de-DE"}) {
        const StringsRun run = Strings({L"--locale", localeName, L"--resource-folder", Bundle()});
        EXPECT_EQ(run.exitCode, kExitOk) << run.out.size();
        EXPECT_EQ(run.out, ZelCommon::Text::Format(L"%s: %u ids, complete\n", localeName,
                                                   Orva::Settings::AddinStringIds().size()));
        EXPECT_EQ(run.err, L"");
    }
}

TEST(StringsCommand, OrvactlDispatch_RunsTheCommandAndListsItInTheHelp) {
    const Testing::OrvactlRun run = Testing::RunTool(
        {L"strings", L"--locale", L"en-US", L"--resource-folder", Bundle(), L"IDS_OK"});
    EXPECT_EQ(run.exitCode, kExitOk);
    EXPECT_EQ(run.out, L"OK\n");
    EXPECT_NE(HelpText().find(L"orvactl strings --locale NAME"), std::wstring::npos);
}

TEST(StringsCommand, OneId_PrintsItsTextWithRealLineBreaks) {
    const StringsRun run = Strings(
        {L"--locale=de-DE", L"--resource-folder=" + Bundle(), L"IDS_WARN_RESET_STATISTICS"});
    EXPECT_EQ(run.exitCode, kExitOk);
    EXPECT_EQ(run.out,
              L"Alle Statistiken auf null zur\u00fccksetzen?\nDies kann nicht "
              L"r\u00fcckg\u00e4ngig gemacht werden.\n");
}

TEST(StringsCommand, UnknownId_FailsWithAMessage) {
    const StringsRun run =
        Strings({L"--locale", L"en-US", L"--resource-folder", Bundle(), L"IDS_NO_SUCH_TEXT"});
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_EQ(run.err, L"orvactl: en-US has no text for IDS_NO_SUCH_TEXT\n");
}

class StringsCommandTables : public testing::Test {
protected:
    void Write(const std::wstring& localeName, const std::wstring& id, const std::wstring& text) {
        const std::wstring folder = temp.Folder(localeName);
        ZelCommon::Path::CreateFolderWithParents(folder);
        ZelCommon::Storage::SystemProfileApi().WriteString(
            L"ORVA_WLM", id.c_str(), text.c_str(),
            ZelCommon::Path::ChildFile(folder, L"StringTable.ini").c_str());
    }
    StringsRun Check(const std::wstring& localeName) {
        return Strings({L"--locale", localeName, L"--resource-folder", temp.Path()});
    }
    Testing::TempFolder temp;
};

TEST_F(StringsCommandTables, IncompleteTables_ListEveryProblemAndExitNonZero) {
    Write(L"en-US", L"IDS_OK", L"OK");
    Write(L"en-US", L"IDS_LISTFULL_MSG", L"At most %d addresses");
    Write(L"en-US", L"IDS_EXTRA", L"Only in English");
    Write(L"fr-FR", L"IDS_OK", L"OK <$PRODUCTNAME>");
    Write(L"fr-FR", L"IDS_LISTFULL_MSG", L"Au plus %s adresses");

    const StringsRun run = Check(L"fr-FR");

    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_NE(run.out.find(L"missing: IDS_CANCEL\n"), std::wstring::npos);
    EXPECT_NE(run.out.find(L"missing (present in en-US): IDS_EXTRA\n"), std::wstring::npos);
    EXPECT_NE(run.out.find(L"unknown placeholder <$PRODUCTNAME> in IDS_OK\n"), std::wstring::npos);
    EXPECT_NE(run.out.find(L"format differs from en-US: IDS_LISTFULL_MSG\n"), std::wstring::npos);
    EXPECT_NE(run.out.find(L"fr-FR: 2 ids, "), std::wstring::npos);
}

TEST_F(StringsCommandTables, MissingTable_IsAFailure) {
    Write(L"en-US", L"IDS_OK", L"OK");
    const StringsRun run = Check(L"it-IT");
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_EQ(run.err.rfind(L"orvactl: no string table: ", 0), 0u) << run.err.size();
}

TEST(StringsCommand, BadArguments_AreUsageErrors) {
    EXPECT_EQ(Strings({}).exitCode, kExitUsage);
    EXPECT_EQ(Strings({L"--locale"}).exitCode, kExitUsage);
    EXPECT_EQ(Strings({L"--locale", L"en-US", L"--colour", L"red"}).exitCode, kExitUsage);
    EXPECT_EQ(Strings({L"--locale", L"en-US", L"IDS_A", L"IDS_B"}).exitCode, kExitUsage);
    EXPECT_EQ(Strings({L"--auto", L"--locale", L"en-US"}).exitCode, kExitUsage);
}

}  // namespace
}  // namespace Orva::Orvactl
