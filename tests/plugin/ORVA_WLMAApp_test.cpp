#include "plugin/ORVA_WLMAApp.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeLocale.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "common_src/platform/Path.h"
#include "plugin/protocol/AgentProtocol.h"
#include "settings/SettingsCatalogue.h"
#include "support/TempFolder.h"

namespace Orva::Plugin {
namespace {

using ZelCommon::Storage::SystemProfileApi;

// The controller window as the application sees it, with what happened to it.
struct ControllerRecord {
    bool exists = true;
    int closes = 0;
    std::vector<ZelCommon::Platform::WindowHandle> mailClientWindows;
};

class RecordedController final : public IControllerHandle {
public:
    explicit RecordedController(ControllerRecord& record) : m_record(record) {}
    bool Exists() const override { return m_record.exists; }
    void Close() override {
        ++m_record.closes;
        m_record.exists = false;
    }
    void SetMailClientWindow(ZelCommon::Platform::WindowHandle window) override {
        m_record.mailClientWindows.push_back(window);
    }

private:
    ControllerRecord& m_record;
};

class ApplicationTest : public testing::Test {
protected:
    ApplicationTest() {
        ZelCommon::Path::CreateFolderWithParents(addinFolder);
        process.SetModuleFilePath(addinFolder + L"ORVA_WLMA.dll");
        process.SetCommonAppDataFolder(temp.Folder(L"ProgramData"));
    }

    CORVA_WLMAApp& App() {
        if (!app) {
            app = std::make_unique<CORVA_WLMAApp>(
                ApplicationPorts{process, debugger, messaging, clock, launcher, registry,
                                 SystemProfileApi(), log,
                                 Orva::Settings::StringLoaderServices{
                                     SystemProfileApi(), registry, locale, process, log,
                                     [] { return false; }, temp.Folder(L"Install")}},
                [this](const ApplicationContext& context) -> std::unique_ptr<IControllerHandle> {
                    OnControllerCreated(context);
                    if (!createsController) {
                        return nullptr;
                    }
                    return std::make_unique<RecordedController>(controller);
                });
        }
        return *app;
    }

    // What had already happened when the controller was created.
    void OnControllerCreated(const ApplicationContext& context) {
        ++controllersCreated;
        launchesBeforeController = launcher.Launches().size();
        debuggerBeforeController = debugger.Texts();
        userFileBeforeController = ZelCommon::Path::FileExists(context.paths.userFile);
        addinFolderSeen = context.agent.PluginFolder();
    }

    int32_t StartCount() {
        return Orva::Settings::SettingsStore(SystemProfileApi(),
                                             Orva::Settings::FilesOf(App().Paths(), false))
            .GetInt(Orva::Settings::SettingId::ORVAStartTimes);
    }

    Testing::TempFolder temp;
    std::wstring addinFolder = temp.Folder(L"Addin");
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessLauncher launcher;
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeLocale locale;
    ZelCommon::Library::DebugLog log{clock, process, debugger};

    bool createsController = true;
    ControllerRecord controller;
    int controllersCreated = 0;
    std::size_t launchesBeforeController = 0;
    std::vector<std::wstring> debuggerBeforeController;
    bool userFileBeforeController = true;
    std::wstring addinFolderSeen;
    std::unique_ptr<CORVA_WLMAApp> app;
};

TEST_F(ApplicationTest, InitInstance_LaunchesTheAgentLoadsTheMuiThenCreatesTheController) {
    App().InitInstance();

    ASSERT_EQ(controllersCreated, 1);
    EXPECT_EQ(launchesBeforeController, 1u);
    ASSERT_EQ(launcher.Launches().size(), 1u);
    EXPECT_EQ(launcher.Launches()[0].commandLine,
              L"\"" + addinFolder + L"ORVA_WLM.exe\" " + std::wstring(kAgentWindowTitle));
    EXPECT_EQ(addinFolderSeen, addinFolder);
    // No resource folder exists here: the MUI step says so and start-up goes on.
    EXPECT_EQ(debuggerBeforeController,
              std::vector<std::wstring>{L"Failed to get mui resource folder path!!"});
    EXPECT_TRUE(ZelCommon::Path::FolderExists(App().Paths().dataRoot));
}

TEST_F(ApplicationTest, InitInstance_StartsTheSettingsAfterTheController) {
    App().InitInstance();

    EXPECT_FALSE(userFileBeforeController);
    EXPECT_EQ(StartCount(), 1);
    EXPECT_TRUE(ZelCommon::Path::FileExists(App().Paths().versionFile));
}

TEST_F(ApplicationTest, InitInstance_RunsOnce) {
    App().InitInstance();
    App().InitInstance();

    EXPECT_EQ(controllersCreated, 1);
    EXPECT_EQ(launcher.Launches().size(), 1u);
    EXPECT_EQ(StartCount(), 1);
}

TEST_F(ApplicationTest, NoControllerWindow_StartUpStillFinishes) {
    createsController = false;
    App().InitInstance();
    App().SetWLMBrowserWnd(0x42);
    App().ExitInstance();

    EXPECT_FALSE(App().HasController());
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
