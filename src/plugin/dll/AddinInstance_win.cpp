#include "plugin/dll/AddinInstance_win.h"

#include <exception>
#include <memory>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessContext.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/WindowMessaging.h"
#include "plugin/ORVA_WLMAApp.h"
#include "plugin/controller/ToolBarWnd_win.h"
#include "plugin/dll/SystemController_win.h"
#include "settings/log/DebugLog.h"
#include "settings/localisation/StringLoaderServices.h"

namespace Orva::Plugin {
namespace {

HINSTANCE g_module = nullptr;

std::unique_ptr<CORVA_WLMAApp>& TheApp() {
    static std::unique_ptr<CORVA_WLMAApp> app;
    return app;
}

std::unique_ptr<CORVA_WLMAApp> MakeApp() {
    using namespace ZelCommon::Platform;
    return std::make_unique<CORVA_WLMAApp>(
        ApplicationPorts{SystemProcessContext(), SystemDebuggerOutput(), SystemWindowMessaging(),
                         SystemClock(), SystemProcessLauncher(),
                         ZelCommon::Storage::SystemRegistryApi(),
                         ZelCommon::Storage::SystemProfileApi(), ZelCommon::Library::TheLog(),
                         Orva::Settings::SystemStringLoaderServices()},
        [](const ApplicationContext& context) {
            return CreateSystemController(g_module, context);
        });
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
        if (!TheApp()) {
            TheApp() = MakeApp();
        }
        TheApp()->InitInstance();
    } catch (const std::exception& error) {
        LogFailure("start-up", error.what());
    } catch (...) {
        LogFailure("start-up", "unknown exception");
    }
}

void HandOverMailClientWindow(HWND window) {
    try {
        if (TheApp()) {
            TheApp()->SetWLMBrowserWnd(reinterpret_cast<ZelCommon::Platform::WindowHandle>(window));
        }
    } catch (...) {
        LogFailure("SetWLMBrowserWnd", "exception");
    }
}

void StopAddin() {
    try {
        if (TheApp()) {
            TheApp()->ExitInstance();
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
    static_cast<void>(TheApp().release());
}

}  // namespace Orva::Plugin
