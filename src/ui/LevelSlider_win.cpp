#include "ui/LevelSlider_win.h"

#include <string>

#include "ui/Headline.h"
#include "ui/ResourceModule_win.h"

namespace Orva::Ui {

void CLevelSlider::Attach(HWND panel, ControlIds ids, PageServices& services) {
    m_sliderId = ids.slider;
    m_slider.SubclassWindow(::GetDlgItem(panel, ids.slider));
    const std::wstring replacement = SliderBitmapPath(services.settings, ResourceModuleFolder());
    if (!replacement.empty()) {
        auto bitmap = CBitmapSlider::LoadBitmapFile(replacement);
        if (!bitmap) {
            services.log.LogText(L"!!! Slider bitmap %s cannot be loaded, the built-in one is used",
                                 replacement);
        }
        m_slider.SetBitmap(std::move(bitmap));
    }
    m_tips = std::make_unique<CToolTips>(panel);
    m_tips->Add(::GetDlgItem(panel, ids.high),
                services.strings.LoadShown(L"IDS_TOOLTIP_LEVELHIGH"));
    m_tips->Add(::GetDlgItem(panel, ids.medium),
                services.strings.LoadShown(L"IDS_TOOLTIP_LEVELMEDIUM"));
    m_tips->Add(::GetDlgItem(panel, ids.low), services.strings.LoadShown(L"IDS_TOOLTIP_LEVELLOW"));
}

}  // namespace Orva::Ui
