#include "ui/StaticEx_win.h"

#include <optional>

#include "settings/log/DebugLog.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {
namespace {

HFONT FontOf(HWND window) {
    return reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
}

// The static's own alignment and prefix styles, as DrawText flags.
UINT TextFormatOf(LONG_PTR style) {
    UINT format = DT_WORDBREAK;
    switch (style & SS_TYPEMASK) {
        case SS_CENTER:
            format |= DT_CENTER;
            break;
        case SS_RIGHT:
            format |= DT_RIGHT;
            break;
        default:
            format |= DT_LEFT;
            break;
    }
    if ((style & SS_NOPREFIX) != 0) {
        format |= DT_NOPREFIX;
    }
    if ((style & SS_CENTERIMAGE) != 0) {
        format = (format & ~static_cast<UINT>(DT_WORDBREAK)) | DT_SINGLELINE | DT_VCENTER;
    }
    return format;
}

}  // namespace

CStaticEx::~CStaticEx() {
    UnsubclassWindow();
}

bool CStaticEx::SubclassWindow(HWND staticControl) {
    if (!Attach(staticControl)) {
        return false;
    }
    ::SetWindowLongPtrW(staticControl, GWL_STYLE,
                        ::GetWindowLongPtrW(staticControl, GWL_STYLE) | SS_NOTIFY);
    m_originalFont = FontOf(staticControl);
    LOGFONTW font{};
    const HGDIOBJ base = m_originalFont != nullptr ? static_cast<HGDIOBJ>(m_originalFont)
                                                   : ::GetStockObject(DEFAULT_GUI_FONT);
    if (::GetObjectW(base, sizeof font, &font) != 0) {
        font.lfUnderline = TRUE;
        m_font.reset(::CreateFontIndirectW(&font));
    }
    if (m_font) {
        ::SendMessageW(staticControl, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), TRUE);
    } else {
        ZEL_LOG_TEXT(L"xxx CStaticEx: no underlined font, error %u", ::GetLastError());
    }
    return true;
}

void CStaticEx::UnsubclassWindow() {
    const HWND window = Handle();
    if (window == nullptr) {
        return;
    }
    if (::GetCapture() == window) {
        ::ReleaseCapture();
    }
    m_hovered = false;
    // The static must not keep drawing with a font that goes with this object.
    if (m_font && FontOf(window) == m_font.get()) {
        ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_originalFont), TRUE);
    }
    Detach();
    m_font.reset();
}

void CStaticEx::OnWindowGone() {
    m_hovered = false;
}

LRESULT CStaticEx::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const std::optional<LRESULT> painted = PaintMessage(message, wParam)) {
        return *painted;
    }
    const HWND window = Handle();
    switch (message) {
        case WM_NCHITTEST:
            return HTCLIENT;
        case WM_SETCURSOR:
            ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
            return TRUE;
        case WM_MOUSEMOVE:
            OnMouseMove(MousePoint(lParam));
            return 0;
        case WM_CAPTURECHANGED:
            SetHovered(false);
            return 0;
        case WM_LBUTTONDOWN: {
            // Handled here rather than as the static's STN_CLICKED, so the dialog never opens
            // the address a second time.
            RECT client{};
            ::GetClientRect(window, &client);
            if (::PtInRect(&client, MousePoint(lParam)) != FALSE) {
                if (!m_shell.OpenAddress(m_address)) {
                    ZEL_LOG_TEXT(L"xxx CStaticEx: could not open \"%s\"", m_address.c_str());
                }
                Redraw();
            }
            return 0;
        }
        case WM_LBUTTONDBLCLK:
            return 0;
        case WM_SETTEXT:
        case WM_ENABLE: {
            const LRESULT result = CallOriginal(message, wParam, lParam);
            Redraw();
            return result;
        }
        default:
            return CallOriginal(message, wParam, lParam);
    }
}

void CStaticEx::OnMouseMove(POINT point) {
    const HWND window = Handle();
    RECT client{};
    ::GetClientRect(window, &client);
    const bool inside = ::PtInRect(&client, point) != FALSE;
    // The capture tells when the mouse leaves: its moves keep coming here wherever it goes.
    if (!m_hovered && inside) {
        ::SetCapture(window);
        SetHovered(true);
    } else if (m_hovered && !inside) {
        SetHovered(false);
        ::ReleaseCapture();
    }
}

void CStaticEx::SetHovered(bool hovered) {
    if (m_hovered != hovered) {
        m_hovered = hovered;
        Redraw();
    }
}

void CStaticEx::Paint(HDC dc) {
    const HWND window = Handle();
    RECT client{};
    ::GetClientRect(window, &client);
    const int saved = ::SaveDC(dc);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, m_hovered ? kLinkHoverColour : kLinkColour);
    if (const HFONT font = FontOf(window)) {
        ::SelectObject(dc, font);
    }
    const std::wstring text = WindowText(window);
    ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &client,
                TextFormatOf(::GetWindowLongPtrW(window, GWL_STYLE)));
    ::RestoreDC(dc, saved);
}

void CStaticEx::Redraw() const {
    const HWND window = Handle();
    if (window == nullptr) {
        return;
    }
    const HWND parent = ::GetParent(window);
    if (parent == nullptr) {
        ::InvalidateRect(window, nullptr, TRUE);
        return;
    }
    RECT area{};
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(HWND_DESKTOP, parent, reinterpret_cast<POINT*>(&area), 2);
    ::RedrawWindow(parent, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace Orva::Ui
