#include "plugin/dll/PluginExports.h"

extern "C" BOOL InitializePlugin() {
    OutputDebugStringW(L"ORVA InitializePlugin()");
    return TRUE;
}

extern "C" void SetWLMBrowserWnd(HWND /*browserWindow*/) {
    // The controller window that keeps this handle is not created yet in this build.
}
