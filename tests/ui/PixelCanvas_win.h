#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Testing {

// A memory context over a bitmap filled with one colour, for a control to paint into
// (WM_PRINTCLIENT or a forwarded draw) and the test to read back pixel by pixel.
class PixelCanvas {
public:
    PixelCanvas(int width, int height, COLORREF fill) : m_dc(::CreateCompatibleDC(nullptr)) {
        const HDC screen = ::GetDC(nullptr);
        m_bitmap.reset(::CreateCompatibleBitmap(screen, width, height));
        ::ReleaseDC(nullptr, screen);
        m_previous = ::SelectObject(m_dc.get(), m_bitmap.get());
        ZelCommon::Platform::unique_hbrush brush(::CreateSolidBrush(fill));
        const RECT all{0, 0, width, height};
        ::FillRect(m_dc.get(), &all, brush.get());
    }
    ~PixelCanvas() { ::SelectObject(m_dc.get(), m_previous); }
    PixelCanvas(const PixelCanvas&) = delete;
    PixelCanvas& operator=(const PixelCanvas&) = delete;

    HDC Dc() const { return m_dc.get(); }
    COLORREF Pixel(int x, int y) const { return ::GetPixel(m_dc.get(), x, y); }
    // How many pixels of the rectangle have this colour.
    int Count(const RECT& area, COLORREF colour) const {
        int count = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                count += Pixel(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }

private:
    ZelCommon::Platform::unique_hdc m_dc;
    ZelCommon::Platform::unique_hbitmap m_bitmap;
    HGDIOBJ m_previous = nullptr;
};

}  // namespace Orva::Testing
