#include "tools/orvactl/EncodingsCommand.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "tools/orvactl/Orvactl.h"

namespace Orva::Orvactl {
namespace {

const std::string kHead = "\xEF\xBB\xBF; Written by ORVA v3.5 (c) 2005 Halvion\n";
const std::string kFile = kHead + "5\nGreek\t0\t737\t1253\nThai\t1\t874\n";

struct EncodingsCase {
    const char* label;
    std::string before;              // empty: no file
    std::vector<std::wstring> args;  // FILE as "F"
    int exitCode;
    std::wstring out;
    std::wstring errPart;
    std::string after;  // empty: as before
};

// What each command prints and leaves; only a written change is announced to the agent.
TEST(EncodingsCommand, Outcomes_PrintTheirTextAndExitCode) {
    // clang-format off
    const EncodingsCase cases[] = {
        {"Show", kFile, {L"show", L"F"}, kExitOk, L"5\nGreek\t0\t737\t1253\nThai\t1\t874\n", L"",
         ""},
        {"ShowDamaged", kHead + "99999999999\n\t\t\t\nThai\t1\t874\t12ab\tx\nThai\t0\nName\n", {L"show", L"F"},
         kExitOk, L"2147483647\nName\t0\nThai\t1\t874\t12\n", L"", ""},
        {"Block", kFile, {L"block", L"F", L"Greek"}, kExitOk, L"blocked Greek\n", L"",
         kHead + "5\nGreek\t1\t737\t1253\nThai\t1\t874\n"},
        {"Unblock", kFile, {L"unblock", L"F", L"Thai"}, kExitOk, L"unblocked Thai\n", L"",
         kHead + "5\nGreek\t0\t737\t1253\nThai\t0\t874\n"},
        {"AlreadyBlocked", kFile, {L"block", L"F", L"Thai"}, kExitOk, L"already blocked Thai\n",
         L"", ""},
        {"UnknownGroup", kFile, {L"block", L"F", L"thai"}, kExitFailure, L"",
         L"no group 'thai' in ", ""},
        {"MissingFile", "", {L"show", L"F"}, kExitFailure, L"", L"no such file", ""},
        {"GroupMissing", kFile, {L"unblock", L"F"}, kExitUsage, L"", L"wrong arguments", ""},
        {"OtherSubCommand", kFile, {L"add", L"F", L"Thai"}, kExitUsage, L"", L"unknown sub", ""},
    };
    // clang-format on
    for (const EncodingsCase& each : cases) {
        SCOPED_TRACE(each.label);
        Testing::TempFolder folder;
        const std::wstring file = folder.File(L"BlockEncodings.dat");
        if (!each.before.empty()) {
            Testing::WriteFileBytes(file, each.before);
        }
        ZelCommon::Fakes::FakeWindowMessaging windows;
        const auto agent = windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
        std::vector<std::wstring> args = each.args;
        for (std::wstring& arg : args) {
            arg = arg == L"F" ? file : arg;
        }
        StringSink out;
        StringSink err;
        EXPECT_EQ(RunEncodingsCommand(args, out, err, windows), each.exitCode);
        EXPECT_EQ(out.Text(), each.out);
        EXPECT_NE(err.Text().find(each.errPart), std::wstring::npos) << err.Text().size();
        const std::string after = each.after.empty() ? each.before : each.after;
        EXPECT_EQ(Testing::ReadFileBytes(file), after.empty() ? "<missing>" : after);
        using Message = ZelCommon::Fakes::FakeWindowMessaging::Message;
        const std::vector<Message> told{
            {agent, 1034, 0, 0, ZelCommon::Fakes::FakeWindowMessaging::Delivery::Posted, true}};
        EXPECT_EQ(windows.Messages(), each.after.empty() ? std::vector<Message>{} : told);
    }
}

TEST(EncodingsCommand, OtherFileName_UsageErrorAndNothingRead) {
    Testing::TempFolder folder;
    const std::wstring list = folder.File(L"WhiteList.dat");
    Testing::WriteFileBytes(list, kFile);
    StringSink out;
    StringSink err;
    ZelCommon::Fakes::FakeWindowMessaging windows;
    const std::vector<std::wstring> args{L"block", list, L"Thai"};
    EXPECT_EQ(RunEncodingsCommand(args, out, err, windows), kExitUsage);
    EXPECT_NE(err.Text().find(L"BlockEncodings.dat"), std::wstring::npos);
    EXPECT_EQ(Testing::ReadFileBytes(list), kFile);
}

}  // namespace
}  // namespace Orva::Orvactl
