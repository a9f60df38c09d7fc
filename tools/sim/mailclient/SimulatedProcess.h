#pragma once

#include <map>
#include <string>

#include "JournalingProfileApi.h"
#include "SimulatedAccounts.h"
#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/platform/WindowMessaging.h"
#include "settings/localisation/StringLoaderServices.h"
#include "settings/log/DebugLog.h"
#include "support/ScratchFolder.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeJournal.h"
#include "support/fakes/platform/FakeLocale.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "support/fakes/platform/JournalDebuggerOutput.h"
#include "support/fakes/plugin/FakeContacts.h"
#include "support/fakes/plugin/FakePluginPorts.h"

namespace Orva::Sim {

// The mail client's process as the add-in sees it: its folders in a scratch folder, the
// profile engine on real files there, a registry and a locale in memory, and windows,
// processes and time simulated. Everything observable goes into one journal, in order.
class SimulatedProcess {
public:
    SimulatedProcess(int mailClientVersion, AccountKind defaultAccount);
    SimulatedProcess(const SimulatedProcess&) = delete;
    SimulatedProcess& operator=(const SimulatedProcess&) = delete;

    Orva::Settings::StringLoaderServices StringServices();

    const std::wstring& AddinFolder() const { return m_addinFolder; }
    ZelCommon::Platform::WindowHandle MainWindow() const { return m_mainWindow; }
    ZelCommon::Platform::WindowHandle AgentWindow();

    // A top-level window titled `title` appears or goes, as another program would make it.
    ZelCommon::Platform::WindowHandle OpenWindow(const std::wstring& title);
    void CloseWindow(ZelCommon::Platform::WindowHandle window);

    ZelCommon::Fakes::ScratchFolder scratch{"orva-mailclient"};
    ZelCommon::Fakes::FakeJournal journal;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Fakes::JournalDebuggerOutput logOutput{journal};
    ZelCommon::Fakes::JournalPlainDebugger debugger{journal};
    ZelCommon::Library::DebugLog log{clock, process, logOutput};
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeProcessLauncher launcher;
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeLocale locale;
    JournalingProfileApi profile;
    ZelCommon::Fakes::FakeMailClientVersion version;
    // The user's address book, which the contact import reads.
    ZelCommon::Fakes::FakeContacts contacts;

private:
    void StartAgent();
    void InstallStringTables();
    // A folder of the simulated machine, created with its parents; ends with the separator.
    std::wstring CreatedFolder(const std::wstring& name) const;

    std::wstring m_addinFolder;
    ZelCommon::Platform::WindowHandle m_mainWindow = 0;
    std::map<ZelCommon::Platform::WindowHandle, std::wstring> m_titles;
};

}  // namespace Orva::Sim
