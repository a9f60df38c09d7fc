#include <windows.h>
// commctrl.h needs the declarations of windows.h first.
#include <commctrl.h>

#include <gtest/gtest.h>

#include "common_src/platform/UniqueAny_win.h"
#include "support/TestWindow_win.h"
#include "ui/DrawListCtrl_win.h"
#include "ui/PixelCanvas_win.h"

namespace {

using ZelCommon::Platform::unique_hwnd;

LRESULT CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcW(window, message, wParam, lParam);
}

TEST(DrawListCtrlWin, Subclassed_FullRowsFlatBarsAndHeaderLightGrey_ProceduresBackWhenDestroyed) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_LISTVIEW_CLASSES};
    ASSERT_TRUE(::InitCommonControlsEx(&classes));
    const Orva::Testing::TestWindow page(L"OrvaListTestPage", L"", &PageProcedure);
    unique_hwnd list(::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0,
                                       0, 300, 120, page.get(), nullptr,
                                       ::GetModuleHandleW(nullptr), nullptr));
    wchar_t titles[2][16] = {L"Name", L"Address"};
    for (int index = 0; index < 2; ++index) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = 100;
        column.pszText = titles[index];
        ListView_InsertColumn(list.get(), index, &column);
    }
    Orva::Ui::CDrawListCtrl drawList;
    ASSERT_TRUE(drawList.SubclassWindow(list.get()));
    const DWORD styles = ListView_GetExtendedListViewStyle(list.get());
    EXPECT_EQ(styles & (LVS_EX_FULLROWSELECT | LVS_EX_FLATSB),
              static_cast<DWORD>(LVS_EX_FULLROWSELECT | LVS_EX_FLATSB));

    const HWND header = ListView_GetHeader(list.get());
    ASSERT_EQ(drawList.Header().Handle(), header);
    const Orva::Testing::PixelCanvas canvas(300, 30, RGB(1, 2, 3));
    ::SendMessageW(header, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    // Inside the first column right of its title, and right of the last column.
    EXPECT_EQ(canvas.Pixel(90, 4), Orva::Ui::kHeaderColour);
    EXPECT_EQ(canvas.Pixel(280, 4), Orva::Ui::kHeaderColour);
    EXPECT_LT(canvas.Count(RECT{6, 2, 40, 14}, Orva::Ui::kHeaderColour), 34 * 12);

    list.reset();
    EXPECT_EQ(drawList.Handle(), nullptr);
    EXPECT_EQ(drawList.Header().Handle(), nullptr);
}

}  // namespace
