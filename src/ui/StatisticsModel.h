#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common_src/platform/WindowMessaging.h"
#include "ui/MessageBoxes.h"
#include "ui/PageServices.h"
#include "ui/StatisticsFigures.h"
#include "ui/StatisticsPie.h"

namespace Orva::Ui {

// The counters of section Statistics of the user's settings file, which the agent keeps; a
// missing file or key reads 0.
StatisticsCounters ReadStatisticsCounters(const Settings::SettingsStore& settings);

// A counter as its text control shows it ("%d").
std::wstring CounterText(int32_t counter);
// A rate put into the format its control's template holds.
std::wstring RateText(std::wstring_view format, double rate);

// The statistics dialog without its window: the agent asked for fresh counters, the figures and
// the chart recomputed and logged, the start date, and the reset after the user's Yes. The
// statistics file is only read; every change goes through the agent.
class CStatisticsModel {
public:
    CStatisticsModel(PageServices& services, IMessageBoxes& boxes)
        : m_services(services), m_boxes(boxes) {}

    // Reads the start of counting.
    void BuildBaseLayout();
    // Seconds since 1970-01-01 UTC, or nothing for "now" (RunningSince 0, absent or negative).
    std::optional<int64_t> RunningSince() const { return m_runningSince; }

    // Waits for the agent to write its counters, then reads, computes and logs them and refills
    // the chart.
    void Recompute();
    const StatisticsFigures& Figures() const { return m_figures; }
    const std::vector<CPieSlice>& Slices() const { return m_slices; }

    // Asks the user; on Yes the agent resets the counters (waited for) and the layout and the
    // figures are built again. True when they were.
    bool Reset(ZelCommon::Platform::WindowHandle owner);

    // The title's "<$SPAM_NAME>" as the installation names it, else in the user's language.
    std::wstring TitleText(std::wstring_view templateText) const;

private:
    PageServices& m_services;
    IMessageBoxes& m_boxes;
    std::optional<int64_t> m_runningSince;
    StatisticsFigures m_figures;
    std::vector<CPieSlice> m_slices = ChartSlices(StatisticsFigures{}, {});
};

}  // namespace Orva::Ui
