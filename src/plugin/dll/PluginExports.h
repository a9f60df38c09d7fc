#pragma once

// The plug-in host's contract with the add-in: two exports, found by name (ordinals 1000 and
// 2000 in the .def file). The host calls them with the C calling convention of its compiler's
// default; neither may throw.
#include <windows.h>

extern "C" {
// Only announces itself on the debugger output and returns TRUE: the real start-up has already
// run when the library was loaded.
BOOL InitializePlugin();
// Hands the add-in the mail client's main window once the host knows it.
void SetWLMBrowserWnd(HWND browserWindow);
}
