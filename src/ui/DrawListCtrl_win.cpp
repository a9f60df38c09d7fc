#include "ui/DrawListCtrl_win.h"

#include <commctrl.h>

namespace Orva::Ui {

CDrawListCtrl::~CDrawListCtrl() {
    UnsubclassWindow();
}

bool CDrawListCtrl::SubclassWindow(HWND listView) {
    if (!Attach(listView)) {
        return false;
    }
    constexpr DWORD kStyles = LVS_EX_FULLROWSELECT | LVS_EX_FLATSB;
    ListView_SetExtendedListViewStyleEx(listView, kStyles, kStyles);
    TakeOverHeader();
    return true;
}

void CDrawListCtrl::UnsubclassWindow() {
    m_header.UnsubclassWindow();
    Detach();
}

void CDrawListCtrl::TakeOverHeader() {
    if (m_header.Handle() != nullptr) {
        return;
    }
    if (const HWND header = ListView_GetHeader(Handle())) {
        m_header.SubclassWindow(header);
    }
}

LRESULT CDrawListCtrl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallOriginal(message, wParam, lParam);
    // The list view makes its header when it first needs one: in the report view, or for its
    // first column.
    if (message == WM_STYLECHANGED || message == LVM_SETVIEW || message == LVM_INSERTCOLUMNW) {
        TakeOverHeader();
    }
    return result;
}

}  // namespace Orva::Ui
