#include "plugin/dll/AddinInstance_win.h"

#include <exception>
#include <memory>

#include "plugin/controller/ToolBarWnd_win.h"
#include "plugin/dll/SystemAddin_win.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {
namespace {

HINSTANCE g_module = nullptr;

std::unique_ptr<CSystemAddin>& TheAddin() {
    static std::unique_ptr<CSystemAddin> addin;
    return addin;
}

void LogFailure(const char* step, const char* what) {
    ZelCommon::Library::TheLog().LogText(L"xxx ORVA_WLMA %S failed: %S", step, what);
}

}  // namespace

void RememberAddinModule(HINSTANCE module) {
    g_module = module;
}

void StartAddin() {
    try {
        if (!TheAddin()) {
            TheAddin() = std::make_unique<CSystemAddin>(g_module);
        }
        TheAddin()->App().InitInstance();
    } catch (const std::exception& error) {
        LogFailure("start-up", error.what());
    } catch (...) {
        LogFailure("start-up", "unknown exception");
    }
}

void HandOverMailClientWindow(HWND window) {
    try {
        if (TheAddin()) {
            TheAddin()->App().SetWLMBrowserWnd(
                reinterpret_cast<ZelCommon::Platform::WindowHandle>(window));
        }
    } catch (...) {
        LogFailure("SetWLMBrowserWnd", "exception");
    }
}

void StopAddin() {
    try {
        if (TheAddin()) {
            TheAddin()->App().ExitInstance();
        }
        CToolBarWnd::ReleaseAtUnload(g_module);
    } catch (...) {
        LogFailure("exit", "exception");
    }
    AbandonAddin();
}

void AbandonAddin() {
    // Deliberately never destroyed: its destructors would free libraries and release COM
    // objects under the loader lock.
    static_cast<void>(TheAddin().release());
}

}  // namespace Orva::Plugin
