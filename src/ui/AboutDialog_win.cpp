#include "ui/AboutDialog_win.h"

#include <utility>

#include "settings/probes/FileVersionReader.h"
#include "ui/AboutIds.h"
#include "ui/BitmapFile_win.h"
#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/FeedbackDialog_win.h"
#include "ui/ResourceModule_win.h"

namespace Orva::Ui {

CAboutDlg::CAboutDlg(AboutContent content, PageServices& services,
                     ZelCommon::Platform::IShellOpen& shell, UpdatesOpener openUpdates)
    : CDialogWindow(IDD_ABOUT),
      m_content(std::move(content)),
      m_services(services),
      m_shell(shell),
      m_openUpdates(std::move(openUpdates)) {}

bool CAboutDlg::OnInitDialog() {
    UseWhiteBackground();
    if (!m_content.caption.empty()) {
        ::SetWindowTextW(Handle(), m_content.caption.c_str());
    }
    ApplyControlTexts(Handle(), AboutTexts(), m_services.strings);
    const std::pair<int, const std::wstring*> texts[] = {
        {IDC_ABOUT_TITLE, &m_content.title},         {IDC_ABOUT_PRODUCT, &m_content.productName},
        {IDC_ABOUT_COMPANY, &m_content.companyName}, {IDC_ABOUT_ENGINE, &m_content.engineVersion},
        {IDC_ABOUT_PATCH, &m_content.patchVersion},  {IDC_ABOUT_FILE, &m_content.fileVersion},
        {IDC_ABOUT_BUILD, &m_content.privateBuild},  {IDC_ABOUT_COPYRIGHT, &m_content.copyright},
        {IDC_ABOUT_WARNING, &m_content.warning},
    };
    for (const auto& [id, text] : texts) {
        ::SetDlgItemTextW(Handle(), id, text->c_str());
    }
    if (!m_content.bannerPath.empty()) {
        m_banner = LoadCheckedBitmapFile(m_content.bannerPath);
        if (m_banner) {
            ::SendDlgItemMessageW(Handle(), IDC_ABOUT_BANNER, STM_SETIMAGE, IMAGE_BITMAP,
                                  reinterpret_cast<LPARAM>(m_banner.get()));
        }
    }
    m_titleFont = SetHeadlineFont(Handle(), {IDC_ABOUT_TITLE}, m_services.strings,
                                  L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    ::ShowWindow(Item(IDC_ABOUT_FEEDBACK), m_content.showFeedbackButton ? SW_SHOW : SW_HIDE);
    if (m_openUpdates) {
        PlaceUpdatesButton();
    }
    return true;
}

// Beside the feedback button, or in its place when the installation hides it.
void CAboutDlg::PlaceUpdatesButton() {
    const HWND updates = Item(IDC_ABOUT_UPDATES);
    if (!m_content.showFeedbackButton) {
        RECT feedback{};
        ::GetWindowRect(Item(IDC_ABOUT_FEEDBACK), &feedback);
        ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&feedback), 2);
        ::SetWindowPos(updates, nullptr, feedback.left, feedback.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    ::ShowWindow(updates, SW_SHOW);
}

bool CAboutDlg::OnCommand(int id, int code, HWND /*control*/) {
    if (id == IDC_ABOUT_UPDATES && code == BN_CLICKED) {
        if (m_openUpdates) {
            m_openUpdates(Handle());
        }
        return true;
    }
    if (id == IDC_ABOUT_FEEDBACK && code == BN_CLICKED) {
        CFeedbackDlg feedback(m_services, m_shell);
        feedback.RunModal(Handle());
        return true;
    }
    if (id != IDOK && id != IDCANCEL) {
        return false;
    }
    if (!m_services.agent.IsSuiteBusy()) {
        ::EndDialog(Handle(), id);
    }
    return true;
}

std::optional<INT_PTR> CAboutDlg::OnMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_CLOSE &&
        m_services.agent.IsSuiteBusy()) {
        return TRUE;
    }
    return std::nullopt;
}

ModuleVersion ThisModuleVersion() {
    wchar_t path[MAX_PATH] = {};
    const DWORD length = ::GetModuleFileNameW(ResourceModule(), path, MAX_PATH);
    const Settings::FileVersionReader reader(std::wstring(path, length < MAX_PATH ? length : 0));
    return {reader.Query(L"FileVersion").value_or(L""),
            reader.Query(L"PrivateBuild").value_or(L"")};
}

}  // namespace Orva::Ui
