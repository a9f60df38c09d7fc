#pragma once

#include <windows.h>

#include "ui/DigitEditRule.h"

namespace Orva::Ui {

// An edit control of a dialog that takes a number within a range: it drops the characters the
// rule refuses and puts the last accepted text back when the text leaves the range. It
// subclasses an existing edit and gives the edit its own procedure back when it goes, or lets
// go when the edit is destroyed first. Used on the edit's own thread only.
class CDigitEdit {
public:
    CDigitEdit() = default;
    ~CDigitEdit();
    CDigitEdit(const CDigitEdit&) = delete;
    CDigitEdit& operator=(const CDigitEdit&) = delete;

    // Takes over `edit`, a window of this thread; false when this object already holds one, the
    // edit already has a digit edit, or Windows refused.
    bool SubclassWindow(HWND edit);
    // Gives the edit its own procedure back; nothing when none is held.
    void UnsubclassWindow();

    void SetRange(int maximum) { m_rule.SetRange(maximum); }
    HWND Handle() const { return m_edit; }
    const CDigitEditRule& Rule() const { return m_rule; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMessage(WNDPROC original, UINT message, WPARAM wParam, LPARAM lParam);
    void CheckText();
    void PutBackLastAccepted();

    CDigitEditRule m_rule;
    HWND m_edit = nullptr;
    // How deep this edit's procedure is running, so that only the outermost call checks the text.
    int m_nesting = 0;
};

}  // namespace Orva::Ui
