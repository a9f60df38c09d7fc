#include "ui/ConfirmationDialog_win.h"

#include <utility>

#include "ui/ConfirmationIds.h"
#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {

CConfirmationDlg::CConfirmationDlg(std::wstring caption, std::wstring text,
                                   Settings::ILocalisedStrings& strings)
    : CDialogWindow(IDD_CONFIRMATION),
      m_caption(std::move(caption)),
      m_text(std::move(text)),
      m_strings(strings) {}

bool CConfirmationDlg::OnInitDialog() {
    ::SetWindowTextW(Handle(), m_caption.c_str());
    ::SetDlgItemTextW(Handle(), IDC_CONFIRMATION_TEXT, m_text.c_str());
    ApplyControlTexts(Handle(), ConfirmationTexts(), m_strings);
    ::SendDlgItemMessageW(Handle(), IDC_CONFIRMATION_ICON, STM_SETICON,
                          reinterpret_cast<WPARAM>(::LoadIconW(nullptr, IDI_WARNING)), 0);
    return true;
}

bool CConfirmationDlg::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id != IDOK && id != IDCANCEL) {
        return false;
    }
    m_dontShowAgain = IsChecked(IDC_CHECK_DONT_SHOW_AGAIN);
    ::EndDialog(Handle(), id);
    return true;
}

}  // namespace Orva::Ui
