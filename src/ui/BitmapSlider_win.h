#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/ControlSubclass_win.h"
#include "ui/SliderRule.h"

namespace Orva::Ui {

// The notification code of the WM_COMMAND a slider sends its parent when the user moved it.
inline constexpr WORD kSliderPositionChanged = 0x0500;

// The three-position level slider of the detection and link-filter panels. It takes over a
// control of a dialog template (a notifying static with a tab stop, of any size) and draws a
// channel and a thumb from a bitmap cut as SliderBitmapLayout describes (ui/SliderRule.h): the
// built-in one (IDB_ORVA_SLIDER in ui/Controls.rc) or one the installation names.
//
// The user moves it with the mouse (a click or a drag picks the nearest position) and with the
// arrow, Home, End, PageUp and PageDown keys; each change the user makes sends the parent
//   WM_COMMAND, MAKEWPARAM(control id, kSliderPositionChanged), (LPARAM)slider window.
// SetPos notifies nobody. Gives the control its own procedure back when it goes or the control
// is destroyed.
class CBitmapSlider : public CControlSubclass<CBitmapSlider> {
public:
    CBitmapSlider() = default;
    ~CBitmapSlider();

    bool SubclassWindow(HWND control);
    void UnsubclassWindow();

    // Draws from `bitmap` from now on; a null bitmap, or one whose size does not fit the layout,
    // brings the built-in one back.
    void SetBitmap(ZelCommon::Platform::unique_hbitmap bitmap);
    // A bitmap file for SetBitmap; null for a missing, truncated, too large or otherwise
    // unusable file.
    static ZelCommon::Platform::unique_hbitmap LoadBitmapFile(const std::wstring& path);

    // Clamped to 0..2; redraws the thumb.
    void SetPos(int position);
    int GetPos() const { return m_position; }

private:
    friend class CControlSubclass<CBitmapSlider>;
    static constexpr wchar_t kObjectProperty[] = L"Orva.BitmapSlider";
    static constexpr wchar_t kProcedureProperty[] = L"Orva.BitmapSlider.Procedure";

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnWindowGone();
    // Moves to `position` and, if that is a change, tells the parent. The parent may destroy
    // this object while it is told, so nothing may follow the call.
    void MoveByUser(int position);
    void Paint(HDC target);
    void DrawFromBitmap(HDC dc, const RECT& client);
    void DrawWithoutBitmap(HDC dc, const RECT& client) const;
    void Redraw() const;

    ZelCommon::Platform::unique_hbitmap m_bitmap;
    std::optional<SliderBitmapLayout> m_layout;
    int m_position = 0;
    bool m_dragging = false;
};

}  // namespace Orva::Ui
