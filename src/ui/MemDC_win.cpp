#include "ui/MemDC_win.h"

#include <utility>

#include "settings/log/DebugLog.h"

namespace Orva::Ui {

CMemDC::CMemDC(HDC target, const RECT& area) : m_target(target), m_area(area) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (target == nullptr || width <= 0 || height <= 0) {
        return;
    }
    ZelCommon::Platform::unique_hdc dc(::CreateCompatibleDC(target));
    ZelCommon::Platform::unique_hbitmap bitmap(::CreateCompatibleBitmap(target, width, height));
    if (!dc || !bitmap) {
        ZEL_LOG_TEXT(L"xxx CMemDC: no off-screen picture of %dx%d, error %u", width, height,
                     ::GetLastError());
        return;
    }
    m_previousBitmap = ::SelectObject(dc.get(), bitmap.get());
    // The control draws with the target's coordinates; the picture starts at the area's corner.
    ::SetWindowOrgEx(dc.get(), area.left, area.top, nullptr);
    // Text drawn without an explicit font looks as it would on the target.
    ::SelectObject(dc.get(), ::GetCurrentObject(target, OBJ_FONT));
    m_dc = std::move(dc);
    m_bitmap = std::move(bitmap);
}

CMemDC::~CMemDC() {
    if (!m_dc) {
        return;
    }
    ::BitBlt(m_target, m_area.left, m_area.top, m_area.right - m_area.left,
             m_area.bottom - m_area.top, m_dc.get(), m_area.left, m_area.top, SRCCOPY);
    // The memory context must let go of the bitmap before either is deleted.
    ::SelectObject(m_dc.get(), m_previousBitmap);
    ::SelectObject(m_dc.get(), ::GetStockObject(SYSTEM_FONT));
}

}  // namespace Orva::Ui
