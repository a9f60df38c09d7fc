#include "ui/StatisticsPie.h"

#include <gtest/gtest.h>

namespace Orva::Ui {
namespace {

// The chart's pi is a little short of pi, so the sine and cosine fall just short of one and
// truncate to 999 and 2999 / 4; the vertical component is three quarters of the horizontal.
TEST(StatisticsPie, RadialPoint_AtQuarterSteps_StartsAtTheTopAndTurnsCounterClockwise) {
    const std::pair<int32_t, PiePoint> cases[] = {
        {0, {0, -749}}, {25, {-999, 0}}, {50, {0, 749}}, {75, {999, 0}}, {100, {0, -749}}};
    for (const auto& [percent, point] : cases) {
        EXPECT_EQ(RadialPoint(percent), point) << percent;
    }
}

TEST(StatisticsPie, Wedges_FromCumulativePercentages_ZeroSkipped_NoneUnlessAHundred) {
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

TEST(StatisticsPie, ChartSlices_ThreeInLegendOrder_OrOneGreySliceWhenDisabled) {
    const PieLabels labels{L"normal", L"detected", L"reported"};
    EXPECT_EQ(ChartSlices(ComputeStatistics({100, 10, 0, 2}), labels).at(1).percentage, 10);
    const auto disabled = ChartSlices(ComputeStatistics({-1, 0, 0, 0}), labels);
    ASSERT_EQ(disabled.size(), 1u);
    EXPECT_EQ(disabled[0].percentage, 100);
    EXPECT_EQ(disabled[0].colour, kDisabledChartColour);
    EXPECT_EQ(disabled[0].label, L"");
}

}  // namespace
}  // namespace Orva::Ui
