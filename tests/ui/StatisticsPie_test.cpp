#include "ui/StatisticsPie.h"

#include <gtest/gtest.h>

#include <tuple>

namespace Orva::Ui {
namespace {

// The chart's pi is a little short of pi, so the sine and cosine fall just short of one and
// truncate to 999 and 2999 / 4: 0 points up, 25 left, 50 down, 100 up again.
TEST(StatisticsPie,
     Wedges_AtQuarterSteps_CounterClockwiseFromTheTop_ZeroSkipped_NoneUnlessAHundred) {
    const std::vector<CPieSlice> quarters = {
        {25, 1, L"a"}, {0, 2, L"b"}, {25, 3, L"c"}, {50, 4, L"d"}};
    EXPECT_EQ(PieWedges(quarters),
              (std::vector<PieWedge>{
                  {1, {0, -749}, {-999, 0}}, {3, {-999, 0}, {0, 749}}, {4, {0, 749}, {0, -749}}}));
    const std::vector<CPieSlice> whole = {{100, 7, L""}};
    EXPECT_EQ(PieWedges(whole), (std::vector<PieWedge>{{7, {0, -749}, {0, -749}}}));
    const std::vector<CPieSlice> short_ = {{50, 1, L""}, {49, 2, L""}};
    EXPECT_TRUE(PieWedges(short_).empty());
}

TEST(StatisticsPie, ChartSlices_Disabled_OneGreySliceOfAHundredWithoutLabel) {
    const auto slices = ChartSlices(ComputeStatistics({-1, 0, 0, 0}), {L"n", L"d", L"r"});
    ASSERT_EQ(slices.size(), 1u);
    EXPECT_EQ(std::make_tuple(slices[0].percentage, slices[0].colour, slices[0].label),
              std::make_tuple(100, kDisabledChartColour, std::wstring()));
}

// The same digest on every build (GCC natively, mingw-w64 under Wine, the i686 add-in on SSE2):
// a libm or a precision that differs anywhere changes a truncated point or percentage.
TEST(StatisticsPie, SweepOfPointsAndFigures_GivesTheSameDigestOnEveryBuild) {
    uint64_t digest = 14695981039346656037u;
    const auto mix = [&digest](int32_t value) {
        digest = (digest ^ static_cast<uint32_t>(value)) * 1099511628211u;
    };
    for (int32_t percent = -100; percent <= 300; ++percent) {
        mix(RadialPoint(percent).x);
        mix(RadialPoint(percent).y);
    }
    for (int32_t processed = 1; processed <= 300; ++processed) {
        for (int32_t detected = 0; detected <= processed; detected += 7) {
            const StatisticsFigures figures = ComputeStatistics({processed, detected, 3, 1});
            mix(figures.detectedPercent);
            mix(figures.reportedPercent);
            mix(figures.detectedShare);
            mix(figures.reportedShare);
            mix(TruncateToInt32(figures.detectionRate * 1000));
        }
    }
    EXPECT_EQ(digest, 12726493562020504057u);
}

}  // namespace
}  // namespace Orva::Ui
