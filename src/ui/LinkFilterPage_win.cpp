#include "ui/LinkFilterPage_win.h"

#include "ui/BitmapSlider_win.h"
#include "ui/ControlTexts.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {

bool CWorryFreeLevel::OnInitDialog() {
    UseWhiteBackground();
    ApplyControlTexts(Handle(), WorryFreeLevelTexts(), m_services.strings);
    m_slider.Attach(
        Handle(),
        {IDC_WEXOR_SLIDER, IDC_WEXOR_LABEL_HIGH, IDC_WEXOR_LABEL_MEDIUM, IDC_WEXOR_LABEL_LOW},
        m_services);
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_WEXOR_TITLE}, m_services.strings,
                                     L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    m_slider.SetPosition(m_model.SliderPosition());
    SetChecked(IDC_CHECK_ENABLE_WEXOR, m_model.FilterEnabled());
    return true;
}

bool CWorryFreeLevel::OnCommand(int id, int code, HWND /*control*/) {
    if (id == IDC_WEXOR_SLIDER && code == kSliderPositionChanged) {
        m_model.MoveSlider(m_slider.Position());
        return true;
    }
    if (id == IDC_CHECK_ENABLE_WEXOR && code == BN_CLICKED) {
        m_model.SetFilterEnabled(IsChecked(id));
        return true;
    }
    return false;
}

CLinkFilter::CLinkFilter(CLinkFilterPageModel& model, PageServices& services)
    : CPropertyPage(IDD_LINK_FILTER_PAGE), m_model(model), m_panel(model, services) {}

bool CLinkFilter::OnInitDialog() {
    UseWhiteBackground();
    m_model.Load();
    m_panel.CreateChild(Handle());
    // The panel sits 5 pixels in from the left, 10 narrower and 10 shorter than the page.
    RECT client{};
    ::GetClientRect(Handle(), &client);
    ::SetWindowPos(m_panel.Handle(), nullptr, client.left + 5, client.top,
                   client.right - client.left - 10, client.bottom - client.top - 10,
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return true;
}

bool CLinkFilter::OnApply() {
    m_model.Apply();
    return true;
}

}  // namespace Orva::Ui
