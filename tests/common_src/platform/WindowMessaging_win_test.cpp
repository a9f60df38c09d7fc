#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/WindowMessaging.h"

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

class TestWindow {
public:
    TestWindow() {
        WNDCLASSW wc{};
        wc.lpfnWndProc = TestWindowProc;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.lpszClassName = kClassName;
        ::RegisterClassW(&wc);
        m_window = ::CreateWindowExW(0, kClassName, kTitle, WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                     nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    }
    ~TestWindow() {
        if (m_window != nullptr) {
            ::DestroyWindow(m_window);
        }
        ::UnregisterClassW(kClassName, ::GetModuleHandleW(nullptr));
    }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND get() const { return m_window; }
    WindowHandle handle() const { return reinterpret_cast<WindowHandle>(m_window); }

private:
    HWND m_window = nullptr;
};

TEST(SystemWindowMessagingWin, FindByTitleAndClass_FindTheWindow) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    EXPECT_EQ(SystemWindowMessaging().FindByTitle(kTitle), window.handle());
    EXPECT_EQ(SystemWindowMessaging().FindByClass(kClassName), window.handle());
}

TEST(SystemWindowMessagingWin, MissingWindow_IsNotFound) {
    EXPECT_EQ(SystemWindowMessaging().FindByTitle(L"{no-such-orva-window}"), 0u);
    EXPECT_EQ(SystemWindowMessaging().FindByClass(L"NoSuchOrvaClass"), 0u);
}

TEST(SystemWindowMessagingWin, Post_QueuesTheMessageWithItsParameters) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    ASSERT_TRUE(SystemWindowMessaging().Post(window.handle(), WM_USER + 1033, 17, -5));
    MSG msg{};
    ASSERT_TRUE(::PeekMessageW(&msg, window.get(), WM_USER + 1033, WM_USER + 1033, PM_REMOVE));
    EXPECT_EQ(msg.hwnd, window.get());
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_USER + 1033));
    EXPECT_EQ(msg.wParam, 17u);
    EXPECT_EQ(msg.lParam, -5);
}

TEST(SystemWindowMessagingWin, Send_ReturnsTheWindowProceduresResult) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
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
