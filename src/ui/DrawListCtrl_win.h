#pragma once

#include <windows.h>

#include "ui/ControlSubclass_win.h"
#include "ui/DrawHeaderCtrl_win.h"

namespace Orva::Ui {

// The list view of a sender-list page: whole rows selected, flat scroll bars, and its column
// header painted as a CDrawHeaderCtrl. A list that gets its header only later (switched to the
// report view afterwards) has it taken over then. Gives the list view and the header their own
// procedures back when it goes or they are destroyed.
class CDrawListCtrl : public CControlSubclass<CDrawListCtrl> {
public:
    CDrawListCtrl() = default;
    ~CDrawListCtrl();

    bool SubclassWindow(HWND listView);
    void UnsubclassWindow();

    CDrawHeaderCtrl& Header() { return m_header; }

private:
    friend class CControlSubclass<CDrawListCtrl>;
    static constexpr wchar_t kObjectProperty[] = L"Orva.DrawListCtrl";
    static constexpr wchar_t kProcedureProperty[] = L"Orva.DrawListCtrl.Procedure";

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void TakeOverHeader();

    CDrawHeaderCtrl m_header;
};

}  // namespace Orva::Ui
