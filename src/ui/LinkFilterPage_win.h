#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogIds.h"
#include "ui/DialogWindow_win.h"
#include "ui/LevelSlider_win.h"
#include "ui/LinkFilterPageModel.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"

namespace Orva::Ui {

// The link filter's level panel (`CWorryFreeLevel`): the switch and the slider.
class CWorryFreeLevel final : public CDialogWindow {
public:
    CWorryFreeLevel(CLinkFilterPageModel& model, PageServices& services)
        : CDialogWindow(IDD_WORRY_FREE_LEVEL), m_model(model), m_services(services) {}

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    CLinkFilterPageModel& m_model;
    PageServices& m_services;
    CLevelSlider m_slider;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

// The second page of the sheet: the link filter's panel, written and told to the agent on
// every OK.
class CLinkFilter final : public CPropertyPage {
public:
    CLinkFilter(CLinkFilterPageModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    bool OnApply() override;

    CLinkFilterPageModel& m_model;
    CWorryFreeLevel m_panel;
};

}  // namespace Orva::Ui
