#include "SimulatedProcess.h"

#include <filesystem>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Path.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Sim {

using ZelCommon::Platform::WindowHandle;

namespace {

constexpr uint32_t kCloseMessage = 16;  // WM_CLOSE

}  // namespace

SimulatedProcess::SimulatedProcess(int mailClientVersion, AccountKind defaultAccount)
    : profile(ZelCommon::Storage::SystemProfileApi()), version(mailClientVersion) {
    m_addinFolder = CreatedFolder(L"Addin");
    process.SetModuleFilePath(ZelCommon::Path::ChildFile(m_addinFolder, L"ORVA_WLMA.dll"));
    process.SetCommonAppDataFolder(CreatedFolder(L"ProgramData"));
    process.SetLocalAppDataFolder(CreatedFolder(L"LocalAppData"));
    CreateMailAccounts(process.LocalAppDataFolder(), defaultAccount, registry);
    // A quiet Sunday morning, so that the log's head and the daily log file are the same on
    // every run.
    clock.Set(ZelCommon::Fakes::FakeClock::At(2026, 11, 22, 9, 30));
    clock.SetJournal(&journal);
    messaging.SetJournal(&journal);
    launcher.SetJournal(&journal);
    launcher.onLaunch = [this] { StartAgent(); };

    // The deployment asks for the debug log, so that the run shows the add-in's own trace.
    profile.WriteString(L"General", L"Debug", L"1",
                        ZelCommon::Path::ChildFile(m_addinFolder, L"ORVA_WLM.ini").c_str());
    m_mainWindow = messaging.AddWindow(L"", std::wstring(Orva::Plugin::kMailClientMainClass));
    InstallStringTables();
}

// The product installs its string tables below the installation folder, which the registry does
// not name here, so the loader looks in the default one.
void SimulatedProcess::InstallStringTables() {
    using ZelCommon::Path::ChildFolder;
    const std::wstring tables = ChildFolder(
        ChildFolder(ChildFolder(StringServices().defaultInstallFolder, L"ORVA"), L"Resource"),
        L"x86");
    std::filesystem::create_directories(tables);
    std::filesystem::copy(ORVA_SHIPPED_RESOURCES, tables,
                          std::filesystem::copy_options::recursive |
                              std::filesystem::copy_options::overwrite_existing);
}

std::wstring SimulatedProcess::CreatedFolder(const std::wstring& name) const {
    const std::wstring folder = scratch.Folder(name);
    ZelCommon::Path::CreateFolderWithParents(folder);
    return folder;
}

Orva::Settings::StringLoaderServices SimulatedProcess::StringServices() {
    return Orva::Settings::StringLoaderServices{
        profile, registry, locale, process, log, [] { return false; }, CreatedFolder(L"Install")};
}

WindowHandle SimulatedProcess::AgentWindow() {
    return messaging.FindByTitle(std::wstring(Orva::Plugin::kAgentWindowTitle));
}

WindowHandle SimulatedProcess::OpenWindow(const std::wstring& title) {
    journal.Add(L"window opens " + title);
    const WindowHandle window = messaging.AddWindow(title);
    m_titles[window] = title;
    return window;
}

void SimulatedProcess::CloseWindow(WindowHandle window) {
    messaging.RemoveWindow(window);
    journal.Add(L"window closes " + m_titles[window]);
    m_titles.erase(window);
}

// The agent's window appears once its process runs; it leaves when the mail client closes it.
void SimulatedProcess::StartAgent() {
    if (AgentWindow() != 0) {
        return;
    }
    const WindowHandle agent = OpenWindow(std::wstring(Orva::Plugin::kAgentWindowTitle));
    messaging.SetHandler(agent, [this, agent](const auto& message) -> intptr_t {
        if (message.message == kCloseMessage) {
            CloseWindow(agent);
        }
        return 0;
    });
}

}  // namespace Orva::Sim
