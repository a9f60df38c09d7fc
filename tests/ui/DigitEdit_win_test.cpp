#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DigitEdit_win.h"

namespace {

using Orva::Ui::CDigitEdit;
using ZelCommon::Platform::unique_hwnd;

unique_hwnd NewEdit() {
    return unique_hwnd(::CreateWindowExW(0, L"EDIT", L"", WS_POPUP, 0, 0, 120, 24, nullptr, nullptr,
                                         ::GetModuleHandleW(nullptr), nullptr));
}

std::wstring Text(const unique_hwnd& edit) {
    wchar_t text[64] = {};
    ::GetWindowTextW(edit.get(), text, 64);
    return text;
}

void Type(const unique_hwnd& edit, std::wstring_view characters) {
    for (const wchar_t character : characters) {
        ::SendMessageW(edit.get(), WM_CHAR, character, 1);
    }
}

void PumpPosted() {
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::DispatchMessageW(&message);
    }
}

TEST(DigitEditWin, TypedAndReplacedText_FilteredAndPutBackWhenOutOfRange_CaretAtThree) {
    const unique_hwnd edit = NewEdit();
    CDigitEdit digits;
    ASSERT_TRUE(digits.SubclassWindow(edit.get()));
    digits.SetRange(65535);
    Type(edit, L"80x8 !0");
    EXPECT_EQ(Text(edit), L"8080");

    Type(edit, L"1");
    EXPECT_EQ(Text(edit), L"80801");
    PumpPosted();
    EXPECT_EQ(Text(edit), L"8080");
    EXPECT_EQ(::SendMessageW(edit.get(), EM_GETSEL, 0, 0), MAKELRESULT(3, 3));

    // A change that was not typed.
    ::SendMessageW(edit.get(), EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"a"));
    EXPECT_EQ(Text(edit), L"808a0");
    PumpPosted();
    EXPECT_EQ(Text(edit), L"8080");
}

TEST(DigitEditWin, AdapterGoneOrEditDestroyed_EditKeepsItsOwnProcedure) {
    unique_hwnd edit = NewEdit();
    const LONG_PTR own = ::GetWindowLongPtrW(edit.get(), GWLP_WNDPROC);
    {
        CDigitEdit digits;
        ASSERT_TRUE(digits.SubclassWindow(edit.get()));
        EXPECT_FALSE(CDigitEdit().SubclassWindow(edit.get()));
    }
    EXPECT_EQ(::GetWindowLongPtrW(edit.get(), GWLP_WNDPROC), own);

    CDigitEdit digits;
    ASSERT_TRUE(digits.SubclassWindow(edit.get()));
    edit.reset();
    EXPECT_EQ(digits.Handle(), nullptr);
}

}  // namespace
