#pragma once

#include <windows.h>

#include <functional>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/LevelSlider_win.h"
#include "ui/PageServices.h"
#include "ui/SpamDetectionPageModel.h"

namespace Orva::Ui {

// The default-level panel of the spam-detection page: the slider, the cloud box, and the way
// to the custom level.
class CDefaultLevel final : public CDialogWindow {
public:
    CDefaultLevel(CSpamDetectionPageModel& model, PageServices& services,
                  std::function<void()> customize);
    // Moves the slider and the box to what the model holds.
    void ShowModel();

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    CSpamDetectionPageModel& m_model;
    PageServices& m_services;
    std::function<void()> m_customize;
    CLevelSlider m_slider;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

// The custom-level panel: the category dialog, the way back to the default level, the cloud box.
class CCustomLevel final : public CDialogWindow {
public:
    CCustomLevel(CSpamDetectionPageModel& model, PageServices& services,
                 std::function<void()> customize, std::function<void()> backToDefault);
    void ShowModel();

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    CSpamDetectionPageModel& m_model;
    PageServices& m_services;
    std::function<void()> m_customize;
    std::function<void()> m_backToDefault;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

}  // namespace Orva::Ui
