#include <windows.h>
// commctrl.h needs the declarations of windows.h first.
#include <commctrl.h>

#include <gtest/gtest.h>

#include "common_src/platform/UniqueAny_win.h"
#include "support/TestWindow_win.h"
#include "ui/DrawTabCtrl_win.h"
#include "ui/PixelCanvas_win.h"

namespace {

using Orva::Testing::PixelCanvas;
using Orva::Ui::CDrawTabCtrl;
using ZelCommon::Platform::unique_hwnd;

CDrawTabCtrl* g_drawTab = nullptr;
int g_tabsDrawn = 0;

// The sheet's part: it hands the tab control's WM_DRAWITEM to the CDrawTabCtrl.
LRESULT CALLBACK SheetProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && g_drawTab != nullptr &&
        g_drawTab->DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam))) {
        ++g_tabsDrawn;
        return TRUE;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

TEST(DrawTabCtrlWin, Subclassed_OwnerDrawnSelectedTabWhiteWithItsText) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_TAB_CLASSES};
    ASSERT_TRUE(::InitCommonControlsEx(&classes));
    const Orva::Testing::TestWindow sheet(L"OrvaTabTestSheet", L"", &SheetProcedure);
    const unique_hwnd tab(::CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE, 0, 0,
                                            300, 100, sheet.get(), nullptr,
                                            ::GetModuleHandleW(nullptr), nullptr));
    wchar_t captions[2][16] = {L"Spam detection", L"Advanced"};
    for (int index = 0; index < 2; ++index) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = captions[index];
        TabCtrl_InsertItem(tab.get(), index, &item);
    }
    CDrawTabCtrl drawTab;
    ASSERT_TRUE(drawTab.SubclassWindow(tab.get()));
    g_drawTab = &drawTab;
    TabCtrl_SetItemSize(tab.get(), 100, 22);
    drawTab.Layout();
    EXPECT_NE(::GetWindowLongPtrW(tab.get(), GWL_STYLE) & TCS_OWNERDRAWFIXED, 0);

    const PixelCanvas canvas(300, 100, RGB(1, 2, 3));
    ::SendMessageW(tab.get(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    g_drawTab = nullptr;
    EXPECT_EQ(g_tabsDrawn, 2);
    RECT selected{};
    RECT other{};
    TabCtrl_GetItemRect(tab.get(), 0, &selected);
    TabCtrl_GetItemRect(tab.get(), 1, &other);
    EXPECT_EQ(canvas.Pixel(selected.left + 3, selected.top + 3), RGB(255, 255, 255));
    EXPECT_EQ(canvas.Pixel(other.left + 3, other.top + 3), ::GetSysColor(COLOR_BTNFACE));
    const RECT middle{selected.left + 20, selected.top + 4, selected.right - 20,
                      selected.bottom - 4};
    EXPECT_LT(canvas.Count(middle, RGB(255, 255, 255)),
              (middle.right - middle.left) * (middle.bottom - middle.top));
}

}  // namespace
