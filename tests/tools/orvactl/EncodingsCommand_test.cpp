#include "tools/orvactl/EncodingsCommand.h"

#include <gtest/gtest.h>

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

// What each command prints and leaves; only a written change is announced to the agent.
TEST(EncodingsCommand, Outcomes_PrintTheirTextAndExitCode) {
    // clang-format off
    const struct {
        std::string before;              // empty: no file
        std::vector<std::wstring> args;  // the file as "F"
        int exitCode;
        std::wstring out, errPart;
        std::string after;  // empty: as before
    } cases[] = {
        {kHead + "99999999999\n\t\t\t\nThai\t1\t874\t12ab\tx\nThai\t0\nName\n", {L"show", L"F"},
         kExitOk, L"2147483647\nName\t0\nThai\t1\t874\t12\n", L"", ""},
        {kFile, {L"block", L"F", L"Greek"}, kExitOk, L"blocked Greek\n", L"",
         kHead + "5\nGreek\t1\t737\t1253\nThai\t1\t874\n"},
        {kFile, {L"block", L"F", L"Thai"}, kExitOk, L"already blocked Thai\n", L"", ""},
        {kFile, {L"unblock", L"F", L"thai"}, kExitFailure, L"", L"no group 'thai' in ", ""},
        {"", {L"show", L"F"}, kExitFailure, L"", L"no such file", ""},
        {kFile, {L"unblock", L"F"}, kExitUsage, L"", L"wrong arguments", ""},
        {kFile, {L"show", L"WhiteList.dat"}, kExitUsage, L"", L"BlockEncodings.dat", ""},
    };
    // clang-format on
    for (const auto& each : cases) {
        SCOPED_TRACE(each.exitCode);
        Testing::TempFolder folder;
        const std::wstring file = folder.File(L"BlockEncodings.dat");
        if (!each.before.empty()) {
            Testing::WriteFileBytes(file, each.before);
        }
        std::vector<std::wstring> args = each.args;
        for (std::wstring& arg : args) {
            arg = arg == L"F" ? file : arg == L"WhiteList.dat" ? folder.File(arg) : arg;
        }
        ZelCommon::Fakes::FakeWindowMessaging windows;
        windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
        StringSink out;
        StringSink err;
        EXPECT_EQ(RunEncodingsCommand(args, out, err, windows), each.exitCode);
        EXPECT_EQ(out.Text(), each.out);
        EXPECT_NE(err.Text().find(each.errPart), std::wstring::npos) << err.Text().size();
        const std::string after = each.after.empty() ? each.before : each.after;
        EXPECT_EQ(Testing::ReadFileBytes(file), after.empty() ? "<missing>" : after);
        std::vector<uint32_t> told;
        for (const auto& message : windows.Messages()) {
            told.push_back(message.delivered ? message.message : 0);
        }
        EXPECT_EQ(told, each.after.empty() ? std::vector<uint32_t>{} : std::vector<uint32_t>{1034});
    }
}

}  // namespace
}  // namespace Orva::Orvactl
