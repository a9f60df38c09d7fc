#include <windows.h>

#include <gtest/gtest.h>

#include "plugin/controller/ControllerWindow.h"
#include "support/TestWindow_win.h"

namespace Orva::Plugin {
namespace {

LRESULT CALLBACK PlainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

// Waits up to about two seconds for the window's WM_TIMER of `id`.
bool TimerFires(HWND window, UINT_PTR id) {
    const DWORD start = GetTickCount();
    MSG message{};
    while (GetTickCount() - start < 2000) {
        if (PeekMessageW(&message, window, WM_TIMER, WM_TIMER, PM_REMOVE) && message.wParam == id) {
            return true;
        }
        Sleep(5);
    }
    return false;
}

TEST(ControllerWindowWin, MakeTopMost_SetsTheTopMostStyleOnly) {
    Testing::TestWindow window(L"OrvaControllerWindowTest", L"", PlainProcedure);
    RECT before{};
    GetWindowRect(window.get(), &before);

    CreateSystemControllerWindow(window.handle())->MakeTopMost();

    EXPECT_NE(GetWindowLongW(window.get(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    RECT after{};
    GetWindowRect(window.get(), &after);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST(ControllerWindowWin, Timer_FiresWithItsIdUntilKilled) {
    Testing::TestWindow window(L"OrvaControllerWindowTest", L"", PlainProcedure);
    auto adapter = CreateSystemControllerWindow(window.handle());

    ASSERT_TRUE(adapter->SetTimer(1, 10));
    EXPECT_TRUE(TimerFires(window.get(), 1));
    EXPECT_TRUE(adapter->KillTimer(1));
    EXPECT_FALSE(adapter->KillTimer(1));

    MSG stale{};
    while (PeekMessageW(&stale, window.get(), WM_TIMER, WM_TIMER, PM_REMOVE)) {
    }
    Sleep(50);
    EXPECT_FALSE(PeekMessageW(&stale, window.get(), WM_TIMER, WM_TIMER, PM_REMOVE));
}

}  // namespace
}  // namespace Orva::Plugin
