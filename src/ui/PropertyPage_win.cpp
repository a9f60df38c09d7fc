#include "ui/PropertyPage_win.h"

#include "ui/ResourceModule_win.h"

namespace Orva::Ui {

PROPSHEETPAGEW CPropertyPage::Describe(const std::wstring& title, DWORD extraFlags) {
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof(page);
    page.dwFlags = PSP_USETITLE | extraFlags;
    page.hInstance = ResourceModule();
    page.pszTemplate = MAKEINTRESOURCEW(TemplateId());
    page.pszTitle = title.c_str();
    page.pfnDlgProc = &PageProcedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    return page;
}

INT_PTR CALLBACK CPropertyPage::PageProcedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        const auto* page = reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
        Attach(*reinterpret_cast<CPropertyPage*>(page->lParam), window);
    }
    auto* dialog = reinterpret_cast<CDialogWindow*>(::GetWindowLongPtrW(window, DWLP_USER));
    return dialog ? static_cast<CPropertyPage*>(dialog)->HandleMessage(message, wParam, lParam)
                  : FALSE;
}

std::optional<INT_PTR> CPropertyPage::OnMessage(UINT message, WPARAM /*wParam*/, LPARAM lParam) {
    if (message != WM_NOTIFY) {
        return std::nullopt;
    }
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    switch (header.code) {
        case PSN_APPLY: {
            const bool applied = OnApply();
            ::SetWindowLongPtrW(Handle(), DWLP_MSGRESULT,
                                applied ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE);
            return TRUE;
        }
        case PSN_SETACTIVE:
            OnSetActive();
            ::SetWindowLongPtrW(Handle(), DWLP_MSGRESULT, 0);
            return TRUE;
        default:
            return std::nullopt;
    }
}

}  // namespace Orva::Ui
