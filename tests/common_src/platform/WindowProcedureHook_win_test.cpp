#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "common_src/platform/WindowProcedureHook.h"
#include "support/TestWindow_win.h"

namespace {

using ZelCommon::Platform::CreateWindowProcedureHook;
using ZelCommon::Platform::IWindowProcedureHook;
using ZelCommon::Platform::WindowHandle;
using ZelCommon::Platform::WindowProcedure;

constexpr UINT kProbeMessage = WM_USER + 91;
constexpr wchar_t kClassName[] = L"OrvaHookTestWindow";
constexpr wchar_t kTitle[] = L"OrvaHookTest";

std::vector<UINT> g_hookSaw;

LRESULT CALLBACK OriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kProbeMessage) {
        return static_cast<LRESULT>(wParam) + 1000;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK HookProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    g_hookSaw.push_back(message);
    if (message == kProbeMessage) {
        return static_cast<LRESULT>(wParam) + 2000;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

WindowProcedure ValueOf(WNDPROC procedure) {
    return reinterpret_cast<WindowProcedure>(procedure);
}

// A window whose class procedure is OriginalProc; whatever a test installed is put back before
// the window goes.
class TestWindow : public Orva::Testing::TestWindow {
public:
    TestWindow() : Orva::Testing::TestWindow(kClassName, kTitle, OriginalProc) {
        g_hookSaw.clear();
    }
    ~TestWindow() {
        if (get() != nullptr) {
            ::SetWindowLongPtrW(get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OriginalProc));
        }
    }
};

std::unique_ptr<IWindowProcedureHook> NewHook() {
    return CreateWindowProcedureHook(ValueOf(HookProc));
}

TEST(WindowProcedureHookWin, InstallCallAndRestore_SubclassTheWindowAndGiveItBack) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    const auto hook = NewHook();
    const WindowProcedure saved = hook->CurrentProcedure(window.handle());
    EXPECT_EQ(saved, ValueOf(OriginalProc));

    ASSERT_TRUE(hook->InstallHook(window.handle()));
    EXPECT_EQ(hook->CurrentProcedure(window.handle()), ValueOf(HookProc));
    EXPECT_EQ(::SendMessageW(window.get(), kProbeMessage, 5, 0), 2005);
    EXPECT_EQ(hook->CallProcedure(saved, window.handle(), kProbeMessage, 7, 0), 1007);
    EXPECT_EQ(g_hookSaw, std::vector<UINT>{kProbeMessage});

    ASSERT_TRUE(hook->Restore(window.handle(), saved));
    EXPECT_EQ(hook->CurrentProcedure(window.handle()), saved);
    EXPECT_EQ(::SendMessageW(window.get(), kProbeMessage, 3, 0), 1003);
    EXPECT_EQ(g_hookSaw, std::vector<UINT>{kProbeMessage});
}

TEST(WindowProcedureHookWin, CallDefault_DoesDefaultProcessing) {
    TestWindow window;
    ASSERT_NE(window.get(), nullptr);
    const auto hook = NewHook();
    EXPECT_EQ(hook->CallDefault(window.handle(), WM_GETTEXTLENGTH, 0, 0),
              static_cast<intptr_t>(std::size(kTitle) - 1));
    EXPECT_EQ(hook->CallDefault(window.handle(), kProbeMessage, 9, 0), 0);
}

TEST(WindowProcedureHookWin, DestroyedWindowOrNullProcedure_IsRefused) {
    WindowHandle gone = 0;
    {
        TestWindow window;
        ASSERT_NE(window.get(), nullptr);
        EXPECT_FALSE(CreateWindowProcedureHook(0)->InstallHook(window.handle()));
        EXPECT_FALSE(NewHook()->Restore(window.handle(), 0));
        EXPECT_EQ(NewHook()->CurrentProcedure(window.handle()), ValueOf(OriginalProc));
        EXPECT_EQ(NewHook()->CallProcedure(0, window.handle(), kProbeMessage, 1, 0), 0);
        gone = window.handle();
    }
    const auto hook = NewHook();
    EXPECT_EQ(hook->CurrentProcedure(gone), 0u);
    EXPECT_FALSE(hook->InstallHook(gone));
    EXPECT_FALSE(hook->Restore(gone, ValueOf(OriginalProc)));
}

}  // namespace
