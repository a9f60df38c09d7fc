#include "plugin/dll/SystemController_win.h"

#include "common_src/platform/Clock.h"
#include "common_src/platform/Event.h"
#include "common_src/platform/Keyboard.h"
#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowMessaging.h"
#include "common_src/platform/WindowProcedureHook.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/host/HostObjects.h"
#include "plugin/controller/LoaderStrings.h"
#include "plugin/controller/MailClientVersion.h"
#include "plugin/controller/PendingParts.h"
#include "plugin/controller/ToolBarWnd_win.h"
#include "settings/probes/OsInfo.h"

namespace Orva::Plugin {
namespace {

using namespace ZelCommon::Platform;

// Owns everything behind the controller window; the window, declared last, goes first.
class CSystemController final : public IControllerHandle {
public:
    explicit CSystemController(const ApplicationContext& context)
        : m_context(context),
          m_log(ZelCommon::Library::TheLog()),
          m_relay(SystemWindowMessaging(), m_log),
          m_host(CreateSystemHostObjects(m_relay, m_log)),
          m_shutdownDone(CreateAutoResetEvent()),
          m_hook(CreateWindowProcedureHook(CToolBarWnd::MainWindowHookProcedure())),
          m_strings(context.strings),
          m_pending(m_log) {}

    bool Open(HINSTANCE module) {
        m_window = CToolBarWnd::Create(
            module,
            [this](IControllerWindow& window) {
                return std::make_unique<CToolBarController>(
                    ControllerPorts{SystemWindowMessaging(), SystemClock(), *m_shutdownDone,
                                    *m_hook, SystemShellOpen(), SystemKeyboard(),
                                    SystemProcessContext(), SystemDebuggerOutput(),
                                    Orva::Settings::SystemOsInfo(), window, *m_host, m_version,
                                    m_log},
                    ControllerParts{m_pending, m_pending, m_pending, m_pending, m_pending,
                                    m_strings, m_context.settings, m_context.agent});
            },
            m_log);
        return m_window != nullptr;
    }

    bool Exists() const override { return m_window && m_window->Exists(); }
    // The exit runs at unload, under the loader lock, where the controller's own close (a wait
    // for the host and COM calls) must not run: the window goes, with its class and the hook on
    // the mail client's window, so nothing calls into the unloaded image; the host's objects are
    // left to the process.
    void Close() override { m_window.reset(); }
    void SetMailClientWindow(WindowHandle window) override {
        if (m_window) {
            m_window->SetMailClientWindow(window);
        }
    }

private:
    ApplicationContext m_context;
    ZelCommon::Library::DebugLog& m_log;
    CHostEventRelay m_relay;
    std::unique_ptr<IHostObjects> m_host;
    std::unique_ptr<IEvent> m_shutdownDone;
    std::unique_ptr<IWindowProcedureHook> m_hook;
    CMailClientVersion m_version;
    CLoaderStrings m_strings;
    CPendingParts m_pending;
    std::unique_ptr<CToolBarWnd> m_window;
};

}  // namespace

std::unique_ptr<IControllerHandle> CreateSystemController(HINSTANCE module,
                                                          const ApplicationContext& context) {
    auto controller = std::make_unique<CSystemController>(context);
    if (!controller->Open(module)) {
        return nullptr;
    }
    return controller;
}

}  // namespace Orva::Plugin
