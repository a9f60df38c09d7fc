#include "ui/StatisticsFigures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

namespace Orva::Ui {
namespace {

struct FiguresCase {
    const char* name;
    StatisticsCounters counters;
    int32_t realSpam, normalMail, detectedPercent, reportedPercent;
    double detectionRateLogged, detectionRate, falsePositiveRate;
    bool chartEnabled;
    int32_t normalShare, detectedShare, reportedShare;
};

// INT_MIN stands for the 0 / 0 percentages of an empty file, as the x86 conversion gives them.
// clang-format off
constexpr FiguresCase kCases[] = {
    {"all zero", {0, 0, 0, 0}, 0, 0, INT_MIN, INT_MIN, 0, 0, 0, true, 100, 0, 0},
    {"worked example", {100, 10, 0, 2}, 8, 92, 10, 0, 80, 80, 20, true, 90, 10, 0},
    {"negative FP count", {100, 10, 0, -1}, 11, 89, 10, 0, 110, 100, 0, false, 100, 0, 0},
    {"more reported than checked", {10, 20, 30, 0}, 50, -40, 0, 100, 40, 40, 0, true, -400, 200,
     300},
    // 0.29 * 100 truncates to 28 in double precision and to 29 in single precision.
    {"single and double precision", {100, 29, 29, 0}, 58, 42, 29, 28, 50, 50, 0, true, 42, 29, 29},
    {"half a share rounds up", {200, 1, 0, 0}, 1, 199, 0, 0, 100, 100, 0, true, 99, 1, 0},
    // B + C wraps to INT_MIN, and so does the divisor C + B of the detection rate.
    {"overflowing counters", {INT_MAX, INT_MAX, 1, 0}, INT_MIN, -1, 100, 0, -99.99999995343387, 0,
     0, true, 0, 100, 0},
    {"false positives of no detection", {5, 0, 0, 1}, -1, 6, 0, 0, 0, 0, 100, true, 100, 0, 0},
};
// clang-format on

TEST(StatisticsFigures, CountersOfEveryKind_GiveTheDialogsFigures) {
    for (const FiguresCase& expected : kCases) {
        SCOPED_TRACE(expected.name);
        const StatisticsFigures figures = ComputeStatistics(expected.counters);
        EXPECT_EQ(figures.realSpam, expected.realSpam);
        EXPECT_EQ(figures.normalMail, expected.normalMail);
        EXPECT_EQ(figures.detectedPercent, expected.detectedPercent);
        EXPECT_EQ(figures.reportedPercent, expected.reportedPercent);
        EXPECT_DOUBLE_EQ(figures.detectionRateLogged, expected.detectionRateLogged);
        EXPECT_DOUBLE_EQ(figures.detectionRate, expected.detectionRate);
        EXPECT_DOUBLE_EQ(figures.falsePositiveRate, expected.falsePositiveRate);
        EXPECT_EQ(figures.chartEnabled, expected.chartEnabled);
        EXPECT_EQ(figures.normalShare, expected.normalShare);
        EXPECT_EQ(figures.detectedShare, expected.detectedShare);
        EXPECT_EQ(figures.reportedShare, expected.reportedShare);
    }
}

// The whole sequence, byte for byte, is checked through orvactl statistics.
TEST(StatisticsFigures, LogLines_RatesBeforeClamping_DisableLineLast) {
    const auto lines = StatisticsLogLines(ComputeStatistics({100, 10, 0, -1}));
    ASSERT_EQ(lines.size(), 12u);
    EXPECT_NE(std::ranges::find(
                  lines, L"@@CStatisticsDlg::PreDraw@@ fDetectRate=(B-D)/E (G) : 110.000%\n"),
              lines.end());
    EXPECT_EQ(lines.back(),
              L"@@CStatisticsDlg::PreDraw@@ Disable Pie Chart because of invalid Data\n");
}

}  // namespace
}  // namespace Orva::Ui
