#include "ui/PieChart_win.h"

#include <algorithm>
#include <utility>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/Headline.h"
#include "ui/MemDC_win.h"

namespace Orva::Ui {
namespace {

using ZelCommon::Platform::unique_hbrush;
using ZelCommon::Platform::unique_hfont;
using ZelCommon::Platform::unique_hpen;

constexpr int kLegendRowPixels = 20;
constexpr int kChartFontPoints = 9;
constexpr int kMarginPixels = 5;
constexpr int kBoxLeftPixels = 15;
constexpr int kLabelPixels = 10;

// Puts the context's previous object back when it goes, before the new one is deleted.
class CSelected {
public:
    CSelected(HDC dc, HGDIOBJ object) : m_dc(dc), m_previous(::SelectObject(dc, object)) {}
    ~CSelected() { ::SelectObject(m_dc, m_previous); }
    CSelected(const CSelected&) = delete;
    CSelected& operator=(const CSelected&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

unique_hfont ChartFont(HDC dc, const wchar_t* face) {
    LOGFONTW font{};
    font.lfHeight = FontHeight(kChartFontPoints, ::GetDeviceCaps(dc, LOGPIXELSY));
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::wstring(face).copy(font.lfFaceName, LF_FACESIZE - 1);
    return unique_hfont(::CreateFontIndirectW(&font));
}

// Filled with a solid brush of the colour, outlined with a zero-width pen of it.
void DrawFilled(HDC dc, COLORREF colour, auto draw) {
    const unique_hbrush brush(::CreateSolidBrush(colour));
    const unique_hpen pen(::CreatePen(PS_SOLID, 0, colour));
    if (!brush || !pen) {
        return;
    }
    const CSelected brushSelected(dc, brush.get());
    const CSelected penSelected(dc, pen.get());
    draw();
}

}  // namespace

void CPieChart::SetSlices(std::vector<CPieSlice> slices, std::wstring errorText) {
    m_slices = std::move(slices);
    m_errorText = std::move(errorText);
}

// The legend takes what its longest label needs (half the area at least, for the error text's
// lines); the pie takes the rest on the left, as tall as it fits.
void CPieChart::Draw(HDC target, const RECT& area) const {
    const CMemDC memory(target, area);
    const HDC dc = memory.Dc();
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const int legendWidth = std::max(LegendWidth(dc), width / 2);
    const int diameter =
        std::max(0, std::min(height - 2 * kMarginPixels, width - 4 * kMarginPixels - legendWidth));
    const int left = area.left + kMarginPixels;
    const int top = area.top + (height - diameter) / 2;
    const int centreX = left + diameter / 2;
    const int centreY = top + diameter / 2;
    for (const PieWedge& wedge : PieWedges(m_slices)) {
        DrawFilled(dc, wedge.colour, [&] {
            ::Pie(dc, left, top, left + diameter, top + diameter, centreX + wedge.from.x,
                  centreY + wedge.from.y, centreX + wedge.to.x, centreY + wedge.to.y);
        });
    }
    const int rows = static_cast<int>(m_slices.size());
    DrawLegend(dc, area, left + diameter + 3 * kMarginPixels + kBoxLeftPixels,
               centreY - rows * kLegendRowPixels / 2);
}

// A row is the colour box from x - 15 to x + 5 and the label from x + 10.
int CPieChart::LegendWidth(HDC dc) const {
    const unique_hfont font = ChartFont(dc, L"Arial");
    const CSelected fontSelected(
        dc, font ? static_cast<HGDIOBJ>(font.get()) : ::GetCurrentObject(dc, OBJ_FONT));
    int widest = 0;
    for (const CPieSlice& slice : m_slices) {
        SIZE size{};
        ::GetTextExtentPoint32W(dc, slice.label.c_str(), static_cast<int>(slice.label.size()),
                                &size);
        widest = std::max(widest, static_cast<int>(size.cx));
    }
    return kBoxLeftPixels + kLabelPixels + widest;
}

void CPieChart::DrawLegend(HDC dc, const RECT& area, int x, int y) const {
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, RGB(0, 0, 0));
    {
        const unique_hfont font = ChartFont(dc, L"Arial");
        const CSelected fontSelected(
            dc, font ? static_cast<HGDIOBJ>(font.get()) : ::GetCurrentObject(dc, OBJ_FONT));
        int row = y;
        for (const CPieSlice& slice : m_slices) {
            DrawFilled(dc, slice.colour,
                       [&] { ::Rectangle(dc, x - kBoxLeftPixels, row, x + 5, row + 15); });
            ::TextOutW(dc, x + kLabelPixels, row, slice.label.c_str(),
                       static_cast<int>(slice.label.size()));
            row += kLegendRowPixels;
        }
    }
    if (m_errorText.empty()) {
        return;
    }
    const unique_hfont font = ChartFont(dc, L"MS Sans Serif");
    const CSelected fontSelected(
        dc, font ? static_cast<HGDIOBJ>(font.get()) : ::GetCurrentObject(dc, OBJ_FONT));
    RECT text{x + kLabelPixels, y, area.right - kMarginPixels, area.bottom};
    ::DrawTextW(dc, m_errorText.c_str(), static_cast<int>(m_errorText.size()), &text,
                DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
}

}  // namespace Orva::Ui
