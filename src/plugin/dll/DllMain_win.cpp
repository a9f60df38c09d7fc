#include <windows.h>

#include "plugin/dll/AddinInstance_win.h"

// Runs under the loader lock: only bookkeeping here (see AddinInstance_win.h).
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved) {
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            // Thread notifications stay on: the statically linked runtime keeps per-thread data.
            Orva::Plugin::RememberAddinModule(module);
            break;
        case DLL_PROCESS_DETACH:
            if (reserved == nullptr) {
                Orva::Plugin::StopAddin();
            } else {
                Orva::Plugin::AbandonAddin();
            }
            break;
        default:
            break;
    }
    return TRUE;
}
