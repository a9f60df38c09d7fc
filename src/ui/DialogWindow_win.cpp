#include "ui/DialogWindow_win.h"

#include "ui/DialogTexts_win.h"
#include "ui/ResourceModule_win.h"

namespace Orva::Ui {

INT_PTR CDialogWindow::RunModal(HWND owner) {
    return ::DialogBoxParamW(ResourceModule(), MAKEINTRESOURCEW(m_templateId), owner,
                             &DialogProcedure, reinterpret_cast<LPARAM>(this));
}

bool CDialogWindow::CreateChild(HWND parent) {
    return ::CreateDialogParamW(ResourceModule(), MAKEINTRESOURCEW(m_templateId), parent,
                                &DialogProcedure, reinterpret_cast<LPARAM>(this)) != nullptr;
}

std::wstring CDialogWindow::ItemText(int id) const {
    return WindowText(Item(id));
}

void CDialogWindow::UseWhiteBackground() {
    m_background.reset(::CreateSolidBrush(RGB(255, 255, 255)));
}

void CDialogWindow::Attach(CDialogWindow& dialog, HWND window) {
    dialog.m_window = window;
    ::SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(&dialog));
}

INT_PTR CALLBACK CDialogWindow::DialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        Attach(*reinterpret_cast<CDialogWindow*>(lParam), window);
    }
    auto* dialog = reinterpret_cast<CDialogWindow*>(::GetWindowLongPtrW(window, DWLP_USER));
    return dialog ? dialog->HandleMessage(message, wParam, lParam) : FALSE;
}

INT_PTR CDialogWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        if (const auto result = OnMessage(message, wParam, lParam)) {
            return *result;
        }
        switch (message) {
            case WM_INITDIALOG:
                return OnInitDialog() ? TRUE : FALSE;
            case WM_COMMAND:
                return OnCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam))
                           ? TRUE
                           : FALSE;
            case WM_CTLCOLORDLG:
            case WM_CTLCOLORSTATIC:
            case WM_CTLCOLORBTN:
                if (m_background) {
                    ::SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
                    return reinterpret_cast<INT_PTR>(m_background.get());
                }
                return FALSE;
            case WM_NCDESTROY:
                ::SetWindowLongPtrW(m_window, DWLP_USER, 0);
                m_window = nullptr;
                return FALSE;
            default:
                return FALSE;
        }
    } catch (...) {
        // A failure in one handler must not take the mail client down with it.
        return FALSE;
    }
}

}  // namespace Orva::Ui
