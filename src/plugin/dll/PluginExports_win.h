#pragma once

// The plug-in host's contract with the add-in: two exports, found by name (ordinals 1000 and
// 2000 in the .def file). The host calls them with the C calling convention of its compiler's
// default; neither may throw.
#include <windows.h>

extern "C" {
// Announces itself on the debugger output and returns TRUE. The add-in's start-up runs before,
// once, at the first call into the library after it was loaded.
BOOL InitializePlugin();
// Hands the add-in the mail client's main window once the host knows it; nothing when the
// controller window could not be created or is already closed.
void SetWLMBrowserWnd(HWND browserWindow);
}
