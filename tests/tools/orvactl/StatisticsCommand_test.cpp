#include <gtest/gtest.h>

#include <string>

#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "tools/orvactl/OrvactlRun.h"

namespace {

using Orva::Testing::RunTool;

TEST(StatisticsCommand, PrintsTheRecomputationsLogLinesThenThePie) {
    Orva::Testing::TempFolder temp;
    const std::wstring file = temp.File(L"user.ini");
    Orva::Testing::WriteFileBytes(temp.Root() / "user.ini",
                                  "[Statistics]\nProcessedMsg=100\nDetectedSpam=10\n"
                                  "ReportedFP=2\nRunningSince=junk\n");

    const auto run = RunTool({L"statistics", file});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out,
              L"@@CStatisticsDlg::PreDraw@@ Starting\n"
              L"@@CStatisticsDlg::PreDraw@@ lProcessedMsg      (A) : 100\n"
              L"@@CStatisticsDlg::PreDraw@@ lDetectedSpam      (B) : 10\n"
              L"@@CStatisticsDlg::PreDraw@@ lReportedSpam      (C) : 0\n"
              L"@@CStatisticsDlg::PreDraw@@ lReportedFP        (D) : 2\n"
              L"@@CStatisticsDlg::PreDraw@@ lRealSpamMsg=B+C-D (E) : 8\n"
              L"@@CStatisticsDlg::PreDraw@@ lNormalMsg  =A-E   (F) : 92\n"
              L"@@CStatisticsDlg::PreDraw@@ nPerDetect   : 10\n"
              L"@@CStatisticsDlg::PreDraw@@ nPerRptSPAM  : 0\n"
              L"@@CStatisticsDlg::PreDraw@@ fDetectRate=(B-D)/E (G) : 80.000%\n"
              L"@@CStatisticsDlg::PreDraw@@ fFPRate    =D/F     (H) : 20.000%\n"
              L"pie: 90 10 0\n");

    Orva::Testing::WriteFileBytes(temp.Root() / "user.ini",
                                  "[Statistics]\nProcessedMsg=x\nReportedSpam=-3\n");
    const auto disabled = RunTool({L"statistics", file});
    EXPECT_NE(disabled.out.find(L"(A) : 0\n"), std::wstring::npos);
    EXPECT_TRUE(
        disabled.out.ends_with(L"Disable Pie Chart because of invalid Data\npie: disabled\n"));

    EXPECT_EQ(RunTool({L"statistics", temp.File(L"none.ini")}).exitCode, 1);
    EXPECT_EQ(RunTool({L"statistics"}).exitCode, 2);
}

}  // namespace
