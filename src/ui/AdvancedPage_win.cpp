#include "ui/AdvancedPage_win.h"

#include <string>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"

namespace Orva::Ui {

CAdvancedPage::CAdvancedPage(CAdvancedPageModel& model, PageServices& services)
    : CPropertyPage(IDD_ADVANCED_PAGE), m_model(model), m_services(services) {}

bool CAdvancedPage::OnInitDialog() {
    m_filling = true;
    UseWhiteBackground();
    ApplyControlTexts(Handle(), AdvancedPageTexts(), m_services.strings);
    m_model.Load();
    m_purgeDays.SubclassWindow(Item(IDC_EDIT_PURGE_DAYS));
    m_purgeDays.SetRange(kPurgeDaysMaximum);
    ::SetDlgItemTextW(Handle(), IDC_EDIT_PURGE_DAYS, m_model.PurgeDaysText().c_str());
    SetChecked(IDC_CHECK_AUTO_MOVED, m_model.AutoMoved());
    SetChecked(IDC_CHECK_DELETE_DELETED, m_model.DeleteDeleted());
    SetChecked(IDC_CHECK_NOTIFY_ICON, m_model.NotifyIcon());
    ::EnableWindow(Item(IDC_EDIT_PURGE_DAYS), m_model.PurgeDaysEnabled());
    m_headlineFont =
        SetHeadlineFont(Handle(), {IDC_SPAM_FOLDER_TITLE, IDC_DELETED_TITLE, IDC_NOTIFY_TITLE},
                        m_services.strings, L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    m_tips = std::make_unique<CToolTips>(Handle());
    m_tips->Add(Item(IDC_BUTTON_DELETE_NOW),
                m_services.strings.LoadShown(L"IDS_TOOLTIP_DELETENOW"));
    m_filling = false;
    return true;
}

bool CAdvancedPage::OnCommand(int id, int code, HWND /*control*/) {
    if (m_filling) {
        return false;
    }
    if (id == IDC_EDIT_PURGE_DAYS && code == EN_CHANGE) {
        wchar_t text[16] = {};
        ::GetDlgItemTextW(Handle(), id, text, static_cast<int>(std::size(text)));
        m_model.SetPurgeDaysText(text);
        return true;
    }
    if (code != BN_CLICKED) {
        return false;
    }
    switch (id) {
        case IDC_CHECK_AUTO_MOVED:
            m_model.SetAutoMoved(IsChecked(id));
            ::EnableWindow(Item(IDC_EDIT_PURGE_DAYS), m_model.PurgeDaysEnabled());
            return true;
        case IDC_CHECK_DELETE_DELETED:
            m_model.SetDeleteDeleted(IsChecked(id));
            return true;
        case IDC_CHECK_NOTIFY_ICON:
            m_model.SetNotifyIcon(IsChecked(id));
            return true;
        case IDC_BUTTON_DELETE_NOW:
            m_model.DeleteNow();
            return true;
        default:
            return false;
    }
}

bool CAdvancedPage::OnApply() {
    m_model.Apply();
    return true;
}

}  // namespace Orva::Ui
