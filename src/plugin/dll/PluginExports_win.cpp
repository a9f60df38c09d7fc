#include "plugin/dll/PluginExports_win.h"

#include "plugin/dll/AddinInstance_win.h"

extern "C" BOOL InitializePlugin() {
    // The host calls this first, right after loading: the first moment the start-up may run.
    Orva::Plugin::StartAddin();
    OutputDebugStringW(L"ORVA InitializePlugin()");
    return TRUE;
}

extern "C" void SetWLMBrowserWnd(HWND browserWindow) {
    Orva::Plugin::StartAddin();
    Orva::Plugin::HandOverMailClientWindow(browserWindow);
}
