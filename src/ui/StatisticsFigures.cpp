#include "ui/StatisticsFigures.h"

#include <cmath>
#include <limits>

#include "common_src/platform/WideFormat.h"

namespace Orva::Ui {
namespace {

// 32-bit arithmetic with wrap-around, without the undefined behaviour of signed overflow.
int32_t Add(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}
int32_t Subtract(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}

double Clamp(double rate) {
    if (rate < 0) {
        return 0;
    }
    return rate > 100 ? 100 : rate;
}

// The reported percentage in double precision, the detected one in single precision: the two
// can differ by one for the same ratio, and the log shows what the dialog computed.
void ComputeLoggedPercentages(StatisticsFigures& figures) {
    const StatisticsCounters& c = figures.counters;
    figures.reportedPercent = c.reportedSpam <= c.processed
                                  ? TruncateToInt32(static_cast<double>(c.reportedSpam) /
                                                    static_cast<double>(c.processed) * 100.0)
                                  : 100;
    if (c.detected <= c.processed) {
        const float ratio = static_cast<float>(c.detected) / static_cast<float>(c.processed);
        const float percent = ratio * 100.0f;
        figures.detectedPercent = TruncateToInt32(static_cast<double>(percent));
    } else {
        figures.detectedPercent = Subtract(100, figures.reportedPercent);
    }
}

// The divisors are C + B and B, whatever the log's labels say.
void ComputeRates(StatisticsFigures& figures) {
    const StatisticsCounters& c = figures.counters;
    const int32_t confirmed = Subtract(c.detected, c.reportedFP);
    figures.detectionRateLogged =
        confirmed >= 1 ? static_cast<double>(confirmed) /
                             static_cast<double>(Add(c.reportedSpam, c.detected)) * 100.0
                       : 0.0;
    figures.falsePositiveRateLogged =
        c.reportedFP >= 1
            ? static_cast<double>(c.reportedFP) / static_cast<double>(c.detected) * 100.0
            : 0.0;
    figures.detectionRate = Clamp(figures.detectionRateLogged);
    figures.falsePositiveRate = Clamp(figures.falsePositiveRateLogged);
}

void ComputeShares(StatisticsFigures& figures) {
    const StatisticsCounters& c = figures.counters;
    const int32_t total = Add(Add(c.reportedSpam, figures.normalMail), c.detected);
    const auto share = [total](int32_t count) {
        return total == 0
                   ? 0
                   : RoundShare(static_cast<double>(count) * 100.0 / static_cast<double>(total));
    };
    figures.reportedShare = share(c.reportedSpam);
    figures.detectedShare = share(c.detected);
    figures.normalShare = Subtract(Subtract(100, figures.detectedShare), figures.reportedShare);
}

}  // namespace

int32_t TruncateToInt32(double value) {
    constexpr double kLimit = 2147483648.0;
    if (std::isnan(value) || value >= kLimit || value <= -kLimit - 1.0) {
        return std::numeric_limits<int32_t>::min();
    }
    return static_cast<int32_t>(value);
}

int32_t RoundShare(double value) {
    const int32_t truncated = TruncateToInt32(value);
    if (truncated == std::numeric_limits<int32_t>::min()) {
        return truncated;
    }
    return value - static_cast<double>(truncated) >= 0.5 ? Add(truncated, 1) : truncated;
}

StatisticsFigures ComputeStatistics(const StatisticsCounters& counters) {
    StatisticsFigures figures;
    figures.counters = counters;
    figures.realSpam = Subtract(Add(counters.detected, counters.reportedSpam), counters.reportedFP);
    figures.normalMail = Subtract(counters.processed, figures.realSpam);
    ComputeLoggedPercentages(figures);
    ComputeRates(figures);
    figures.chartEnabled = counters.processed >= 0 && counters.detected >= 0 &&
                           counters.reportedSpam >= 0 && counters.reportedFP >= 0;
    if (figures.chartEnabled) {
        ComputeShares(figures);
    }
    return figures;
}

std::vector<std::wstring> StatisticsLogLines(const StatisticsFigures& figures) {
    using ZelCommon::Text::Format;
    const StatisticsCounters& c = figures.counters;
    std::vector<std::wstring> lines = {
        L"@@CStatisticsDlg::PreDraw@@ Starting\n",
        Format(L"@@CStatisticsDlg::PreDraw@@ lProcessedMsg      (A) : %d\n", c.processed),
        Format(L"@@CStatisticsDlg::PreDraw@@ lDetectedSpam      (B) : %d\n", c.detected),
        Format(L"@@CStatisticsDlg::PreDraw@@ lReportedSpam      (C) : %d\n", c.reportedSpam),
        Format(L"@@CStatisticsDlg::PreDraw@@ lReportedFP        (D) : %d\n", c.reportedFP),
        Format(L"@@CStatisticsDlg::PreDraw@@ lRealSpamMsg=B+C-D (E) : %d\n", figures.realSpam),
        Format(L"@@CStatisticsDlg::PreDraw@@ lNormalMsg  =A-E   (F) : %d\n", figures.normalMail),
        Format(L"@@CStatisticsDlg::PreDraw@@ nPerDetect   : %d\n", figures.detectedPercent),
        Format(L"@@CStatisticsDlg::PreDraw@@ nPerRptSPAM  : %d\n", figures.reportedPercent),
        Format(L"@@CStatisticsDlg::PreDraw@@ fDetectRate=(B-D)/E (G) : %.3f%%\n",
               figures.detectionRateLogged),
        Format(L"@@CStatisticsDlg::PreDraw@@ fFPRate    =D/F     (H) : %.3f%%\n",
               figures.falsePositiveRateLogged),
    };
    if (!figures.chartEnabled) {
        lines.emplace_back(
            L"@@CStatisticsDlg::PreDraw@@ Disable Pie Chart because of invalid Data\n");
    }
    return lines;
}

}  // namespace Orva::Ui
