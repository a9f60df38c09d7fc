#include "ui/DrawHeaderCtrl_win.h"

#include <commctrl.h>

#include <array>
#include <optional>

#include "ui/MemDC_win.h"

namespace Orva::Ui {
namespace {

constexpr COLORREF kLineColour = 0xC4C4C4;
constexpr int kTextMargin = 6;
constexpr int kArrowWidth = 8;
// Column titles are a word or two.
constexpr std::size_t kLongestTitle = 128;

// A small triangle, pointing up for an ascending column, centred on `centreX`.
void DrawSortArrow(HDC dc, int centreX, int middleY, bool ascending) {
    const int half = kArrowWidth / 2;
    const int tip = ascending ? middleY - 2 : middleY + 2;
    const int base = ascending ? middleY + 2 : middleY - 2;
    const std::array<POINT, 3> points{POINT{centreX - half, base}, POINT{centreX + half, base},
                                      POINT{centreX, tip}};
    ::SelectObject(dc, ::GetSysColorBrush(COLOR_BTNSHADOW));
    ::SelectObject(dc, ::GetStockObject(NULL_PEN));
    ::Polygon(dc, points.data(), static_cast<int>(points.size()));
}

}  // namespace

CDrawHeaderCtrl::~CDrawHeaderCtrl() {
    UnsubclassWindow();
}

bool CDrawHeaderCtrl::SubclassWindow(HWND header) {
    if (!Attach(header)) {
        return false;
    }
    m_background.reset(::CreateSolidBrush(kHeaderColour));
    m_line.reset(::CreatePen(PS_SOLID, 1, kLineColour));
    ::InvalidateRect(header, nullptr, TRUE);
    return true;
}

void CDrawHeaderCtrl::UnsubclassWindow() {
    const HWND header = Handle();
    Detach();
    if (header != nullptr) {
        ::InvalidateRect(header, nullptr, TRUE);
    }
}

LRESULT CDrawHeaderCtrl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const std::optional<LRESULT> painted = PaintMessage(message, wParam)) {
        return *painted;
    }
    return CallOriginal(message, wParam, lParam);
}

void CDrawHeaderCtrl::Paint(HDC target) {
    const HWND header = Handle();
    RECT client{};
    ::GetClientRect(header, &client);
    CMemDC memory(target, client);
    const HDC dc = memory.Dc();
    const int saved = ::SaveDC(dc);
    ::FillRect(dc, &client, m_background ? m_background.get() : ::GetSysColorBrush(COLOR_BTNFACE));
    if (const auto font = reinterpret_cast<HFONT>(::SendMessageW(header, WM_GETFONT, 0, 0))) {
        ::SelectObject(dc, font);
    }
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    if (m_line) {
        ::SelectObject(dc, m_line.get());
    }
    ::MoveToEx(dc, client.left, client.bottom - 1, nullptr);
    ::LineTo(dc, client.right, client.bottom - 1);
    const int count = Header_GetItemCount(header);
    for (int order = 0; order < count; ++order) {
        PaintItem(dc, Header_OrderToIndex(header, order));
    }
    ::RestoreDC(dc, saved);
}

void CDrawHeaderCtrl::PaintItem(HDC dc, int index) const {
    const HWND header = Handle();
    RECT item{};
    if (Header_GetItemRect(header, index, &item) == FALSE || item.right <= item.left) {
        return;
    }
    std::array<wchar_t, kLongestTitle> title{};
    HDITEMW column{};
    column.mask = HDI_TEXT | HDI_FORMAT;
    column.pszText = title.data();
    column.cchTextMax = static_cast<int>(title.size());
    if (Header_GetItem(header, index, &column) == FALSE || column.pszText == nullptr) {
        column.pszText = title.data();
        column.fmt = 0;
    }
    ::MoveToEx(dc, item.right - 1, item.top + 3, nullptr);
    ::LineTo(dc, item.right - 1, item.bottom - 3);
    RECT text{item.left + kTextMargin, item.top, item.right - kTextMargin, item.bottom - 1};
    const bool sorted = (column.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0;
    if (sorted) {
        text.right -= kArrowWidth + kTextMargin;
    }
    ::DrawTextW(dc, column.pszText, -1, &text,
                DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
    if (sorted && text.right > text.left) {
        const int saved = ::SaveDC(dc);
        DrawSortArrow(dc, text.right + kTextMargin + kArrowWidth / 2, (item.top + item.bottom) / 2,
                      (column.fmt & HDF_SORTUP) != 0);
        ::RestoreDC(dc, saved);
    }
}

}  // namespace Orva::Ui
