#include "ui/LevelPanels_win.h"

#include <utility>

#include "ui/BitmapSlider_win.h"
#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"
#include "ui/Headline.h"

namespace Orva::Ui {
namespace {

// Puts the installation's company name into a headline that asks for it.
void ExpandHeadline(HWND panel, int id, PageServices& services) {
    const std::wstring text = WindowText(::GetDlgItem(panel, id));
    ::SetDlgItemTextW(panel, id, ExpandCorpName(text, services.settings, services.strings).c_str());
}

}  // namespace

CDefaultLevel::CDefaultLevel(CSpamDetectionPageModel& model, PageServices& services,
                             std::function<void()> customize)
    : CDialogWindow(IDD_DEFAULT_LEVEL),
      m_model(model),
      m_services(services),
      m_customize(std::move(customize)) {}

bool CDefaultLevel::OnInitDialog() {
    UseWhiteBackground();
    ApplyControlTexts(Handle(), DefaultLevelTexts(), m_services.strings);
    ExpandHeadline(Handle(), IDC_DEFAULT_TITLE, m_services);
    ExpandHeadline(Handle(), IDC_DEFAULT_NOTE, m_services);
    m_slider.Attach(Handle(), {IDC_LEVEL_SLIDER, IDC_LABEL_HIGH, IDC_LABEL_MEDIUM, IDC_LABEL_LOW},
                    m_services);
    m_headlineFont =
        SetHeadlineFont(Handle(), {IDC_DEFAULT_TITLE, IDC_DEFAULT_NOTE}, m_services.strings,
                        L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    ShowModel();
    return true;
}

void CDefaultLevel::ShowModel() {
    m_slider.SetPosition(m_model.SliderPosition());
    SetChecked(IDC_CHECK_ENABLE_IN_THE_CLOUD, m_model.DefaultCloud());
}

bool CDefaultLevel::OnCommand(int id, int code, HWND /*control*/) {
    if (id == IDC_LEVEL_SLIDER && code == kSliderPositionChanged) {
        m_model.MoveSlider(m_slider.Position());
        return true;
    }
    if (id == IDC_CHECK_ENABLE_IN_THE_CLOUD && code == BN_CLICKED) {
        m_model.SetDefaultCloud(IsChecked(id));
        return true;
    }
    if (id == IDC_BUTTON_CUSTOM_LEVEL && code == BN_CLICKED) {
        m_customize();
        return true;
    }
    return false;
}

CCustomLevel::CCustomLevel(CSpamDetectionPageModel& model, PageServices& services,
                           std::function<void()> customize, std::function<void()> backToDefault)
    : CDialogWindow(IDD_CUSTOM_LEVEL),
      m_model(model),
      m_services(services),
      m_customize(std::move(customize)),
      m_backToDefault(std::move(backToDefault)) {}

bool CCustomLevel::OnInitDialog() {
    UseWhiteBackground();
    ApplyControlTexts(Handle(), CustomLevelTexts(), m_services.strings);
    ExpandHeadline(Handle(), IDC_CUSTOM_TITLE, m_services);
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_CUSTOM_TITLE}, m_services.strings,
                                     L"IDS_WTC_YES_FONT", L"IDS_CUSTOM_LEVEL_FONT_SIZE");
    ShowModel();
    return true;
}

void CCustomLevel::ShowModel() {
    SetChecked(IDC_CHECK_ENABLE_IN_THE_CLOUD, m_model.CustomCloud());
}

bool CCustomLevel::OnCommand(int id, int code, HWND /*control*/) {
    if (code != BN_CLICKED) {
        return false;
    }
    switch (id) {
        case IDC_CHECK_ENABLE_IN_THE_CLOUD:
            m_model.SetCustomCloud(IsChecked(id));
            return true;
        case IDC_BUTTON_CUSTOMIZE:
            m_customize();
            return true;
        case IDC_BUTTON_DEFAULT_LEVEL:
            m_backToDefault();
            return true;
        default:
            return false;
    }
}

}  // namespace Orva::Ui
