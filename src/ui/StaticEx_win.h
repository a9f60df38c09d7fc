#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/UniqueAny_win.h"
#include "ui/ControlSubclass_win.h"

namespace Orva::Ui {

// Colours of the link (COLORREF, 0x00BBGGRR).
inline constexpr COLORREF kLinkColour = 0xFF0000;
inline constexpr COLORREF kLinkHoverColour = 0x0000FF;
// The colour of a visited link; kept with the two others, though the link does not remember
// visits and never draws with it.
inline constexpr COLORREF kLinkVisitedColour = 0x8F2205;

// A static text of a dialog turned into a link: underlined, blue, red while the mouse is over
// it, with the hand cursor; a click opens its address. Gives the static its own procedure and
// font back when it goes or the static is destroyed.
class CStaticEx : public CControlSubclass<CStaticEx> {
public:
    explicit CStaticEx(
        ZelCommon::Platform::IShellOpen& shell = ZelCommon::Platform::SystemShellOpen())
        : m_shell(shell) {}
    ~CStaticEx();

    // Adds SS_NOTIFY and gives the static an underlined copy of its font.
    bool SubclassWindow(HWND staticControl);
    void UnsubclassWindow();
    void SetAddress(std::wstring address) { m_address = std::move(address); }

    bool Hovered() const { return m_hovered; }

private:
    friend class CControlSubclass<CStaticEx>;
    static constexpr wchar_t kObjectProperty[] = L"Orva.StaticEx";
    static constexpr wchar_t kProcedureProperty[] = L"Orva.StaticEx.Procedure";

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnWindowGone();
    void OnMouseMove(POINT point);
    void SetHovered(bool hovered);
    void Paint(HDC dc);
    // Has the dialog repaint its background under the text, then the text: the link has no
    // background of its own.
    void Redraw() const;

    ZelCommon::Platform::IShellOpen& m_shell;
    std::wstring m_address;
    HFONT m_originalFont = nullptr;
    ZelCommon::Platform::unique_hfont m_font;
    bool m_hovered = false;
};

}  // namespace Orva::Ui
