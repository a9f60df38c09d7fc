#include "ui/ProxyDialog_win.h"

#include <utility>

#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"
#include "ui/UpdatesIds.h"

namespace Orva::Ui {

CProxySettingDlg::CProxySettingDlg(PageServices& services, IMessageBoxes& boxes,
                                   IPasswordProtector& protector)
    : CDialogWindow(IDD_PROXY), m_services(services), m_model(services, boxes, protector) {}

bool CProxySettingDlg::OnInitDialog() {
    UseWhiteBackground();
    if (const std::wstring caption = m_services.strings.LoadShown(L"IDS_PROXY_CAPTION");
        !caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    ApplyControlTexts(Handle(), ProxyTexts(), m_services.strings);
    ::SetDlgItemTextW(Handle(), IDC_PROXY_TITLE,
                      m_model.Headline(ItemText(IDC_PROXY_TITLE)).c_str());
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_PROXY_TITLE}, m_services.strings,
                                     L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");

    const ProxyFields fields = m_model.Load();
    SetChecked(IDC_PROXY_ENABLE, fields.enabled);
    ::SetDlgItemTextW(Handle(), IDC_PROXY_HOST, fields.host.c_str());
    ::SetDlgItemTextW(Handle(), IDC_PROXY_PORT, fields.port.c_str());
    ::SetDlgItemTextW(Handle(), IDC_PROXY_USER, fields.user.c_str());
    ::SetDlgItemTextW(Handle(), IDC_PROXY_PASSWORD, fields.password.c_str());
    m_port.SubclassWindow(Item(IDC_PROXY_PORT));
    m_port.SetRange(kLargestPort);
    m_shortcuts.Watch(Handle());
    return true;
}

bool CProxySettingDlg::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id == IDCANCEL) {
        ::EndDialog(Handle(), IDCANCEL);
        return true;
    }
    if (id != IDOK) {
        return false;
    }
    const ProxyFields shown{IsChecked(IDC_PROXY_ENABLE), ItemText(IDC_PROXY_HOST),
                            ItemText(IDC_PROXY_PORT), ItemText(IDC_PROXY_USER),
                            ItemText(IDC_PROXY_PASSWORD)};
    switch (m_model.Save(shown)) {
        case ProxyField::Host:
            ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_PROXY_HOST)),
                           TRUE);
            break;
        case ProxyField::Port:
            ::SendMessageW(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_PROXY_PORT)),
                           TRUE);
            break;
        default:
            ::EndDialog(Handle(), IDOK);
            break;
    }
    return true;
}

}  // namespace Orva::Ui
