#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/UniqueAny_win.h"
#include "support/TestWindow_win.h"
#include "ui/PixelCanvas_win.h"
#include "ui/StaticEx_win.h"

namespace {

using Orva::Testing::PixelCanvas;
using Orva::Ui::CStaticEx;
using ZelCommon::Platform::unique_hfont;
using ZelCommon::Platform::unique_hwnd;

class FakeShellOpen final : public ZelCommon::Platform::IShellOpen {
public:
    bool OpenAddress(const std::wstring& address) override {
        opened.push_back(address);
        return true;
    }
    std::vector<std::wstring> opened;
};

LRESULT CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcW(window, message, wParam, lParam);
}

// Whether the link as painted now shows the colour, on white.
bool PaintedIn(HWND link, COLORREF colour) {
    const PixelCanvas canvas(160, 20, RGB(255, 255, 255));
    ::SendMessageW(link, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    return canvas.Count(RECT{0, 0, 160, 20}, colour) > 0;
}

TEST(StaticExWin, Subclassed_UnderlinedBlueRedWhileHoveredClickOpens_GoneItsOwnFontAgain) {
    const Orva::Testing::TestWindow dialog(L"OrvaLinkTestDialog", L"", &DialogProcedure);
    const unique_hwnd link(
        ::CreateWindowExW(0, L"Static", L"www.example.org", WS_CHILD | WS_VISIBLE | SS_LEFT, 0, 0,
                          160, 20, dialog.get(), nullptr, ::GetModuleHandleW(nullptr), nullptr));
    const unique_hfont font(::CreateFontW(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                                          DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                                          L"Tahoma"));
    ::SendMessageW(link.get(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
    const LONG_PTR own = ::GetWindowLongPtrW(link.get(), GWLP_WNDPROC);
    FakeShellOpen shell;
    {
        CStaticEx linkControl(shell);
        ASSERT_TRUE(linkControl.SubclassWindow(link.get()));
        linkControl.SetAddress(L"https://www.example.org/");
        EXPECT_NE(::GetWindowLongPtrW(link.get(), GWL_STYLE) & SS_NOTIFY, 0);
        LOGFONTW used{};
        ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(link.get(), WM_GETFONT, 0, 0)),
                     sizeof used, &used);
        EXPECT_TRUE(used.lfUnderline);

        EXPECT_TRUE(PaintedIn(link.get(), Orva::Ui::kLinkColour));
        ::SendMessageW(link.get(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        EXPECT_EQ(::GetCapture(), link.get());
        EXPECT_TRUE(PaintedIn(link.get(), Orva::Ui::kLinkHoverColour));
        EXPECT_FALSE(PaintedIn(link.get(), Orva::Ui::kLinkColour));

        ::SendMessageW(link.get(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        EXPECT_EQ(shell.opened, std::vector<std::wstring>{L"https://www.example.org/"});

        ::SendMessageW(link.get(), WM_MOUSEMOVE, 0, MAKELPARAM(170, 5));
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(linkControl.Hovered());
    }
    // Its own procedure and font are back, not the underlined copy that went with the link.
    EXPECT_EQ(::GetWindowLongPtrW(link.get(), GWLP_WNDPROC), own);
    EXPECT_EQ(reinterpret_cast<HFONT>(::SendMessageW(link.get(), WM_GETFONT, 0, 0)), font.get());
}

}  // namespace
