#include "plugin/ORVA_WLMAApp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/platform/Path.h"
#include "plugin/protocol/AgentProtocol.h"
#include "settings/SettingsCatalogue.h"
#include "settings/SettingsPaths.h"
#include "settings/SettingsStore.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeLocale.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/platform/FakeWindowMessaging.h"

namespace Orva::Plugin {
namespace {

using ZelCommon::Storage::SystemProfileApi;

// The controller window as the application sees it, with what had happened when it opened.
struct ControllerRecord {
    bool opens = true;
    bool exists = false;
    int openCalls = 0;
    int closes = 0;
    std::vector<ZelCommon::Platform::WindowHandle> mailClientWindows;
    std::size_t launchesBeforeOpen = 0;
    std::vector<std::wstring> debuggerBeforeOpen;
    bool userFileBeforeOpen = true;
};

class ApplicationTest : public testing::Test {
protected:
    class RecordedController final : public IControllerHandle {
    public:
        explicit RecordedController(ApplicationTest& test) : m_test(test) {}
        bool Open() override {
            ControllerRecord& record = m_test.controller;
            ++record.openCalls;
            record.launchesBeforeOpen = m_test.launcher.Launches().size();
            record.debuggerBeforeOpen = m_test.debugger.Texts();
            record.userFileBeforeOpen = ZelCommon::Path::FileExists(m_test.paths.userFile);
            record.exists = record.opens;
            return record.opens;
        }
        bool Exists() const override { return m_test.controller.exists; }
        void Close() override {
            ++m_test.controller.closes;
            m_test.controller.exists = false;
        }
        void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) override {
            m_test.controller.mailClientWindows.push_back(window);
        }

    private:
        ApplicationTest& m_test;
    };

    // The add-in's module in a folder of its own, the machine's data folder in the scratch folder.
    ZelCommon::Fakes::FakeProcessContext AddinProcess() {
        ZelCommon::Path::CreateFolderWithParents(addinFolder);
        ZelCommon::Fakes::FakeProcessContext addin;
        addin.SetModuleFilePath(addinFolder + L"ORVA_WLMA.dll");
        addin.SetCommonAppDataFolder(temp.Folder(L"ProgramData"));
        return addin;
    }

    CORVA_WLMAApp& App() {
        if (!app) {
            app = std::make_unique<CORVA_WLMAApp>(ApplicationParts{
                process, debugger, log, paths, settings, agent, strings, recorded});
        }
        return *app;
    }

    int32_t StartCount() { return settings.GetInt(Orva::Settings::SettingId::ORVAStartTimes); }

    Testing::TempFolder temp;
    std::wstring addinFolder = temp.Folder(L"Addin");
    ZelCommon::Fakes::FakeProcessContext process = AddinProcess();
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessLauncher launcher;
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeLocale locale;
    ZelCommon::Library::DebugLog log{clock, process, debugger};
    Orva::Settings::SettingsPaths paths = Orva::Settings::ComputeSettingsPaths(process, registry);
    Orva::Settings::SettingsStore settings{SystemProfileApi(),
                                           Orva::Settings::FilesOf(paths, false)};
    CAgentLink agent{messaging, clock, launcher, log, paths.addinFolder};
    ZelResourceStringLoader strings{
        Orva::Settings::StringLoaderServices{SystemProfileApi(), registry, locale, process, log,
                                             [] { return false; }, temp.Folder(L"Install")}};
    ControllerRecord controller;
    RecordedController recorded{*this};
    std::unique_ptr<CORVA_WLMAApp> app;
};

// Agent, language module, controller, then the settings; a second call starts nothing again.
TEST_F(ApplicationTest, InitInstance_StartsEachPartOnceInItsOrder) {
    App().InitInstance();
    App().InitInstance();

    ASSERT_EQ(controller.openCalls, 1);
    EXPECT_EQ(controller.launchesBeforeOpen, 1u);
    ASSERT_EQ(launcher.Launches().size(), 1u);
    EXPECT_EQ(launcher.Launches()[0].commandLine,
              L"\"" + addinFolder + L"ORVA_WLM.exe\" " + std::wstring(kAgentWindowTitle));
    // No resource folder exists here: the MUI step says so and start-up goes on.
    EXPECT_EQ(controller.debuggerBeforeOpen,
              std::vector<std::wstring>{L"Failed to get mui resource folder path!!"});
    EXPECT_TRUE(ZelCommon::Path::FolderExists(paths.dataRoot));
    EXPECT_FALSE(controller.userFileBeforeOpen);
    EXPECT_EQ(StartCount(), 1);
    EXPECT_TRUE(ZelCommon::Path::FileExists(paths.versionFile));
}

TEST_F(ApplicationTest, DebugOne_AFailedAgentLaunchReachesTheLog) {
    SystemProfileApi().WriteString(L"General", L"Debug", L"1", paths.installFile.c_str());
    launcher.SetResult(false);

    App().InitInstance();

    const std::vector<std::wstring> lines = debugger.Texts();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const std::wstring& line) {
        return line.find(L"Failed to create ORVA_WLM.exe") != std::wstring::npos;
    }));
}

TEST_F(ApplicationTest, NoControllerWindow_StartUpStillFinishes) {
    controller.opens = false;
    App().InitInstance();
    EXPECT_EQ(StartCount(), 1);
}

TEST_F(ApplicationTest, SetWLMBrowserWnd_ReachesOnlyAnExistingController) {
    App().SetWLMBrowserWnd(0x11);
    App().InitInstance();
    App().SetWLMBrowserWnd(0x22);
    controller.exists = false;
    App().SetWLMBrowserWnd(0x33);

    EXPECT_EQ(controller.mailClientWindows, std::vector<ZelCommon::Platform::WindowHandle>{0x22});
}

TEST_F(ApplicationTest, ExitInstance_ClosesTheControllerOnlyWhileItExists) {
    App().InitInstance();
    App().ExitInstance();
    EXPECT_EQ(controller.closes, 1);

    controller = ControllerRecord{};
    app.reset();
    App().InitInstance();
    controller.exists = false;  // the mail client's shut-down already closed it
    App().ExitInstance();
    EXPECT_EQ(controller.closes, 0);
}

}  // namespace
}  // namespace Orva::Plugin
