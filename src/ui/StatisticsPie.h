#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ui/StatisticsFigures.h"

namespace Orva::Ui {

// Colours as Windows colour references (0x00BBGGRR).
inline constexpr uint32_t kNormalMailColour = 0xFF9999;
inline constexpr uint32_t kDetectedSpamColour = 0x663399;
inline constexpr uint32_t kReportedSpamColour = 0xCCFFFF;
inline constexpr uint32_t kDisabledChartColour = 0x7F7F7F;

struct CPieSlice {
    int32_t percentage = 0;
    uint32_t colour = 0;
    std::wstring label;
};

// The labels of the three slices, in the user's language.
struct PieLabels {
    std::wstring normalMail;
    std::wstring detectedSpam;
    std::wstring reportedSpam;
};

// Normal mail, detected and reported spam, in drawing and legend order; one grey slice of 100
// without a label while the chart is disabled.
std::vector<CPieSlice> ChartSlices(const StatisticsFigures& figures, const PieLabels& labels);

// The pie's circle is the square from -kPieRadius to kPieRadius around its centre.
inline constexpr int32_t kPieRadius = 50;

struct PiePoint {
    int32_t x = 0;
    int32_t y = 0;
    bool operator==(const PiePoint&) const = default;
};

// Where a cumulative percentage points, from the pie's centre. The vertical component is three
// quarters of the horizontal one: the pie's edges lean as the chart always drew them.
PiePoint RadialPoint(int32_t cumulativePercent);

// One filled slice: from the radial point `from` round to `to`, counter-clockwise on screen.
struct PieWedge {
    uint32_t colour = 0;
    PiePoint from;
    PiePoint to;
    bool operator==(const PieWedge&) const = default;
};

// The wedges to draw, in slice order: none unless the percentages add up to exactly 100, and
// none for a slice of 0.
std::vector<PieWedge> PieWedges(std::span<const CPieSlice> slices);

}  // namespace Orva::Ui
