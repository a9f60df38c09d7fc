#include "ui/DigitEdit_win.h"

#include <exception>
#include <string>
#include <utility>

#include "settings/log/DebugLog.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {
namespace {

// The edit's own procedure and its digit edit travel with the edit, in properties of their own,
// so that nothing else the dialog keeps in the window's user data is disturbed.
constexpr wchar_t kObjectProperty[] = L"Orva.DigitEdit";
constexpr wchar_t kProcedureProperty[] = L"Orva.DigitEdit.Procedure";

WNDPROC OriginalOf(HWND edit) {
    return reinterpret_cast<WNDPROC>(
        reinterpret_cast<LONG_PTR>(::GetPropW(edit, kProcedureProperty)));
}

LONG_PTR CurrentProcedureOf(HWND edit) {
    return ::GetWindowLongPtrW(edit, GWLP_WNDPROC);
}

void LogFailure(const wchar_t* call) {
    ZEL_LOG_TEXT(L"xxx CDigitEdit: %s failed, error %u", call, ::GetLastError());
}

}  // namespace

CDigitEdit::~CDigitEdit() {
    UnsubclassWindow();
}

bool CDigitEdit::SubclassWindow(HWND edit) {
    // A second digit edit on one window would make the two procedures call each other.
    if (m_edit != nullptr || ::IsWindow(edit) == FALSE ||
        ::GetWindowThreadProcessId(edit, nullptr) != ::GetCurrentThreadId() ||
        ::GetPropW(edit, kObjectProperty) != nullptr ||
        ::GetPropW(edit, kProcedureProperty) != nullptr) {
        return false;
    }
    const LONG_PTR original = CurrentProcedureOf(edit);
    if (::SetPropW(edit, kProcedureProperty, reinterpret_cast<HANDLE>(original)) == FALSE ||
        ::SetPropW(edit, kObjectProperty, this) == FALSE) {
        LogFailure(L"SetPropW");
        ::RemovePropW(edit, kProcedureProperty);
        ::RemovePropW(edit, kObjectProperty);
        return false;
    }
    ::SetLastError(0);
    if (::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)) == 0 &&
        ::GetLastError() != 0) {
        LogFailure(L"SetWindowLongPtrW");
        ::RemovePropW(edit, kProcedureProperty);
        ::RemovePropW(edit, kObjectProperty);
        return false;
    }
    m_edit = edit;
    // The dialog may have given the edit its text before; that text is the one to put back.
    CheckText();
    return true;
}

void CDigitEdit::UnsubclassWindow() {
    if (m_edit == nullptr) {
        return;
    }
    const HWND edit = std::exchange(m_edit, nullptr);
    ::RemovePropW(edit, kObjectProperty);
    // When another procedure subclassed the edit after this one, putting the edit's own back
    // would cut that one out. Ours then stays in the chain without an object, passing every
    // message on, until the edit goes.
    if (CurrentProcedureOf(edit) == reinterpret_cast<LONG_PTR>(&Procedure)) {
        ::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OriginalOf(edit)));
        ::RemovePropW(edit, kProcedureProperty);
    }
}

LRESULT CALLBACK CDigitEdit::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC original = OriginalOf(window);
    if (original == nullptr) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    auto* const self = static_cast<CDigitEdit*>(::GetPropW(window, kObjectProperty));
    if (self == nullptr) {
        const LRESULT result = ::CallWindowProcW(original, window, message, wParam, lParam);
        if (message == WM_NCDESTROY) {
            ::RemovePropW(window, kProcedureProperty);
        }
        return result;
    }
    return self->OnMessage(original, message, wParam, lParam);
}

LRESULT CDigitEdit::OnMessage(WNDPROC original, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND edit = m_edit;
    if (message == WM_CHAR &&
        !CDigitEditRule::PassesCharacter(static_cast<std::uint32_t>(wParam))) {
        return 0;
    }
    if (message == kDigitEditRestoreMessage) {
        PutBackLastAccepted();
        return 0;
    }
    if (message == WM_NCDESTROY) {
        const LRESULT result = ::CallWindowProcW(original, edit, message, wParam, lParam);
        // No message comes after this one: whoever sits above this procedure, the edit and its
        // properties are let go.
        m_edit = nullptr;
        ::RemovePropW(edit, kObjectProperty);
        if (CurrentProcedureOf(edit) == reinterpret_cast<LONG_PTR>(&Procedure)) {
            ::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
        }
        ::RemovePropW(edit, kProcedureProperty);
        return result;
    }
    const bool outermost = m_nesting == 0;
    ++m_nesting;
    const LRESULT result = ::CallWindowProcW(original, edit, message, wParam, lParam);
    // The edit changes its text on many routes (keys, input methods, the clipboard, undo, its
    // context menu, WM_SETTEXT), and its EN_CHANGE goes to the parent. Comparing a few
    // characters after each message catches them all. The messages that reading the text sends
    // are nested and check nothing.
    if (outermost && m_edit != nullptr) {
        CheckText();
    }
    --m_nesting;
    return result;
}

void CDigitEdit::CheckText() {
    ++m_nesting;
    try {
        if (m_rule.OnTextChanged(WindowText(m_edit)) == CDigitEditRule::Reaction::PostRestore &&
            ::PostMessageW(m_edit, kDigitEditRestoreMessage, 0, 0) == FALSE) {
            LogFailure(L"PostMessageW");
        }
    } catch (const std::exception& error) {
        ZEL_LOG_TEXT(L"xxx CDigitEdit: checking the text failed: %S", error.what());
    }
    --m_nesting;
}

void CDigitEdit::PutBackLastAccepted() {
    try {
        const CDigitEditRule::Restore restore = m_rule.OnRestore();
        ::SetWindowTextW(m_edit, restore.text.c_str());
        ::SendMessageW(m_edit, EM_SETSEL, restore.caret, static_cast<LPARAM>(restore.caret));
        ::SendMessageW(m_edit, EM_SCROLLCARET, 0, 0);
    } catch (const std::exception& error) {
        ZEL_LOG_TEXT(L"xxx CDigitEdit: putting the text back failed: %S", error.what());
    }
}

}  // namespace Orva::Ui
