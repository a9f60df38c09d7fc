#include "SimulatedControllerWindow.h"

#include <exception>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

#include "common_src/platform/WideFormat.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {

using Orva::Plugin::ControllerMessageData;
using ZelCommon::Fakes::FakeWindowMessaging;
using ZelCommon::Platform::WindowHandle;
namespace Message = Orva::Plugin::ControllerMessage;

SimulatedControllerWindow::SimulatedControllerWindow(
    SimulatedProcess& process, SimulatedMessageLoop& loop, Orva::Settings::SettingsStore& settings,
    Orva::Plugin::CAgentLink& agent, ZelResourceStringLoader& strings,
    const std::wstring& installFile, Orva::MailStore::IMailStoreFactory& store,
    const std::wstring& dataFolder)
    : m_process(process),
      m_loop(loop),
      m_strings(strings, installFile, process.profile),
      m_ribbon(m_host.toolbar, m_strings, process.process,
               process.StringServices().defaultInstallFolder, process.log),
      m_account({process.registry, process.process, process.log}),
      m_spamFolderLoader(process.StringServices()),
      m_spamFolderStrings(m_spamFolderLoader, process.profile, installFile),
      m_spamMailFolder({store, m_spamFolderStrings, settings, process.process, process.log,
                        Orva::MailStore::NoAccountManagerWatcher()}),
      m_spamFolder(m_spamMailFolder, process.log),
      m_importingDialogs(m_dialogs, process, m_strings, dataFolder),
      m_controller(
          Orva::Plugin::ControllerPorts{process.messaging, process.clock, m_shutdownDone, m_hook,
                                        m_shell, m_keyboard, process.process, process.debugger,
                                        m_os, m_host, process.version, process.log},
          Orva::Plugin::ControllerParts{m_ribbon, m_classic, m_spamFolder, m_account,
                                        m_importingDialogs, m_strings, settings, agent},
          m_calls) {
    ZelCommon::Fakes::FakeJournal* journal = &process.journal;
    for (ZelCommon::Fakes::JournalNotes* fake :
         std::initializer_list<ZelCommon::Fakes::JournalNotes*>{
             &m_host, &m_classic, &m_dialogs, &m_calls, &m_shutdownDone, &m_hook, &m_shell}) {
        fake->SetJournal(journal);
    }
    // The mail client 14 has its rebar from the start, so the classic band goes in at once.
    m_classic.SetRebarPresent(true);
}

bool SimulatedControllerWindow::Open() {
    SimulatedProcess& process = m_process;
    m_window = process.messaging.AddWindow(std::wstring(Orva::Plugin::kControllerWindowTitle),
                                           std::wstring(Orva::Plugin::kControllerClassName));
    m_controller.SetWindow(m_window);
    process.messaging.SetHandler(m_window, [this](const FakeWindowMessaging::Message& message) {
        return OnMessage(message);
    });
    process.messaging.Send(m_window, Message::Create, 0, 0);
    return true;
}

SimulatedControllerWindow::~SimulatedControllerWindow() {
    if (Exists()) {
        Destroy();
    }
}

bool SimulatedControllerWindow::Exists() const {
    return m_window != 0 && m_process.messaging.Exists(m_window);
}

void SimulatedControllerWindow::Close() {
    m_process.messaging.Send(m_window, Message::Close, 0, 0);
}

void SimulatedControllerWindow::SetMailClientWindow(WindowHandle window) {
    m_controller.SetMailClientWindow(window);
}

intptr_t SimulatedControllerWindow::SendCopyData(uintptr_t copyDataId,
                                                 std::span<const std::byte> record) {
    if (!Exists()) {
        m_process.journal.Add(L"copy data: no controller window");
        return 0;
    }
    m_process.journal.Add(ZelCommon::Text::Format(L"send %s %u copy data %Iu, %Iu bytes",
                                                  Orva::Plugin::kControllerWindowTitle,
                                                  Message::CopyData, copyDataId, record.size()));
    return WindowProcedure({Message::CopyData, 0, 0, copyDataId, record});
}

void SimulatedControllerWindow::LetTimersFire() {
    if (Exists() && m_calls.HasTimer(Orva::Plugin::kMainWindowTimerId)) {
        m_process.journal.Add(
            ZelCommon::Text::Format(L"timer %Iu fires", Orva::Plugin::kMainWindowTimerId));
        WindowProcedure({Message::Timer, Orva::Plugin::kMainWindowTimerId, 0, 0, {}});
    }
}

intptr_t SimulatedControllerWindow::OnMessage(const FakeWindowMessaging::Message& message) {
    const ControllerMessageData data{message.message, message.wParam, message.lParam, 0, {}};
    if (message.delivery == FakeWindowMessaging::Delivery::Sent) {
        return WindowProcedure(data);
    }
    // Windows drops what is still queued for a window that is gone, and so does the loop for
    // a window whose object is gone.
    m_loop.Post([this, data, alive = std::weak_ptr<int>(m_lifetime)] {
        if (!alive.expired() && Exists()) {
            WindowProcedure(data);
        }
    });
    return 0;
}

intptr_t SimulatedControllerWindow::WindowProcedure(const ControllerMessageData& data) {
    try {
        if (const std::optional<intptr_t> result = m_controller.Dispatch(data)) {
            return *result;
        }
        // The default processing: only WM_CLOSE does something, it destroys the window.
        if (data.message == Message::Close) {
            Destroy();
        }
    } catch (const std::exception& error) {
        m_process.journal.Add(
            ZelCommon::Text::Format(L"exception in the window procedure: %S", error.what()));
    } catch (...) {
        m_process.journal.Add(L"exception in the window procedure");
    }
    return 0;
}

void SimulatedControllerWindow::Destroy() {
    m_process.messaging.RemoveWindow(m_window);
    m_process.journal.Add(L"window destroyed " +
                          std::wstring(Orva::Plugin::kControllerWindowTitle));
}

}  // namespace Orva::Sim
