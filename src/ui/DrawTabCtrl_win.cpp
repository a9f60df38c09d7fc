#include "ui/DrawTabCtrl_win.h"

#include <commctrl.h>

#include <array>
#include <utility>

namespace Orva::Ui {
namespace {

// Tab captions are page titles, a few words long.
constexpr std::size_t kLongestCaption = 128;

HFONT FontOf(HWND window) {
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    return font != nullptr ? font : static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
}

}  // namespace

CDrawTabCtrl::~CDrawTabCtrl() {
    UnsubclassWindow();
}

bool CDrawTabCtrl::SubclassWindow(HWND tab) {
    if (!Attach(tab)) {
        return false;
    }
    const LONG_PTR style = ::GetWindowLongPtrW(tab, GWL_STYLE);
    m_addedOwnerDraw = (style & TCS_OWNERDRAWFIXED) == 0;
    ::SetWindowLongPtrW(tab, GWL_STYLE, style | TCS_OWNERDRAWFIXED);
    Layout();
    return true;
}

void CDrawTabCtrl::UnsubclassWindow() {
    const HWND tab = Handle();
    // Nobody would draw the items any more: the tab control draws them itself again.
    if (tab != nullptr && std::exchange(m_addedOwnerDraw, false)) {
        ::SetWindowLongPtrW(tab, GWL_STYLE,
                            ::GetWindowLongPtrW(tab, GWL_STYLE) & ~LONG_PTR{TCS_OWNERDRAWFIXED});
        ::InvalidateRect(tab, nullptr, TRUE);
    }
    Detach();
}

void CDrawTabCtrl::Layout() {
    const HWND tab = Handle();
    if (tab == nullptr) {
        return;
    }
    ::GetClientRect(tab, &m_client);
    ::InvalidateRect(tab, nullptr, TRUE);
}

LRESULT CDrawTabCtrl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallOriginal(message, wParam, lParam);
    if (message == WM_SIZE) {
        ::GetClientRect(Handle(), &m_client);
    }
    return result;
}

bool CDrawTabCtrl::DrawItem(const DRAWITEMSTRUCT& item) {
    const HWND tab = Handle();
    if (tab == nullptr || item.hwndItem != tab || item.CtlType != ODT_TAB || item.hDC == nullptr) {
        return false;
    }
    std::array<wchar_t, kLongestCaption> caption{};
    TCITEMW tabItem{};
    tabItem.mask = TCIF_TEXT;
    tabItem.pszText = caption.data();
    tabItem.cchTextMax = static_cast<int>(caption.size());
    if (::SendMessageW(tab, TCM_GETITEMW, item.itemID, reinterpret_cast<LPARAM>(&tabItem)) ==
            FALSE ||
        tabItem.pszText == nullptr) {
        tabItem.pszText = caption.data();
        caption[0] = L'\0';
    }
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const HDC dc = item.hDC;
    const int saved = ::SaveDC(dc);
    RECT area = item.rcItem;
    ::FillRect(dc, &area,
               selected ? static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH))
                        : ::GetSysColorBrush(COLOR_BTNFACE));
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(
        dc, ::GetSysColor((item.itemState & ODS_DISABLED) != 0 ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    ::SelectObject(dc, FontOf(tab));
    constexpr UINT kFormat = DT_SINGLELINE | DT_CENTER | DT_VCENTER;
    ::DrawTextW(dc, tabItem.pszText, -1, &area, kFormat);
    if (selected) {
        // A second pass one pixel to the right makes the text bold-looking without making it
        // wider than the tab the control measured with the regular font.
        RECT shifted = area;
        ::OffsetRect(&shifted, 1, 0);
        ::DrawTextW(dc, tabItem.pszText, -1, &shifted, kFormat);
    }
    // The tab control marks its focus item even while the focus is elsewhere.
    if ((item.itemState & ODS_FOCUS) != 0 && ::GetFocus() == tab) {
        ::InflateRect(&area, -1, -1);
        ::DrawFocusRect(dc, &area);
    }
    ::RestoreDC(dc, saved);
    return true;
}

}  // namespace Orva::Ui
