#pragma once

#include <windows.h>

#include <memory>

#include "ui/BitmapSlider_win.h"
#include "ui/DialogTexts_win.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// The three-position level slider of a panel with its High, Medium and Low labels: the
// installation's replacement bitmap when it names one that loads, the built-in one otherwise,
// and a tooltip on each label.
class CLevelSlider {
public:
    struct ControlIds {
        int slider;
        int high;
        int medium;
        int low;
    };

    void Attach(HWND panel, ControlIds ids, PageServices& services);
    int Position() const { return m_slider.GetPos(); }
    void SetPosition(int position) { m_slider.SetPos(position); }
    int SliderId() const { return m_sliderId; }

private:
    CBitmapSlider m_slider;
    std::unique_ptr<CToolTips> m_tips;
    int m_sliderId = 0;
};

}  // namespace Orva::Ui
