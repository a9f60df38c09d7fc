#include "ui/UpdatesDialog_win.h"

#include <ctime>
#include <iterator>
#include <optional>

#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/ProxyDialog_win.h"
#include "ui/UpdatesIds.h"

namespace Orva::Ui {
namespace {

// The agent rewrites the versions and the last update while an update runs.
constexpr UINT_PTR kRefreshTimer = 1;
constexpr UINT kRefreshMilliseconds = 3000;
constexpr COLORREF kStaleColour = RGB(255, 0, 0);

int64_t Now() {
    return static_cast<int64_t>(std::time(nullptr));
}

// Seconds since 1970 as the user's local short date; empty when Windows cannot convert them.
std::wstring LocalDateOf(int64_t secondsSince1970) {
    constexpr int64_t kTicksPerSecond = 10'000'000;
    constexpr int64_t k1970InTicks = 116'444'736'000'000'000;
    const auto ticks = static_cast<uint64_t>(secondsSince1970 * kTicksPerSecond + k1970InTicks);
    const FILETIME utc{static_cast<DWORD>(ticks & 0xFFFFFFFFu), static_cast<DWORD>(ticks >> 32)};
    FILETIME local{};
    SYSTEMTIME date{};
    wchar_t text[80] = {};
    if (!::FileTimeToLocalFileTime(&utc, &local) || !::FileTimeToSystemTime(&local, &date) ||
        ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr, text,
                         static_cast<int>(std::size(text))) == 0) {
        return {};
    }
    return text;
}

}  // namespace

CUpdatesDlg::CUpdatesDlg(CUpdatesModel& model, PageServices& services, const ProxyParts& proxy)
    : CDialogWindow(IDD_UPDATES), m_model(model), m_services(services), m_proxy(proxy) {}

bool CUpdatesDlg::OnInitDialog() {
    UseWhiteBackground();
    if (const std::wstring caption = m_services.strings.LoadShown(L"IDS_UPDATES_CAPTION");
        !caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    ApplyControlTexts(Handle(), UpdatesTexts(), m_services.strings);
    wchar_t group[256] = {};
    ::GetDlgItemTextW(Handle(), IDC_UPDATES_GROUP, group, static_cast<int>(std::size(group)));
    ::SetDlgItemTextW(Handle(), IDC_UPDATES_GROUP, m_model.GroupTitle(group).c_str());
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_UPDATES_GROUP}, m_services.strings,
                                     L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");

    const HWND interval = Item(IDC_UPDATES_INTERVAL);
    for (const std::wstring_view id : IntervalNameIds()) {
        const std::wstring name = m_services.strings.LoadShown(std::wstring(id));
        ::SendMessageW(interval, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    const UpdateChoices& choices = m_model.Choices();
    ::SendMessageW(interval, CB_SETCURSEL, static_cast<WPARAM>(choices.scheduleIndex), 0);
    SetChecked(IDC_UPDATES_SCHEDULED, choices.scheduled);
    SetChecked(IDC_UPDATES_SILENT, choices.silent);
    FollowScheduleBox();
    ::EnableWindow(Item(IDOK), FALSE);

    ShowStatus();
    m_shortcuts.Watch(Handle());
    ::SetTimer(Handle(), kRefreshTimer, kRefreshMilliseconds, nullptr);
    return true;
}

void CUpdatesDlg::ShowStatus() {
    const UpdateStatus& status = m_model.Status();
    ::SetDlgItemTextW(Handle(), IDC_UPDATES_ENGINE, status.engineVersion.c_str());
    ::SetDlgItemTextW(Handle(), IDC_UPDATES_PATTERN, status.patternVersion.c_str());
    ::SetDlgItemTextW(Handle(), IDC_UPDATES_AGENT, status.agentVersion.c_str());
    const int64_t now = Now();
    const std::wstring date = status.lastUpdate != 0 ? LocalDateOf(status.lastUpdate) : L"";
    ::SetDlgItemTextW(Handle(), IDC_UPDATES_LAST, m_model.LastUpdateText(date, now).c_str());
    m_lastUpdateRed = m_model.IsLastUpdateRed(now);
    ::InvalidateRect(Item(IDC_UPDATES_LAST), nullptr, TRUE);
}

UpdateChoices CUpdatesDlg::ShownChoices() const {
    const auto index = ::SendMessageW(Item(IDC_UPDATES_INTERVAL), CB_GETCURSEL, 0, 0);
    return {IsChecked(IDC_UPDATES_SCHEDULED), IsChecked(IDC_UPDATES_SILENT),
            static_cast<int>(index)};
}

// The interval means nothing while automatic updates are off.
void CUpdatesDlg::FollowScheduleBox() {
    const BOOL scheduled = IsChecked(IDC_UPDATES_SCHEDULED) ? TRUE : FALSE;
    ::EnableWindow(Item(IDC_UPDATES_INTERVAL), scheduled);
    ::EnableWindow(Item(IDC_UPDATES_EVERY_LABEL), scheduled);
}

bool CUpdatesDlg::OnCommand(int id, int code, HWND /*control*/) {
    switch (id) {
        case IDC_UPDATES_SCHEDULED:
        case IDC_UPDATES_SILENT:
        case IDC_UPDATES_INTERVAL:
            if (code == BN_CLICKED || code == CBN_SELCHANGE) {
                m_model.NoteChange();
                ::EnableWindow(Item(IDOK), m_model.IsOkEnabled() ? TRUE : FALSE);
                FollowScheduleBox();
            }
            return true;
        case IDC_UPDATES_NOW:
            m_model.UpdateNow();
            return true;
        case IDC_UPDATES_PROXY: {
            CProxySettingDlg proxy(m_services, m_proxy.boxes, m_proxy.protector);
            proxy.RunModal(Handle());
            return true;
        }
        case IDC_UPDATES_HELP:
            m_model.OpenHelp();
            return true;
        case IDOK:
            if (m_model.IsOkEnabled() && m_model.Confirm(ShownChoices())) {
                ::EndDialog(Handle(), IDOK);
            }
            return true;
        case IDCANCEL:
            ::EndDialog(Handle(), IDCANCEL);
            return true;
        default:
            return false;
    }
}

std::optional<INT_PTR> CUpdatesDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_TIMER:
            if (wParam == kRefreshTimer) {
                // The rules may also grow old while the dialog is open.
                if (m_model.Refresh() || m_model.IsLastUpdateRed(Now()) != m_lastUpdateRed) {
                    ShowStatus();
                }
                return TRUE;
            }
            return std::nullopt;
        case WM_CTLCOLORSTATIC:
            // The colour only; the dialog's white background follows as for every static.
            if (reinterpret_cast<HWND>(lParam) == Item(IDC_UPDATES_LAST) && m_lastUpdateRed) {
                ::SetTextColor(reinterpret_cast<HDC>(wParam), kStaleColour);
            }
            return std::nullopt;
        case WM_DESTROY:
            ::KillTimer(Handle(), kRefreshTimer);
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

void RunUpdatesDialog(PageServices& services, const UpdatesPorts& ports,
                      const std::wstring& programFolder, const ProxyParts& proxy, HWND owner) {
    CUpdatesModel model(services, ports, programFolder);
    CUpdatesDlg dialog(model, services, proxy);
    if (dialog.RunModal(owner) == -1) {
        services.log.LogText(L"xxx CUpdatesDlg::DoModal() the dialog cannot be shown\n");
    }
}

}  // namespace Orva::Ui
