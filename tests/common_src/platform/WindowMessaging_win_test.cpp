#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "common_src/platform/WindowMessaging.h"
#include "support/TestWindow_win.h"

namespace {

using ZelCommon::Platform::SystemWindowMessaging;
using ZelCommon::Platform::WindowHandle;

constexpr UINT kAnswerMessage = WM_USER + 77;
constexpr wchar_t kClassName[] = L"OrvaPlatformTestWindow";
constexpr wchar_t kTitle[] = L"{0F1E2D3C-ORVA-PLATFORM-TEST}";

LRESULT CALLBACK TestWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kAnswerMessage) {
        return static_cast<LRESULT>(wParam * 2 + static_cast<WPARAM>(lParam));
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

// The window every test here talks to.
class TestWindow : public Orva::Testing::TestWindow {
public:
    TestWindow() : Orva::Testing::TestWindow(kClassName, kTitle, TestWindowProc) {}
};

TEST(SystemWindowMessagingWin, FindByTitleAndClass_FindOnlyAnExistingWindow) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    EXPECT_EQ(SystemWindowMessaging().FindByTitle(kTitle), window.handle());
    EXPECT_EQ(SystemWindowMessaging().FindByClass(kClassName), window.handle());
    EXPECT_EQ(SystemWindowMessaging().FindByTitle(L"{no-such-orva-window}"), 0u);
    EXPECT_EQ(SystemWindowMessaging().FindByClass(L"NoSuchOrvaClass"), 0u);
}

TEST(SystemWindowMessagingWin, PostQueuesAndSendAnswers_WithTheirParameters) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    ASSERT_TRUE(SystemWindowMessaging().Post(window.handle(), WM_USER + 1033, 17, -5));
    MSG msg{};
    ASSERT_TRUE(::PeekMessageW(&msg, window.get(), WM_USER + 1033, WM_USER + 1033, PM_REMOVE));
    EXPECT_EQ(std::tuple(msg.hwnd, msg.message, msg.wParam, msg.lParam),
              std::tuple(window.get(), UINT{WM_USER + 1033}, WPARAM{17}, LPARAM{-5}));
    EXPECT_EQ(SystemWindowMessaging().Send(window.handle(), kAnswerMessage, 20, 3), 43);
}

TEST(SystemWindowMessagingWin, PostToDestroyedWindow_Fails) {
    WindowHandle gone = 0;
    {
        TestWindow window;
        gone = window.handle();
    }
    EXPECT_FALSE(SystemWindowMessaging().Post(gone, WM_USER + 1, 0, 0));
    EXPECT_EQ(SystemWindowMessaging().Send(gone, kAnswerMessage, 1, 1), 0);
}

}  // namespace
