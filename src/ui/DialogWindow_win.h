#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Ui {

// A dialog made from a template of the add-in's resources: modal, or a child panel of a page.
// The object travels in the creation parameter and lives in DWLP_USER, so that one procedure
// serves every dialog; a derived class answers the messages it cares for. No exception leaves
// the procedure.
class CDialogWindow {
public:
    virtual ~CDialogWindow() = default;
    CDialogWindow(const CDialogWindow&) = delete;
    CDialogWindow& operator=(const CDialogWindow&) = delete;

    HWND Handle() const { return m_window; }
    int TemplateId() const { return m_templateId; }

    // The dialog's end code (IDOK, IDCANCEL), or -1 when it could not be made.
    INT_PTR RunModal(HWND owner);
    // A modeless child of `parent` (a panel); the parent's destruction takes it along.
    bool CreateChild(HWND parent);

protected:
    explicit CDialogWindow(int templateId) : m_templateId(templateId) {}

    virtual bool OnInitDialog() { return true; }
    // True when the command was handled.
    virtual bool OnCommand(int /*id*/, int /*code*/, HWND /*control*/) { return false; }
    // A result for the message, or nothing to leave it to the dialog manager.
    virtual std::optional<INT_PTR> OnMessage(UINT /*message*/, WPARAM /*wParam*/,
                                             LPARAM /*lParam*/) {
        return std::nullopt;
    }

    // Pages and panels paint on white; their statics and check boxes follow.
    void UseWhiteBackground();
    HWND Item(int id) const { return ::GetDlgItem(m_window, id); }
    std::wstring ItemText(int id) const;
    bool IsChecked(int id) const { return ::IsDlgButtonChecked(m_window, id) == BST_CHECKED; }
    void SetChecked(int id, bool checked) const {
        ::CheckDlgButton(m_window, id, checked ? BST_CHECKED : BST_UNCHECKED);
    }

    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam);
    // Attaches `dialog` to `window` at WM_INITDIALOG.
    static void Attach(CDialogWindow& dialog, HWND window);
    INT_PTR HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    int m_templateId;
    HWND m_window = nullptr;
    ZelCommon::Platform::unique_hbrush m_background;
};

}  // namespace Orva::Ui
