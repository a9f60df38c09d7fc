#include "ui/SpamDetectionPage_win.h"

#include "ui/CategoryLevel_win.h"
#include "ui/DialogIds.h"

namespace Orva::Ui {
namespace {

// The panels sit inside the page, 5 pixels in from its left and shorter and narrower by 5.
void PlacePanel(HWND page, HWND panel) {
    RECT client{};
    ::GetClientRect(page, &client);
    ::SetWindowPos(panel, nullptr, client.left + 5, client.top, client.right - client.left - 5,
                   client.bottom - client.top - 5, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

CSpamDetectionPage::CSpamDetectionPage(CSpamDetectionPageModel& model, PageServices& services)
    : CPropertyPage(IDD_SPAM_DETECTION_PAGE),
      m_model(model),
      m_services(services),
      m_default(model, services, [this] { Customize(); }),
      m_custom(
          model, services, [this] { Customize(); }, [this] { BackToDefault(); }) {}

bool CSpamDetectionPage::OnInitDialog() {
    UseWhiteBackground();
    m_model.Load();
    m_default.CreateChild(Handle());
    m_custom.CreateChild(Handle());
    PlacePanel(Handle(), m_default.Handle());
    PlacePanel(Handle(), m_custom.Handle());
    ShowPanelOfMode();
    return true;
}

bool CSpamDetectionPage::OnApply() {
    m_model.Apply();
    return true;
}

void CSpamDetectionPage::Customize() {
    CCategoryLevel dialog(m_model.Categories(), m_services);
    if (dialog.RunModal(Handle()) == IDOK) {
        m_model.AcceptCategories(dialog.Positions());
        m_custom.ShowModel();
        ShowPanelOfMode();
    }
    ::SetFocus(Handle());
}

void CSpamDetectionPage::BackToDefault() {
    m_model.BackToDefault();
    m_default.ShowModel();
    ShowPanelOfMode();
}

void CSpamDetectionPage::ShowPanelOfMode() {
    const bool defaultMode = m_model.IsDefaultMode();
    ::ShowWindow(m_default.Handle(), defaultMode ? SW_SHOW : SW_HIDE);
    ::ShowWindow(m_custom.Handle(), defaultMode ? SW_HIDE : SW_SHOW);
}

}  // namespace Orva::Ui
