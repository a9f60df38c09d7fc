#include "ui/EditSenderDialog_win.h"

#include <utility>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {

CEditSenderDlg::CEditSenderDlg(std::wstring caption, SenderFields initial, IMessageBoxes& boxes,
                               Settings::ILocalisedStrings& strings)
    : CDialogWindow(IDD_EDIT_SENDER),
      m_caption(std::move(caption)),
      m_initial(std::move(initial)),
      m_boxes(boxes),
      m_strings(strings) {}

bool CEditSenderDlg::OnInitDialog() {
    if (!m_caption.empty()) {
        ::SetWindowTextW(Handle(), m_caption.c_str());
    }
    ApplyControlTexts(Handle(), EditSenderTexts(), m_strings);
    ::SetDlgItemTextW(Handle(), IDC_EDIT_SENDER_NAME, m_initial.name.c_str());
    ::SetDlgItemTextW(Handle(), IDC_EDIT_SENDER_ADDRESS, m_initial.address.c_str());
    // A new sender starts with the address, a known one with its name.
    const int first = m_initial.address.empty() ? IDC_EDIT_SENDER_ADDRESS : IDC_EDIT_SENDER_NAME;
    ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(first)), TRUE);
    return false;
}

bool CEditSenderDlg::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id == IDCANCEL) {
        ::EndDialog(Handle(), IDCANCEL);
        return true;
    }
    if (id != IDOK) {
        return false;
    }
    EditSenderAnswer answer =
        ConfirmEditedSender(ItemText(IDC_EDIT_SENDER_NAME), ItemText(IDC_EDIT_SENDER_ADDRESS),
                            m_boxes, m_strings, reinterpret_cast<uintptr_t>(Handle()));
    if (!answer.accepted) {
        const int field = answer.refusedField == SenderField::Name ? IDC_EDIT_SENDER_NAME
                                                                   : IDC_EDIT_SENDER_ADDRESS;
        ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(field)), TRUE);
        return true;
    }
    m_accepted = std::move(answer.accepted);
    ::EndDialog(Handle(), IDOK);
    return true;
}

std::optional<SenderFields> CEditSenderDialogs::Run(ZelCommon::Platform::WindowHandle owner,
                                                    const std::wstring& caption,
                                                    const SenderFields& initial) {
    CEditSenderDlg dialog(caption, initial, m_boxes, m_strings);
    if (dialog.RunModal(reinterpret_cast<HWND>(owner)) != IDOK) {
        return std::nullopt;
    }
    return dialog.Accepted();
}

}  // namespace Orva::Ui
