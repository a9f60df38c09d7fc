#include "ui/StatisticsModel.h"

#include "common_src/platform/WideFormat.h"
#include "plugin/protocol/AgentProtocol.h"
#include "settings/localisation/Placeholders.h"

namespace Orva::Ui {

using Settings::SettingId;

StatisticsCounters ReadStatisticsCounters(const Settings::SettingsStore& settings) {
    return {settings.GetInt(SettingId::ProcessedMsg), settings.GetInt(SettingId::DetectedSpam),
            settings.GetInt(SettingId::ReportedSpam), settings.GetInt(SettingId::ReportedFP)};
}

std::wstring CounterText(int32_t counter) {
    return ZelCommon::Text::Format(L"%d", counter);
}

std::wstring RateText(std::wstring_view format, double rate) {
    return ZelCommon::Text::Format(format, rate);
}

// A time before 1970 is no start the agent writes; the date would mislead, so today is shown.
void CStatisticsModel::BuildBaseLayout() {
    ZelCommon::Library::DebugLog& log = m_services.log;
    log.LogText(L"@@CStatisticsDlg::BuildBaseLayout@@ Starting\n");
    const int32_t since = m_services.settings.GetInt(SettingId::RunningSince);
    if (since < 0) {
        log.LogText(
            L"xxx @@CStatisticsDlg::BuildBaseLayout@@ RunningSince %d is before 1970: "
            L"today is shown\n",
            since);
    }
    m_runningSince = since > 0 ? std::optional<int64_t>(since) : std::nullopt;
}

void CStatisticsModel::Recompute() {
    m_services.agent.Notify(Plugin::AgentMessage::RefreshStatistics);
    m_figures = ComputeStatistics(ReadStatisticsCounters(m_services.settings));
    for (const std::wstring& line : StatisticsLogLines(m_figures)) {
        m_services.log.LogText(L"%s", line);
    }
    Settings::ILocalisedStrings& strings = m_services.strings;
    m_slices = ChartSlices(m_figures, {strings.LoadShown(L"IDS_DLG_STAT_GENERAL_MESSAGE"),
                                       strings.LoadShown(L"IDS_DLG_STAT_GENERAL_DETECT"),
                                       strings.LoadShown(L"IDS_DLG_STAT_GENERAL_REPORT_SPAM")});
}

bool CStatisticsModel::Reset(ZelCommon::Platform::WindowHandle owner) {
    const BoxAnswer answer =
        m_boxes.Show(owner, m_services.strings.LoadShown(L"IDS_WARN_RESET_STATISTICS"),
                     m_services.strings.LoadShown(L"IDS_WARNING_CAPTION"),
                     BoxStyle::kYesNo | BoxStyle::kIconExclamation);
    if (answer != BoxAnswer::Yes) {
        return false;
    }
    m_services.agent.Notify(Plugin::AgentMessage::ResetStatistics);
    BuildBaseLayout();
    Recompute();
    return true;
}

std::wstring CStatisticsModel::TitleText(std::wstring_view templateText) const {
    std::wstring name = m_services.settings.GetString(SettingId::InstallAntiSpamTitle);
    if (name.empty()) {
        name = m_services.strings.LoadShown(L"IDS_SPAM_NAME");
    }
    if (name.empty()) {
        name = Settings::kSpamNameFallback;
    }
    return Settings::ReplaceAll(templateText, Settings::kSpamNamePlaceholder, name);
}

}  // namespace Orva::Ui
