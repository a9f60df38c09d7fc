#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Ui {

// An off-screen picture of `area` of a target context: the control draws into Dc() with the
// target's coordinates, and the finished picture is copied to the target when this goes, so
// the screen never shows a half-drawn control. When no off-screen bitmap can be made, Dc() is
// the target itself and the drawing goes straight there.
class CMemDC {
public:
    CMemDC(HDC target, const RECT& area);
    ~CMemDC();
    CMemDC(const CMemDC&) = delete;
    CMemDC& operator=(const CMemDC&) = delete;

    HDC Dc() const { return m_dc ? m_dc.get() : m_target; }

private:
    HDC m_target;
    RECT m_area;
    ZelCommon::Platform::unique_hdc m_dc;
    ZelCommon::Platform::unique_hbitmap m_bitmap;
    HGDIOBJ m_previousBitmap = nullptr;
};

}  // namespace Orva::Ui
