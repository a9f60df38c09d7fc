#include "ui/BitmapSlider_win.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <utility>

#include "settings/log/DebugLog.h"
#include "ui/BitmapFile_win.h"
#include "ui/ControlResourceIds.h"
#include "ui/MemDC_win.h"
#include "ui/ResourceModule_win.h"

namespace Orva::Ui {
namespace {

using ZelCommon::Platform::unique_hbitmap;
using ZelCommon::Platform::unique_hdc;

// The colour both parts of a slider bitmap leave transparent.
constexpr COLORREF kTransparent = RGB(255, 0, 255);
// Drawn when not even the built-in bitmap could be loaded: plain system shapes of this size.
constexpr SliderBitmapLayout kShapesLayout{60, 10, 20};

std::optional<SliderKey> KeyOf(WPARAM virtualKey) {
    switch (virtualKey) {
        case VK_LEFT:
            return SliderKey::Left;
        case VK_RIGHT:
            return SliderKey::Right;
        case VK_UP:
            return SliderKey::Up;
        case VK_DOWN:
            return SliderKey::Down;
        case VK_HOME:
            return SliderKey::Home;
        case VK_END:
            return SliderKey::End;
        case VK_PRIOR:
            return SliderKey::PageUp;
        case VK_NEXT:
            return SliderKey::PageDown;
        default:
            return std::nullopt;
    }
}

RECT ToRect(const SliderBox& box) {
    return RECT{box.left, box.top, box.right, box.bottom};
}

unique_hbitmap LoadBuiltInBitmap() {
    unique_hbitmap bitmap(
        static_cast<HBITMAP>(::LoadImageW(ResourceModule(), MAKEINTRESOURCEW(IDB_ORVA_SLIDER),
                                          IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!bitmap) {
        ZEL_LOG_TEXT(L"xxx CBitmapSlider: no built-in bitmap, error %u", ::GetLastError());
    }
    return bitmap;
}

std::optional<SliderBitmapLayout> LayoutOf(HBITMAP bitmap) {
    BITMAP info{};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof info, &info) == 0) {
        return std::nullopt;
    }
    return SliderBitmapLayout::ForBitmapSize(info.bmWidth, std::abs(info.bmHeight));
}

}  // namespace

CBitmapSlider::~CBitmapSlider() {
    UnsubclassWindow();
}

bool CBitmapSlider::SubclassWindow(HWND control) {
    if (!Attach(control)) {
        return false;
    }
    if (!m_bitmap) {
        SetBitmap({});
    }
    Redraw();
    return true;
}

void CBitmapSlider::UnsubclassWindow() {
    if (Handle() != nullptr && ::GetCapture() == Handle()) {
        ::ReleaseCapture();
    }
    m_dragging = false;
    Detach();
}

void CBitmapSlider::OnWindowGone() {
    m_dragging = false;
}

void CBitmapSlider::SetBitmap(unique_hbitmap bitmap) {
    std::optional<SliderBitmapLayout> layout = LayoutOf(bitmap.get());
    if (!layout) {
        if (bitmap) {
            ZEL_LOG_TEXT(L"xxx CBitmapSlider: the bitmap does not fit the slider's layout");
        }
        bitmap = LoadBuiltInBitmap();
        layout = LayoutOf(bitmap.get());
    }
    m_bitmap = std::move(bitmap);
    m_layout = layout;
    Redraw();
}

unique_hbitmap CBitmapSlider::LoadBitmapFile(const std::wstring& path) {
    return LoadCheckedBitmapFile(path);
}

void CBitmapSlider::SetPos(int position) {
    const int clamped = CSliderRule::Clamp(position);
    if (clamped != m_position) {
        m_position = clamped;
        Redraw();
    }
}

void CBitmapSlider::Redraw() const {
    if (Handle() != nullptr) {
        ::InvalidateRect(Handle(), nullptr, FALSE);
    }
}

void CBitmapSlider::MoveByUser(int position) {
    const int clamped = CSliderRule::Clamp(position);
    if (clamped == m_position) {
        return;
    }
    m_position = clamped;
    Redraw();
    const HWND window = Handle();
    ::SendMessageW(::GetParent(window), WM_COMMAND,
                   MAKEWPARAM(::GetDlgCtrlID(window), kSliderPositionChanged),
                   reinterpret_cast<LPARAM>(window));
}

LRESULT CBitmapSlider::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const std::optional<LRESULT> painted = PaintMessage(message, wParam)) {
        return *painted;
    }
    const HWND window = Handle();
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_NCHITTEST:
            // A static without SS_NOTIFY lets the mouse through to its parent.
            return HTCLIENT;
        case WM_KEYDOWN:
            if (const std::optional<SliderKey> key = KeyOf(wParam)) {
                MoveByUser(CSliderRule::PositionForKey(m_position, *key));
                return 0;
            }
            break;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK: {
            ::SetFocus(window);
            ::SetCapture(window);
            m_dragging = true;
            RECT client{};
            ::GetClientRect(window, &client);
            MoveByUser(CSliderRule::PositionForX(MousePoint(lParam).x, client.right,
                                                 m_layout.value_or(kShapesLayout)));
            return 0;
        }
        case WM_MOUSEMOVE:
            if (m_dragging && ::GetCapture() == window) {
                RECT client{};
                ::GetClientRect(window, &client);
                MoveByUser(CSliderRule::PositionForX(MousePoint(lParam).x, client.right,
                                                     m_layout.value_or(kShapesLayout)));
            }
            return 0;
        case WM_LBUTTONUP:
            if (std::exchange(m_dragging, false)) {
                ::ReleaseCapture();
            }
            return 0;
        case WM_CAPTURECHANGED:
            m_dragging = false;
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
        case WM_SETTEXT:
        case WM_SETFONT:
        case WM_SIZE:
        case WM_UPDATEUISTATE: {
            // The static draws itself directly on some of these; the slider's picture goes
            // back over it.
            const LRESULT result = CallOriginal(message, wParam, lParam);
            Redraw();
            return result;
        }
        default:
            break;
    }
    return CallOriginal(message, wParam, lParam);
}

