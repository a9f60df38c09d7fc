#pragma once

#include <windows.h>

#include "ui/ControlSubclass_win.h"

namespace Orva::Ui {

// The filtering sheet's tab strip, drawn by the add-in: each tab's text centred on one line, the
// selected tab white with bold-looking text, a focus rectangle inside the tab that has the keyboard
// focus. The sheet receives WM_DRAWITEM for the tab control and hands it to DrawItem. Gives the
// tab control its own procedure and drawing back when it goes, or lets go when the control is
// destroyed.
class CDrawTabCtrl : public CControlSubclass<CDrawTabCtrl> {
public:
    CDrawTabCtrl() = default;
    ~CDrawTabCtrl();

    // Switches the tab control to owner drawing and records its client rectangle.
    bool SubclassWindow(HWND tab);
    void UnsubclassWindow();
    // Records the client rectangle again after the sheet changed the item height, and redraws.
    void Layout();
    // Draws one tab; false when the item is not one of this tab control's.
    bool DrawItem(const DRAWITEMSTRUCT& item);

    const RECT& ClientRect() const { return m_client; }

private:
    friend class CControlSubclass<CDrawTabCtrl>;
    static constexpr wchar_t kObjectProperty[] = L"Orva.DrawTabCtrl";
    static constexpr wchar_t kProcedureProperty[] = L"Orva.DrawTabCtrl.Procedure";

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnWindowGone() { m_addedOwnerDraw = false; }

    RECT m_client{};
    bool m_addedOwnerDraw = false;
};

}  // namespace Orva::Ui
