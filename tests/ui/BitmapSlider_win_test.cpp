#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "common_src/platform/UniqueAny_win.h"
#include "support/FileBytes.h"
#include "support/SourceRoot.h"
#include "support/TempFolder.h"
#include "support/TestWindow_win.h"
#include "ui/BitmapSlider_win.h"
#include "ui/PixelCanvas_win.h"

namespace {

using Orva::Testing::PixelCanvas;
using Orva::Testing::TestWindow;
using Orva::Ui::CBitmapSlider;
using ZelCommon::Platform::unique_hbitmap;
using ZelCommon::Platform::unique_hwnd;

constexpr int kSliderId = 6100;
constexpr COLORREF kWhite = RGB(255, 255, 255);

std::vector<std::pair<WPARAM, LPARAM>>& Commands() {
    static std::vector<std::pair<WPARAM, LPARAM>> commands;
    return commands;
}

// A page: white behind its statics, and every command it gets written down.
LRESULT CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        Commands().emplace_back(wParam, lParam);
        return 0;
    }
    if (message == WM_CTLCOLORSTATIC) {
        return reinterpret_cast<LRESULT>(::GetStockObject(WHITE_BRUSH));
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

unique_hwnd NewSliderControl(HWND page) {
    return unique_hwnd(
        ::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | SS_NOTIFY, 0, 0,
                          240, 40, page, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kSliderId)),
                          ::GetModuleHandleW(nullptr), nullptr));
}

// A key as a dialog's message loop hands it on: arrows reach the control only if it asks.
void PressThroughDialog(HWND page, HWND control, WPARAM key) {
    ::PostMessageW(control, WM_KEYDOWN, key, 1);
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (::IsDialogMessageW(page, &message) == FALSE) {
            ::DispatchMessageW(&message);
        }
    }
}

LPARAM At(int x) {
    return MAKELPARAM(x, 20);
}

TEST(BitmapSliderWin, KeysAndMouse_NotifyTheParentOfEachChange_SetPosDoesNot) {
    const TestWindow page(L"OrvaSliderTestPage", L"", &PageProcedure);
    const unique_hwnd control = NewSliderControl(page.get());
    const HWND hwnd = control.get();
    CBitmapSlider slider;
    ASSERT_TRUE(slider.SubclassWindow(hwnd));
    const auto send = [hwnd](UINT message, WPARAM wParam, LPARAM lParam) {
        return [=] { ::SendMessageW(hwnd, message, wParam, lParam); };
    };
    const struct {
        const char* step;
        std::function<void()> act;
        int position;
        bool notified;
    } steps[] = {
        {"SetPos", [&] { slider.SetPos(1); }, 1, false},
        {"Left in a dialog", [&] { PressThroughDialog(page.get(), hwnd, VK_LEFT); }, 0, true},
        {"End", send(WM_KEYDOWN, VK_END, 1), 2, true},
        {"click on the middle", send(WM_LBUTTONDOWN, MK_LBUTTON, At(120)), 1, true},
        {"drag to the left end", send(WM_MOUSEMOVE, MK_LBUTTON, At(10)), 0, true},
        {"release", send(WM_LBUTTONUP, 0, At(10)), 0, false},
        {"move without the button", send(WM_MOUSEMOVE, 0, At(232)), 0, false},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.step);
        Commands().clear();
        step.act();
        EXPECT_EQ(slider.GetPos(), step.position);
        if (step.notified) {
            EXPECT_EQ(Commands(), (std::vector<std::pair<WPARAM, LPARAM>>{
                                      {MAKEWPARAM(kSliderId, Orva::Ui::kSliderPositionChanged),
                                       reinterpret_cast<LPARAM>(hwnd)}}));
        } else {
            EXPECT_TRUE(Commands().empty());
        }
    }
}

TEST(BitmapSliderWin, UnusableBitmaps_FileGivesNothingAndSliderDrawsTheBuiltInOne) {
    const Orva::Testing::TempFolder folder;
    const std::string shipped =
        Orva::Testing::ReadFileBytes(Orva::Testing::SourceRoot() / "res" / "ui" / "Slider.bmp");
    Orva::Testing::WriteFileBytes(folder.File(L"cut.bmp"), shipped.substr(0, 2000));
    EXPECT_FALSE(CBitmapSlider::LoadBitmapFile(folder.File(L"cut.bmp")));
    EXPECT_FALSE(CBitmapSlider::LoadBitmapFile(folder.File(L"missing.bmp")));
    EXPECT_TRUE(CBitmapSlider::LoadBitmapFile(
        (Orva::Testing::SourceRoot() / "res" / "ui" / "Slider.bmp").wstring()));

    const TestWindow page(L"OrvaSliderPaintPage", L"", &PageProcedure);
    const unique_hwnd control = NewSliderControl(page.get());
    CBitmapSlider slider;
    ASSERT_TRUE(slider.SubclassWindow(control.get()));
    // A bitmap too small for the layout, then none at all.
    unique_hbitmap bitmaps[] = {unique_hbitmap(::CreateBitmap(10, 10, 1, 32, nullptr)),
                                CBitmapSlider::LoadBitmapFile(folder.File(L"cut.bmp"))};
    for (unique_hbitmap& bitmap : bitmaps) {
        slider.SetBitmap(std::move(bitmap));
        slider.SetPos(2);
        PixelCanvas canvas(240, 40, RGB(1, 2, 3));
        ::SendMessageW(control.get(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()),
                       PRF_CLIENT);
        // 40 pixels high: the 32 rows of the bitmap from row 4, the groove from row 15.
        EXPECT_EQ(canvas.Pixel(60, 2), kWhite);
        EXPECT_NE(canvas.Pixel(60, 15), kWhite);
        // The built-in thumb is blue.
        const COLORREF thumb = canvas.Pixel(232, 12);
        EXPECT_GT(GetBValue(thumb), GetRValue(thumb) + 50);
        EXPECT_EQ(canvas.Pixel(8, 12), kWhite);
    }
}

}  // namespace
