#include "StatisticsCommand.h"

#include "CommandErrors.h"
#include "FileChecks.h"
#include "Orvactl.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessContext.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"
#include "ui/StatisticsFigures.h"
#include "ui/StatisticsModel.h"

namespace Orva::Orvactl {
namespace {

// The log lines as they would reach the add-in's log file, without their head.
class LogLinesTo final : public ZelCommon::Platform::IDebuggerOutput {
public:
    explicit LogLinesTo(ITextSink& out) : m_out(out) {}
    void Write(const std::wstring& text) override { m_out.Write(text); }

private:
    ITextSink& m_out;
};

std::wstring PieLine(const Ui::StatisticsFigures& figures) {
    if (!figures.chartEnabled) {
        return L"pie: disabled\n";
    }
    return L"pie: " + std::to_wstring(figures.normalShare) + L" " +
           std::to_wstring(figures.detectedShare) + L" " + std::to_wstring(figures.reportedShare) +
           L"\n";
}

}  // namespace

std::wstring StatisticsHelpText() {
    return LR"(statistics command:
  orvactl statistics FILE
      Reads the counters of section [Statistics] of the user's settings file FILE as the
      statistics dialog reads them and prints the dialog's log lines of the recomputation,
      then one last line "pie: N S R" with the chart's shares of normal mail, detected spam
      and reported spam, or "pie: disabled" when a counter is negative. Nothing is written.
)";
}

int RunStatisticsCommand(std::span<const std::wstring> args, ITextSink& out, ITextSink& err,
                         ZelCommon::Storage::IProfileApi& api) {
    if (args.size() != 1) {
        return ReportUsageError(err, L"'statistics' needs one FILE");
    }
    const std::wstring& file = args[0];
    if (const auto problem = WhyNotReadableFile(file)) {
        return ReportFailure(err, *problem);
    }
    const Settings::SettingsStore settings(api, Settings::SettingsFiles{L"", file, L"", false});
    const Ui::StatisticsFigures figures =
        Ui::ComputeStatistics(Ui::ReadStatisticsCounters(settings));

    LogLinesTo lines(out);
    ZelCommon::Library::DebugLog log(ZelCommon::Platform::SystemClock(),
                                     ZelCommon::Platform::SystemProcessContext(), lines);
    log.OpenTextOnly();
    for (const std::wstring& line : Ui::StatisticsLogLines(figures)) {
        log.LogText(L"%s", line);
    }
    out.Write(PieLine(figures));
    return kExitOk;
}

}  // namespace Orva::Orvactl
