#include <gtest/gtest.h>

#include "OrvactlRun.h"
#include "support/TempFolder.h"

namespace Orva::Orvactl {
namespace {

using Testing::RunTool;

class IniCommandsTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(RunTool({L"ini", L"set", file, L"General", L"PurgeDays", L"30"}).exitCode,
                  kExitOk);
        ASSERT_EQ(RunTool({L"ini", L"set", file, L"General", L"Debug", L"1"}).exitCode, kExitOk);
        ASSERT_EQ(RunTool({L"ini", L"set", file, L"Wexor", L"EnableWexor", L"-3"}).exitCode,
                  kExitOk);
    }

    Testing::TempFolder temp;
    std::wstring file = temp.File(L"ORVA_WLM.ini");
};

TEST_F(IniCommandsTest, Get_PrintsTheValueAloneOnOneLine) {
    const auto run = RunTool({L"ini", L"get", file, L"General", L"PurgeDays"});
    EXPECT_EQ(run.exitCode, kExitOk);
    EXPECT_EQ(run.out, L"30\n");
    EXPECT_EQ(run.err, L"");
}

TEST_F(IniCommandsTest, GetMissingKey_PrintsTheDefaultOrAnEmptyLine) {
    EXPECT_EQ(RunTool({L"ini", L"get", file, L"General", L"Nope", L"fallback"}).out, L"fallback\n");
    EXPECT_EQ(RunTool({L"ini", L"get", file, L"General", L"Nope"}).out, L"\n");
}

TEST_F(IniCommandsTest, Get_IgnoresCaseOfSectionAndKey) {
    EXPECT_EQ(RunTool({L"ini", L"get", file, L"GENERAL", L"purgedays"}).out, L"30\n");
}

TEST_F(IniCommandsTest, GetInt_ReadsAsTheProfileIntegerDoes) {
    EXPECT_EQ(RunTool({L"ini", L"getint", file, L"General", L"PurgeDays"}).out, L"30\n");
    EXPECT_EQ(RunTool({L"ini", L"getint", file, L"Wexor", L"EnableWexor"}).out, L"-3\n");
    EXPECT_EQ(RunTool({L"ini", L"getint", file, L"General", L"Nope", L"180"}).out, L"180\n");
    EXPECT_EQ(RunTool({L"ini", L"getint", file, L"General", L"Nope"}).out, L"0\n");
}

TEST_F(IniCommandsTest, GetIntWithWordForDefault_IsAUsageError) {
    const auto run = RunTool({L"ini", L"getint", file, L"General", L"Nope", L"ten"});
    EXPECT_EQ(run.exitCode, kExitUsage);
    EXPECT_EQ(run.out, L"");
    EXPECT_NE(run.err.find(L"ten"), std::wstring::npos);
}

TEST_F(IniCommandsTest, Set_KeepsUnicodeText) {
    ASSERT_EQ(RunTool({L"ini", L"set", file, L"General", L"CorpName", L"Søren Übel"}).exitCode,
              kExitOk);
    EXPECT_EQ(RunTool({L"ini", L"get", file, L"General", L"CorpName"}).out, L"Søren Übel\n");
}

TEST_F(IniCommandsTest, Sections_ListsOneNameALineInFileOrder) {
    const auto run = RunTool({L"ini", L"sections", file});
    EXPECT_EQ(run.exitCode, kExitOk);
    EXPECT_EQ(run.out, L"General\nWexor\n");
}

TEST_F(IniCommandsTest, Keys_ListsOneNameALine) {
    EXPECT_EQ(RunTool({L"ini", L"keys", file, L"General"}).out, L"PurgeDays\nDebug\n");
    EXPECT_EQ(RunTool({L"ini", L"keys", file, L"Missing"}).out, L"");
}

TEST_F(IniCommandsTest, DeleteKey_RemovesOnlyThatKey) {
    EXPECT_EQ(RunTool({L"ini", L"delete", file, L"General", L"Debug"}).exitCode, kExitOk);
    EXPECT_EQ(RunTool({L"ini", L"keys", file, L"General"}).out, L"PurgeDays\n");
}

TEST_F(IniCommandsTest, DeleteSection_RemovesTheWholeSection) {
    EXPECT_EQ(RunTool({L"ini", L"delete", file, L"General"}).exitCode, kExitOk);
    EXPECT_EQ(RunTool({L"ini", L"sections", file}).out, L"Wexor\n");
}

