#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/PageServices.h"
#include "ui/PieChart_win.h"
#include "ui/StatisticsModel.h"

namespace Orva::Ui {

// The statistics dialog: the four counters, the two rates, the start of counting and the pie;
// the reset button asks before the agent clears the counters.
class CStatisticsDialog final : public CDialogWindow {
public:
    CStatisticsDialog(CStatisticsModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The start date in the user's short date format; false when it cannot be shown.
    bool ShowBaseLayout();
    void ShowBaseLayoutOrLog();
    void ShowFigures();

    CStatisticsModel& m_model;
    PageServices& m_services;
    CPieChart m_chart;
    ZelCommon::Platform::unique_hfont m_headlineFont;
    std::wstring m_detectionRateFormat;
    std::wstring m_falsePositiveRateFormat;
};

// The statistics command: the dialog, modal over `owner`, over the user's statistics.
void RunStatisticsDialog(PageServices& services, IMessageBoxes& boxes, HWND owner);

}  // namespace Orva::Ui