void CBitmapSlider::Paint(HDC target) {
    const HWND window = Handle();
    RECT client{};
    ::GetClientRect(window, &client);
    CMemDC memory(target, client);
    const HDC dc = memory.Dc();
    // The background is whatever the dialog gives its statics (the pages give white).
    auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(::GetParent(window), WM_CTLCOLORSTATIC,
                                                         reinterpret_cast<WPARAM>(dc),
                                                         reinterpret_cast<LPARAM>(window)));
    ::FillRect(dc, &client, brush != nullptr ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
    if (m_bitmap && m_layout) {
        DrawFromBitmap(dc, client);
    } else {
        DrawWithoutBitmap(dc, client);
    }
    if (::GetFocus() == window) {
        ::DrawFocusRect(dc, &client);
    }
}

void CBitmapSlider::DrawFromBitmap(HDC dc, const RECT& client) {
    const SliderBitmapLayout& layout = *m_layout;
    const unique_hdc source(::CreateCompatibleDC(dc));
    if (!source) {
        DrawWithoutBitmap(dc, client);
        return;
    }
    const HGDIOBJ previous = ::SelectObject(source.get(), m_bitmap.get());
    const SliderBox channel = CSliderRule::ChannelBox(client.right, client.bottom, layout);
    for (const SliderSlice& slice : CSliderRule::ChannelSlices(client.right, layout)) {
        ::TransparentBlt(dc, slice.destLeft, channel.top, slice.destWidth,
                         channel.bottom - channel.top, source.get(), slice.sourceLeft, 0,
                         slice.sourceWidth, layout.height, kTransparent);
    }
    const SliderBox thumb = CSliderRule::ThumbBox(m_position, client.right, client.bottom, layout);
    ::TransparentBlt(dc, thumb.left, thumb.top, thumb.right - thumb.left, thumb.bottom - thumb.top,
                     source.get(), layout.channelWidth, 0, layout.thumbWidth, layout.height,
                     kTransparent);
    ::SelectObject(source.get(), previous);
}

void CBitmapSlider::DrawWithoutBitmap(HDC dc, const RECT& client) const {
    const SliderBitmapLayout& layout = kShapesLayout;
    const SliderBox channel = CSliderRule::ChannelBox(client.right, client.bottom, layout);
    const int middle = (channel.top + channel.bottom) / 2;
    RECT groove{layout.thumbWidth / 2, middle - 2, client.right - layout.thumbWidth / 2,
                middle + 2};
    ::DrawEdge(dc, &groove, EDGE_SUNKEN, BF_RECT);
    for (int position = 0; position < kSliderPositionCount; ++position) {
        const SliderBox zone = CSliderRule::ThumbBox(position, client.right, client.bottom, layout);
        const int centre = (zone.left + zone.right) / 2;
        RECT tick{centre, channel.bottom - 4, centre + 1, channel.bottom};
        ::FillRect(dc, &tick, ::GetSysColorBrush(COLOR_BTNTEXT));
    }
    RECT thumb = ToRect(CSliderRule::ThumbBox(m_position, client.right, client.bottom, layout));
    thumb.bottom -= 5;
    ::FillRect(dc, &thumb, ::GetSysColorBrush(COLOR_BTNFACE));
    ::DrawEdge(dc, &thumb, EDGE_RAISED, BF_RECT);
}

}  // namespace Orva::Ui
