#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/ControlSubclass_win.h"

namespace Orva::Ui {

// The colour of the sender lists' column headers (light grey).
inline constexpr COLORREF kHeaderColour = 0xE9E9E9;

// The column header of a sender list, painted by the add-in: one light grey bar, each column's
// text left-aligned with a small margin, a thin line between columns and a small arrow on a
// column marked HDF_SORTUP or HDF_SORTDOWN. It paints the whole header itself, so columns the
// page adds later look the same without owner-draw flags. Gives the header its own procedure
// back when it goes or the header is destroyed.
class CDrawHeaderCtrl : public CControlSubclass<CDrawHeaderCtrl> {
public:
    CDrawHeaderCtrl() = default;
    ~CDrawHeaderCtrl();

    bool SubclassWindow(HWND header);
    void UnsubclassWindow();

private:
    friend class CControlSubclass<CDrawHeaderCtrl>;
    static constexpr wchar_t kObjectProperty[] = L"Orva.DrawHeaderCtrl";
    static constexpr wchar_t kProcedureProperty[] = L"Orva.DrawHeaderCtrl.Procedure";

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint(HDC target);
    void PaintItem(HDC dc, int index) const;

    ZelCommon::Platform::unique_hbrush m_background;
    ZelCommon::Platform::unique_hpen m_line;
};

}  // namespace Orva::Ui
