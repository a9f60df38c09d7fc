#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "ScriptedOsInfo.h"
#include "SimulatedDialogs.h"
#include "SimulatedMessageLoop.h"
#include "SimulatedProcess.h"
#include "mailstore/SpamFolderStrings.h"
#include "mailstore/SpamMailFolder.h"
#include "plugin/ORVA_WLMAApp.h"
#include "plugin/controller/MailClientAccountCheck.h"
#include "plugin/controller/MailStoreSpamFolder.h"
#include "plugin/controller/RibbonToolbar.h"
#include "plugin/controller/ToolBarController.h"
#include "settings/localisation/LoaderStrings.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/plugin/FakePluginPorts.h"

namespace Orva::Sim {

// The controller window in the simulated process: a window of the controller's class and title
// that hands every message to the real CToolBarController, which works on recording fakes of
// the host and of the add-in's parts, and on the real ribbon, texts, account check and spam
// folder over the fake host, the simulated machine and the user's simulated mail store. Messages
// arrive as Windows delivers them: a send runs at once, a post waits in the message loop. Opened
// with WM_CREATE; WM_CLOSE destroys it.
class SimulatedControllerWindow final : public Orva::Plugin::IControllerHandle {
public:
    SimulatedControllerWindow(SimulatedProcess& process, SimulatedMessageLoop& loop,
                              Orva::Settings::SettingsStore& settings,
                              Orva::Plugin::CAgentLink& agent, ZelResourceStringLoader& strings,
                              const std::wstring& installFile,
                              Orva::MailStore::IMailStoreFactory& store,
                              const std::wstring& dataFolder);
    ~SimulatedControllerWindow() override;
    SimulatedControllerWindow(const SimulatedControllerWindow&) = delete;
    SimulatedControllerWindow& operator=(const SimulatedControllerWindow&) = delete;

    bool Open() override;
    bool Exists() const override;
    void Close() override;
    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) override;

    // WM_COPYDATA from another process: always sent, with its record.
    intptr_t SendCopyData(uintptr_t copyDataId, std::span<const std::byte> record);
    // A second goes by: each running timer of the window fires once.
    void LetTimersFire();

    ZelCommon::Platform::WindowHandle Handle() const { return m_window; }
    const Orva::Plugin::CToolBarController& Controller() const { return m_controller; }
    bool HasClassicBand() const { return m_classic.IsBuilt(); }
    // What the host's ribbon was given.
    const ZelCommon::Fakes::FakeHostToolbar& Toolbar() const { return m_host.toolbar; }

private:
    intptr_t OnMessage(const ZelCommon::Fakes::FakeWindowMessaging::Message& message);
    intptr_t WindowProcedure(const Orva::Plugin::ControllerMessageData& data);
    void Destroy();

    SimulatedProcess& m_process;
    SimulatedMessageLoop& m_loop;
    ZelCommon::Fakes::FakeHostObjects m_host;
    Orva::Settings::CLoaderStrings m_strings;
    Orva::Plugin::CRibbonToolbar m_ribbon;
    ZelCommon::Fakes::FakeClassicBand m_classic;
    Orva::Plugin::CMailClientAccountCheck m_account;
    ZelResourceStringLoader m_spamFolderLoader;
    Orva::MailStore::CLoaderSpamFolderStrings m_spamFolderStrings;
    Orva::MailStore::CSpamMailFolder m_spamMailFolder;
    Orva::Plugin::CMailStoreSpamFolder m_spamFolder;
    ZelCommon::Fakes::FakeCommandDialogs m_dialogs;
    SimulatedDialogs m_importingDialogs;
    ZelCommon::Fakes::FakeControllerWindow m_calls;
    ZelCommon::Fakes::FakeEvent m_shutdownDone;
    ZelCommon::Fakes::FakeWindowProcedureHook m_hook;
    ZelCommon::Fakes::FakeShellOpen m_shell;
    ZelCommon::Fakes::FakeKeyboard m_keyboard;
    ScriptedOsInfo m_os;
    Orva::Plugin::CToolBarController m_controller;
    ZelCommon::Platform::WindowHandle m_window = 0;
    std::shared_ptr<int> m_lifetime = std::make_shared<int>(0);
};

}  // namespace Orva::Sim
