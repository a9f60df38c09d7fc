#include "tools/screens/WindowCapture_win.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Screens {

using ZelCommon::Platform::unique_hbitmap;
using ZelCommon::Platform::unique_hdc;

bool CaptureWindow(HWND window, const std::wstring& bmpFile) {
    RECT box{};
    if (!::GetWindowRect(window, &box)) {
        return false;
    }
    const int width = box.right - box.left;
    const int height = box.bottom - box.top;
    const HDC screen = ::GetDC(nullptr);
    unique_hdc memory(::CreateCompatibleDC(screen));
    unique_hbitmap picture(::CreateCompatibleBitmap(screen, width, height));
    const HGDIOBJ previous = ::SelectObject(memory.get(), picture.get());
    ::BitBlt(memory.get(), 0, 0, width, height, screen, box.left, box.top, SRCCOPY | CAPTUREBLT);
    ::SelectObject(memory.get(), previous);

    BITMAPINFOHEADER info{};
    info.biSize = sizeof(info);
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    const auto rows = static_cast<UINT>(height);
    const DWORD stride = ((static_cast<DWORD>(width) * 3) + 3) & ~3u;
    std::vector<BYTE> pixels(static_cast<size_t>(stride) * rows);
    const int lines = ::GetDIBits(screen, picture.get(), 0, rows, pixels.data(),
                                  reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, screen);
    if (lines != height) {
        return false;
    }

    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = file.bfOffBits + static_cast<DWORD>(pixels.size());
    std::ofstream out(std::filesystem::path(bmpFile), std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof(file));
    out.write(reinterpret_cast<const char*>(&info), sizeof(info));
    out.write(reinterpret_cast<const char*>(pixels.data()),
              static_cast<std::streamsize>(pixels.size()));
    return static_cast<bool>(out);
}

}  // namespace Orva::Screens
