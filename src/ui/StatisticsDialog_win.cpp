#include "ui/StatisticsDialog_win.h"

#include <utility>

#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/StatisticsIds.h"

namespace Orva::Ui {
namespace {

// Seconds since 1970 as the user's local date; now when there are none.
std::optional<SYSTEMTIME> LocalDate(std::optional<int64_t> secondsSince1970) {
    SYSTEMTIME local{};
    if (!secondsSince1970) {
        ::GetLocalTime(&local);
        return local;
    }
    constexpr int64_t kTicksPerSecond = 10'000'000;
    constexpr int64_t k1970InTicks = 116'444'736'000'000'000;
    const auto ticks = static_cast<uint64_t>(*secondsSince1970 * kTicksPerSecond + k1970InTicks);
    FILETIME utc{static_cast<DWORD>(ticks & 0xFFFFFFFFu), static_cast<DWORD>(ticks >> 32)};
    FILETIME localTime{};
    if (!::FileTimeToLocalFileTime(&utc, &localTime) ||
        !::FileTimeToSystemTime(&localTime, &local)) {
        return std::nullopt;
    }
    return local;
}

}  // namespace

CStatisticsDialog::CStatisticsDialog(CStatisticsModel& model, PageServices& services)
    : CDialogWindow(IDD_STATISTICS), m_model(model), m_services(services) {}

bool CStatisticsDialog::OnInitDialog() {
    UseWhiteBackground();
    m_detectionRateFormat = ItemText(IDC_STAT_DETECTION_RATE);
    m_falsePositiveRateFormat = ItemText(IDC_STAT_FP_RATE);
    ApplyControlTexts(Handle(), StatisticsDialogTexts(), m_services.strings);
    const std::wstring caption = m_services.strings.LoadShown(L"IDS_STATIST_CAPTION");
    if (!caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    m_headlineFont = SetHeadlineFont(
        Handle(),
        {IDC_STAT_TITLE, IDC_STAT_MESSAGES_TITLE, IDC_STAT_RATES_TITLE, IDC_STAT_CHART_TITLE},
        m_services.strings, L"IDS_WTC_YES_FONT", L"IDS_STATISTIC_DLG_FONT_SIZE");
    m_model.BuildBaseLayout();
    ShowBaseLayoutOrLog();
    m_model.Recompute();
    ShowFigures();
    const std::wstring title = m_model.TitleText(ItemText(IDC_STAT_TITLE));
    ::SetDlgItemTextW(Handle(), IDC_STAT_TITLE, title.c_str());
    return true;
}

// A date that cannot be shown leaves the control as it was; the figures follow all the same.
void CStatisticsDialog::ShowBaseLayoutOrLog() {
    if (!ShowBaseLayout()) {
        m_services.log.LogText(L"@@CStatisticsDlg::OnInitDialog@@ BuildBaseLayout Fail!\n");
    }
}

bool CStatisticsDialog::ShowBaseLayout() {
    const std::optional<SYSTEMTIME> date = LocalDate(m_model.RunningSince());
    wchar_t text[80] = {};
    if (!date || ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &*date, nullptr, text,
                                  static_cast<int>(std::size(text))) == 0) {
        return false;
    }
    ::SetDlgItemTextW(Handle(), IDC_STAT_SINCE, text);
    return true;
}

void CStatisticsDialog::ShowFigures() {
    const StatisticsFigures& figures = m_model.Figures();
    const std::pair<int, int32_t> counters[] = {
        {IDC_STAT_PROCESSED, figures.counters.processed},
        {IDC_STAT_DETECTED, figures.counters.detected},
        {IDC_STAT_REPORTED, figures.counters.reportedSpam},
        {IDC_STAT_REPORTED_FP, figures.counters.reportedFP},
    };
    for (const auto& [id, counter] : counters) {
        ::SetDlgItemTextW(Handle(), id, CounterText(counter).c_str());
    }
    ::SetDlgItemTextW(Handle(), IDC_STAT_DETECTION_RATE,
                      RateText(m_detectionRateFormat, figures.detectionRate).c_str());
    ::SetDlgItemTextW(Handle(), IDC_STAT_FP_RATE,
                      RateText(m_falsePositiveRateFormat, figures.falsePositiveRate).c_str());
    m_chart.SetSlices(m_model.Slices(), figures.chartEnabled ? std::wstring()
                                                             : m_services.strings.LoadShown(
                                                                   L"IDS_DLG_STAT_CHART_ERR"));
}

bool CStatisticsDialog::OnCommand(int id, int code, HWND /*control*/) {
    if (id == IDC_STAT_RESET && code == BN_CLICKED) {
        if (m_model.Reset(reinterpret_cast<ZelCommon::Platform::WindowHandle>(Handle()))) {
            ShowBaseLayoutOrLog();
            ShowFigures();
            ::RedrawWindow(Handle(), nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        }
        return true;
    }
    if (id == IDOK || id == IDCANCEL) {
        ::EndDialog(Handle(), id);
        return true;
    }
    return false;
}

std::optional<INT_PTR> CStatisticsDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_DRAWITEM || wParam != IDC_STAT_CHART) {
        return std::nullopt;
    }
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    m_chart.Draw(item.hDC, item.rcItem);
    return TRUE;
}

void RunStatisticsDialog(PageServices& services, IMessageBoxes& boxes, HWND owner) {
    CStatisticsModel model(services, boxes);
    CStatisticsDialog dialog(model, services);
    if (dialog.RunModal(owner) == -1) {
        services.log.LogText(L"xxx CStatisticsDlg: the dialog could not be shown, error %u\n",
                             ::GetLastError());
    }
}

}  // namespace Orva::Ui
