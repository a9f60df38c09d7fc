#pragma once

#include <windows.h>

#include <prsht.h>

#include <string>

#include "ui/DialogWindow_win.h"

namespace Orva::Ui {

// A page of a property sheet: the same dialog machinery, with the page object in
// PROPSHEETPAGE::lParam and the sheet's notifications turned into calls.
class CPropertyPage : public CDialogWindow {
public:
    // The page's description for PropertySheetW; `title` must outlive the sheet.
    PROPSHEETPAGEW Describe(const std::wstring& title, DWORD extraFlags = 0);

protected:
    explicit CPropertyPage(int templateId) : CDialogWindow(templateId) {}

    // The sheet's OK: false keeps the sheet open on this page.
    virtual bool OnApply() { return true; }
    virtual void OnSetActive() {}

    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static INT_PTR CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

}  // namespace Orva::Ui
