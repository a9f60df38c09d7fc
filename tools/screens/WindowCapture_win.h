#pragma once

#include <windows.h>

#include <string>

namespace Orva::Screens {

// Saves what the screen shows of `window`, frame included, as a 24-bit BMP file.
bool CaptureWindow(HWND window, const std::wstring& bmpFile);

}  // namespace Orva::Screens