TEST_F(IniCommandsTest, ManyKeys_AreAllListed) {
    std::wstring expected = L"PurgeDays\nDebug\n";
    for (int i = 0; i < 600; ++i) {
        const std::wstring key = L"LongKeyNameNumber" + std::to_wstring(i);
        ASSERT_EQ(RunTool({L"ini", L"set", file, L"General", key, L"x"}).exitCode, kExitOk);
        expected += key + L"\n";
    }
    EXPECT_EQ(RunTool({L"ini", L"keys", file, L"General"}).out, expected);
}

struct BadArgs {
    std::vector<std::wstring> args;
    int exitCode;
};

class IniCommandsBadArgs : public testing::TestWithParam<BadArgs> {};

TEST_P(IniCommandsBadArgs, ReportOnStandardErrorWithNothingOnStandardOutput) {
    const auto run = RunTool(GetParam().args);
    EXPECT_EQ(run.exitCode, GetParam().exitCode);
    EXPECT_EQ(run.out, L"");
    EXPECT_EQ(run.err.rfind(L"orvactl: ", 0), 0u) << "stderr: " << run.err.size();
}

INSTANTIATE_TEST_SUITE_P(
    Usage, IniCommandsBadArgs,
    testing::Values(BadArgs{{}, kExitUsage}, BadArgs{{L"ini"}, kExitUsage},
                    BadArgs{{L"ini", L"frobnicate", L"f"}, kExitUsage},
                    BadArgs{{L"ini", L"get", L"f", L"General"}, kExitUsage},
                    BadArgs{{L"ini", L"get", L"f", L"S", L"K", L"D", L"extra"}, kExitUsage},
                    BadArgs{{L"ini", L"set", L"f", L"S", L"K"}, kExitUsage},
                    BadArgs{{L"ini", L"sections"}, kExitUsage},
                    BadArgs{{L"ini", L"keys", L"f"}, kExitUsage}, BadArgs{{L"bogus"}, kExitUsage}));

TEST(IniCommandsFiles, ReadingAMissingFile_Fails) {
    Testing::TempFolder temp;
    const auto run = RunTool({L"ini", L"get", temp.File(L"absent.ini"), L"General", L"Debug"});
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_EQ(run.out, L"");
    EXPECT_NE(run.err.find(L"absent.ini"), std::wstring::npos);
}

TEST(IniCommandsFiles, FileThatIsAFolder_FailsForReadingAndWriting) {
    Testing::TempFolder temp;
    for (const wchar_t* command : {L"sections", L"set"}) {
        std::vector<std::wstring> args{L"ini", command, temp.Path()};
        if (std::wstring(command) == L"set") {
            args.insert(args.end(), {L"General", L"Debug", L"1"});
        }
        const auto run = RunTool(args);
        EXPECT_EQ(run.exitCode, kExitFailure);
        EXPECT_NE(run.err.find(L"folder"), std::wstring::npos);
    }
}

TEST(IniCommandsFiles, WritingIntoAMissingFolder_Fails) {
    Testing::TempFolder temp;
    const auto run =
        RunTool({L"ini", L"set", temp.Folder(L"nope") + L"x.ini", L"General", L"Debug", L"1"});
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_NE(run.err.find(L"does not exist"), std::wstring::npos);
}

TEST(OrvactlHelp, ExplainsEveryCommand) {
    const auto run = RunTool({L"--help"});
    EXPECT_EQ(run.exitCode, kExitOk);
    for (const wchar_t* word :
         {L"ini get", L"ini getint", L"ini set", L"ini delete", L"ini sections", L"ini keys",
          L"--install-dir", L"--user-dir", L"stored", L"preset", L"default", L"Exit status"}) {
        EXPECT_NE(run.out.find(word), std::wstring::npos) << "missing from help";
    }
}

TEST(OrvactlHelp, AfterACommand_ShowsTheSameHelp) {
    for (const wchar_t* command : {L"ini", L"settings"}) {
        const auto run = RunTool({command, L"--help"});
        EXPECT_EQ(run.exitCode, kExitOk);
        EXPECT_EQ(run.out, HelpText());
    }
}

}  // namespace
}  // namespace Orva::Orvactl
