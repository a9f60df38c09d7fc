#pragma once

#include <windows.h>

namespace Orva::Ui {

// Alt+O and Alt+C in a modal dialog whose button texts, translated, may lack those letters: a
// message hook of the thread sees the keys before the dialog manager does. Alt+O presses OK
// only while OK is enabled and is swallowed otherwise; Alt+C presses Cancel. Dialogs nest (the
// proxy dialog over the updates dialog); each watches its own window only.
class CDialogShortcuts {
public:
    CDialogShortcuts() = default;
    ~CDialogShortcuts();
    CDialogShortcuts(const CDialogShortcuts&) = delete;
    CDialogShortcuts& operator=(const CDialogShortcuts&) = delete;

    // Starts watching `dialog` (from its WM_INITDIALOG); stops when this object goes.
    void Watch(HWND dialog);

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    bool OnKey(const MSG& message) const;

    HWND m_dialog = nullptr;
};

}  // namespace Orva::Ui
