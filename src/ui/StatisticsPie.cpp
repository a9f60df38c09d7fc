#include "ui/StatisticsPie.h"

#include <cmath>

namespace Orva::Ui {
namespace {

// The chart's own value of pi; the points it gives are the chart's, not the circle's.
constexpr double kPi = 3.1415926;

int32_t Add(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}

}  // namespace

std::vector<CPieSlice> ChartSlices(const StatisticsFigures& figures, const PieLabels& labels) {
    if (!figures.chartEnabled) {
        return {{100, kDisabledChartColour, L""}};
    }
    return {{figures.normalShare, kNormalMailColour, labels.normalMail},
            {figures.detectedShare, kDetectedSpamColour, labels.detectedSpam},
            {figures.reportedShare, kReportedSpamColour, labels.reportedSpam}};
}

PiePoint RadialPoint(int32_t cumulativePercent) {
    const double angle = static_cast<double>(cumulativePercent) * 2 * kPi / 100 + kPi;
    const double x = std::sin(angle) * 1000;
    const double y = std::cos(angle) * 1000 * 3;
    // Integer division by four truncates towards zero, as the truncation of the quotient would.
    return {static_cast<int32_t>(x), static_cast<int32_t>(y) / 4};
}

std::vector<PieWedge> PieWedges(std::span<const CPieSlice> slices) {
    int32_t total = 0;
    for (const CPieSlice& slice : slices) {
        total = Add(total, slice.percentage);
    }
    std::vector<PieWedge> wedges;
    if (total != 100) {
        return wedges;
    }
    int32_t before = 0;
    for (const CPieSlice& slice : slices) {
        const int32_t after = Add(before, slice.percentage);
        if (slice.percentage != 0) {
            wedges.push_back({slice.colour, RadialPoint(before), RadialPoint(after)});
        }
        before = after;
    }
    return wedges;
}

}  // namespace Orva::Ui
