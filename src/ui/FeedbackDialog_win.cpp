#include "ui/FeedbackDialog_win.h"

#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/FeedbackIds.h"

namespace Orva::Ui {

CFeedbackDlg::CFeedbackDlg(PageServices& services, ZelCommon::Platform::IShellOpen& shell)
    : CDialogWindow(IDD_FEEDBACK),
      m_services(services),
      m_choice(ReadFeedbackChoice(services.settings)),
      m_link(shell) {}

bool CFeedbackDlg::OnInitDialog() {
    UseWhiteBackground();
    if (const std::wstring caption = m_services.strings.LoadShown(L"IDS_WTC_CAPTION");
        !caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    ApplyControlTexts(Handle(), FeedbackTexts(), m_services.strings);
    ::CheckRadioButton(Handle(), IDC_FEEDBACK_YES, IDC_FEEDBACK_NO,
                       m_choice.takesPart ? IDC_FEEDBACK_YES : IDC_FEEDBACK_NO);
    m_font = SetHeadlineFont(Handle(), {IDC_FEEDBACK_TITLE}, m_services.strings,
                             L"IDS_WTC_YES_FONT", L"IDS_CUSTOM_LEVEL_FONT_SIZE");
    m_link.SubclassWindow(Item(IDC_FEEDBACK_LINK));
    m_link.SetAddress(m_choice.informationAddress);
    return true;
}

bool CFeedbackDlg::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id == IDOK) {
        if (!SaveFeedbackChoice(m_services.settings, IsChecked(IDC_FEEDBACK_YES))) {
            m_services.log.LogText(L"xxx CFeedbackDlg::OnOK() EnableWTC cannot be written");
        }
    }
    if (id == IDOK || id == IDCANCEL) {
        ::EndDialog(Handle(), id);
        return true;
    }
    return false;
}

}  // namespace Orva::Ui
