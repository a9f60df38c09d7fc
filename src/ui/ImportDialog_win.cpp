#include "ui/ImportDialog_win.h"

#include <commctrl.h>

#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/ImportIds.h"

namespace Orva::Ui {

CImportDlg::CImportDlg(Settings::ILocalisedStrings& strings, HWND owner)
    : CDialogWindow(IDD_IMPORT), m_strings(strings), m_owner(owner) {}

CImportDlg::~CImportDlg() {
    Close();
}

void CImportDlg::Open() {
    m_cancelled = false;
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&controls);
    // A popup template: the "child" is a window owned by `m_owner`.
    if (!CreateChild(m_owner)) {
        return;
    }
    m_dialog.reset(Handle());
    if (m_owner != nullptr && ::IsWindowEnabled(m_owner)) {
        ::EnableWindow(m_owner, FALSE);
        m_ownerDisabled = true;
    }
    ::ShowWindow(Handle(), SW_SHOW);
    ::UpdateWindow(Handle());
}

bool CImportDlg::OnInitDialog() {
    ApplyControlTexts(Handle(), ImportDialogTexts(), m_strings);
    const std::wstring caption = m_strings.LoadShown(L"IDS_IMPORT_CAPTION");
    if (!caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    ::SendDlgItemMessageW(Handle(), IDC_IMPORT_PROGRESS, PBM_SETSTEP, 1, 0);
    return true;
}

void CImportDlg::SetRange(int count) {
    ::SendDlgItemMessageW(Handle(), IDC_IMPORT_PROGRESS, PBM_SETRANGE32, 0, count);
}

void CImportDlg::ShowAddress(const std::wstring& address) {
    ::SetDlgItemTextW(Handle(), IDC_IMPORT_ADDRESS, address.c_str());
}

void CImportDlg::Step() {
    ::SendDlgItemMessageW(Handle(), IDC_IMPORT_PROGRESS, PBM_STEPIT, 0, 0);
}

bool CImportDlg::Cancelled() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // The loop that waits for it is the mail client's: it gets it back, and we stop.
            ::PostQuitMessage(static_cast<int>(message.wParam));
            m_cancelled = true;
            break;
        }
        if (Handle() != nullptr && ::IsDialogMessageW(Handle(), &message)) {
            continue;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return m_cancelled;
}

bool CImportDlg::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id != IDCANCEL) {
        return false;
    }
    m_cancelled = true;
    ::EnableWindow(Item(IDCANCEL), FALSE);
    return true;
}

void CImportDlg::Close() {
    // The owner comes back first, so that it is the window activated when ours goes.
    if (m_ownerDisabled) {
        ::EnableWindow(m_owner, TRUE);
        m_ownerDisabled = false;
    }
    m_dialog.reset();
}

}  // namespace Orva::Ui
