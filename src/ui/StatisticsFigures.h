#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Orva::Ui {

// The agent's four counters as the statistics file holds them.
struct StatisticsCounters {
    int32_t processed = 0;     // A, ProcessedMsg
    int32_t detected = 0;      // B, DetectedSpam
    int32_t reportedSpam = 0;  // C, ReportedSpam
    int32_t reportedFP = 0;    // D, ReportedFP
};

// Everything the dialog shows and logs about the counters. The integer figures wrap as 32-bit
// integers do, so that a damaged or overflowing file gives the same figures on every build.
struct StatisticsFigures {
    StatisticsCounters counters;
    int32_t realSpam = 0;         // E = B + C - D
    int32_t normalMail = 0;       // F = A - E
    int32_t detectedPercent = 0;  // logged only
    int32_t reportedPercent = 0;  // logged only
    // The rates as logged, before clamping, and as shown, within 0..100.
    double detectionRateLogged = 0;
    double falsePositiveRateLogged = 0;
    double detectionRate = 0;
    double falsePositiveRate = 0;
    // False when a counter is negative: the chart then shows its grey slice and error text.
    bool chartEnabled = true;
    // The chart's shares of normal mail, detected and reported spam; they add up to 100.
    int32_t normalShare = 100;
    int32_t detectedShare = 0;
    int32_t reportedShare = 0;
};

StatisticsFigures ComputeStatistics(const StatisticsCounters& counters);

// The recomputation's debug log lines, each ending in "\n", in the order they are written.
std::vector<std::wstring> StatisticsLogLines(const StatisticsFigures& figures);

// A double truncated towards zero; NaN and values outside the 32-bit range give INT32_MIN, as
// the x86 conversion instruction does, instead of undefined behaviour.
int32_t TruncateToInt32(double value);

// Truncated, then one more when the dropped fraction is at least one half.
int32_t RoundShare(double value);

}  // namespace Orva::Ui
