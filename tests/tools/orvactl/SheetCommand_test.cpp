#include <gtest/gtest.h>

#include <string>

#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "tools/orvactl/OrvactlRun.h"

namespace {

using Orva::Testing::RunTool;

// Damaged values show corrected; the link filter comes from the installation file while the
// user has not chosen.
TEST(SheetCommand, PrintsWhatEachPagesOkWouldWrite) {
    Orva::Testing::TempFolder temp;
    const std::wstring user = temp.File(L"user.ini");
    const std::wstring install = temp.File(L"install.ini");
    Orva::Testing::WriteFileBytes(temp.Root() / "user.ini",
                                  "[General]\nGlobalLevel= 0 \nProtectLevel=5\nSexualLevel=3\n"
                                  "HealthLevel=x\nEnableInTheCloud=yes\nPurgeDays=400\n"
                                  "AutoMoved=1\nNotifyIcon=2\n");
    Orva::Testing::WriteFileBytes(temp.Root() / "install.ini",
                                  "[Wexor]\nEnableWexor=1\nSecurityLevel=1\n");

    const auto run = RunTool({L"sheet", L"--settings", user, L"--install", install});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out,
              L"GlobalLevel = 0\nProtectLevel = 2\nSexualLevel = 3\nCommercialLevel = 2\n"
              L"FinancialLevel = 2\nHealthLevel = 2\nOtherLevel = 2\nRacialLevel = 2\n"
              L"SpiritualLevel = 2\nEnableInTheCloud = 0\nEnableWexor = 1\nSecurityLevel = 1\n"
              L"PurgeDays = 20\nAutoMoved = 1\nDeleteDeleted = 0\nNotifyIcon = 1\n");

    const auto withoutInstall = RunTool({L"sheet", L"--settings=" + user});
    EXPECT_NE(withoutInstall.out.find(L"EnableWexor = 0\nSecurityLevel = 2\n"), std::wstring::npos);
    EXPECT_EQ(Orva::Testing::ReadFileBytes(temp.Root() / "user.ini").find("Wexor"),
              std::string::npos);

    EXPECT_EQ(RunTool({L"sheet", L"--install", install}).exitCode, 2);
    EXPECT_EQ(
        RunTool({L"sheet", L"--settings", user, L"--install", temp.File(L"none.ini")}).exitCode, 1);
}

}  // namespace
