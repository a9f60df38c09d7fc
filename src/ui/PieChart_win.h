#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "ui/StatisticsPie.h"

namespace Orva::Ui {

// The statistics pie with its legend beside it, drawn off-screen into the chart's rectangle.
// While the chart is disabled its grey slice is drawn and the error text stands in the legend.
class CPieChart {
public:
    // Empties the chart and fills it with `slices`; an empty `errorText` means enabled.
    void SetSlices(std::vector<CPieSlice> slices, std::wstring errorText);
    void Draw(HDC target, const RECT& area) const;

private:
    int LegendWidth(HDC dc) const;
    void DrawLegend(HDC dc, const RECT& area, int x, int y) const;

    std::vector<CPieSlice> m_slices;
    std::wstring m_errorText;
};

}  // namespace Orva::Ui
