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

// Each answer alone on its line; reads find names whatever their case, a missing key gives the
// default (or nothing), and getint reads as the profile integer does.
TEST_F(IniCommandsTest, Commands_PrintTheirAnswerOneALine) {
    const struct {
        std::vector<std::wstring> args;
        std::wstring out;
    } cases[] = {
        {{L"get", file, L"General", L"PurgeDays"}, L"30\n"},
        {{L"get", file, L"GENERAL", L"purgedays"}, L"30\n"},
        {{L"get", file, L"General", L"Nope", L"fallback"}, L"fallback\n"},
        {{L"get", file, L"General", L"Nope"}, L"\n"},
        {{L"getint", file, L"General", L"PurgeDays"}, L"30\n"},
        {{L"getint", file, L"Wexor", L"EnableWexor"}, L"-3\n"},
        {{L"getint", file, L"General", L"Nope", L"180"}, L"180\n"},
        {{L"getint", file, L"General", L"Nope"}, L"0\n"},
        {{L"sections", file}, L"General\nWexor\n"},
        {{L"keys", file, L"General"}, L"PurgeDays\nDebug\n"},
        {{L"keys", file, L"Missing"}, L""},
    };
    for (const auto& each : cases) {
        std::vector<std::wstring> args{L"ini"};
        args.insert(args.end(), each.args.begin(), each.args.end());
        SCOPED_TRACE(testing::PrintToString(each.args));
        const auto run = RunTool(args);
        EXPECT_EQ(run.exitCode, kExitOk);
        EXPECT_EQ(run.out, each.out);
        EXPECT_EQ(run.err, L"");
    }
}

TEST_F(IniCommandsTest, GetIntWithWordForDefault_IsAUsageError) {
    const auto run = RunTool({L"ini", L"getint", file, L"General", L"Nope", L"ten"});
    EXPECT_EQ(run.exitCode, kExitUsage);
    EXPECT_EQ(run.out, L"");
    EXPECT_NE(run.err.find(L"ten"), std::wstring::npos);
}

TEST_F(IniCommandsTest, SetAndDelete_ChangeOnlyWhatTheyName) {
    ASSERT_EQ(RunTool({L"ini", L"set", file, L"General", L"CorpName", L"Søren Übel"}).exitCode,
              kExitOk);
    EXPECT_EQ(RunTool({L"ini", L"get", file, L"General", L"CorpName"}).out, L"Søren Übel\n");
    EXPECT_EQ(RunTool({L"ini", L"delete", file, L"General", L"Debug"}).exitCode, kExitOk);
    EXPECT_EQ(RunTool({L"ini", L"keys", file, L"General"}).out, L"PurgeDays\nCorpName\n");
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

// A usage error or a file that cannot be used: the problem named on standard error only.
TEST(IniCommandsErrors, BadArgumentsAndUnusableFiles_ReportOnStandardErrorOnly) {
    Testing::TempFolder temp;
    const struct {
        std::vector<std::wstring> args;
        int exitCode;
        const wchar_t* said;
    } cases[] = {
        {{}, kExitUsage, L""},
        {{L"ini"}, kExitUsage, L""},
        {{L"ini", L"frobnicate", L"f"}, kExitUsage, L""},
        {{L"ini", L"get", L"f", L"General"}, kExitUsage, L""},
        {{L"ini", L"get", L"f", L"S", L"K", L"D", L"extra"}, kExitUsage, L""},
        {{L"ini", L"set", L"f", L"S", L"K"}, kExitUsage, L""},
        {{L"ini", L"sections"}, kExitUsage, L""},
        {{L"ini", L"keys", L"f"}, kExitUsage, L""},
        {{L"bogus"}, kExitUsage, L""},
        {{L"ini", L"get", temp.File(L"absent.ini"), L"General", L"Debug"},
         kExitFailure,
         L"absent.ini"},
        {{L"ini", L"sections", temp.Path()}, kExitFailure, L"folder"},
        {{L"ini", L"set", temp.Path(), L"General", L"Debug", L"1"}, kExitFailure, L"folder"},
        {{L"ini", L"set", temp.Folder(L"nope") + L"x.ini", L"General", L"Debug", L"1"},
         kExitFailure,
         L"does not exist"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.args));
        const auto run = RunTool(each.args);
        EXPECT_EQ(run.exitCode, each.exitCode);
        EXPECT_EQ(run.out, L"");
        EXPECT_EQ(run.err.rfind(L"orvactl: ", 0), 0u);
        EXPECT_NE(run.err.find(each.said), std::wstring::npos);
    }
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
