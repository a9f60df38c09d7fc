#include "settings/SettingsStartup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/Registry.h"
#include "common_src/platform/Path.h"
#include "settings/DebugLogSwitch.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Settings {
namespace {

using ZelCommon::Storage::SystemProfileApi;

class SettingsStartupTest : public testing::Test {
protected:
    SettingsStartupTest() {
        ZelCommon::Path::CreateFolderWithParents(addinFolder);
        process.SetModuleFilePath(addinFolder + L"ORVA_WLMA.dll");
        process.SetCommonAppDataFolder(temp.Folder(L"ProgramData"));
        ZelCommon::Library::SetHiddenFunctionsEnabled(false);
    }
    ~SettingsStartupTest() override { ZelCommon::Library::SetHiddenFunctionsEnabled(false); }

    void SetInstall(SettingId id, const wchar_t* value) {
        const SettingEntry& entry = Entry(id);
        SystemProfileApi().WriteString(std::wstring(entry.section).c_str(),
                                       std::wstring(entry.key).c_str(), value,
                                       (addinFolder + L"ORVA_WLM.ini").c_str());
    }
    // As the add-in starts: folders, the debug-log switch, then the settings start.
    StartedSettings Start() {
        paths = ComputeSettingsPaths(process, registry);
        CreateSettingsFolders(paths);
        store = std::make_unique<SettingsStore>(SystemProfileApi(), FilesOf(paths, false));
        logSwitchedOn = SwitchOnDebugLog(*store, paths.logFolder, log);
        return StartAddinSettings(*store, paths, L"3.1.0.7", log);
    }

    Testing::TempFolder temp;
    std::wstring addinFolder = temp.Folder(L"Addin");
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Storage::MemoryRegistry registry;
    ZelCommon::Fakes::FakeClock clock{ZelCommon::Fakes::FakeClock::At(2024, 1, 31, 9)};
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    ZelCommon::Library::DebugLog log{clock, process, debugger};
    SettingsPaths paths;
    std::unique_ptr<SettingsStore> store;
    bool logSwitchedOn = false;
};

// The first start applies the presets and writes the start record and the version file; the
// next counts again and keeps what the user chose meanwhile.
TEST_F(SettingsStartupTest, Starts_WriteEveryStartSettingAndKeepTheUsersChoice) {
    SetInstall(SettingId::InstallProtectLevel, L"3");

    const StartedSettings first = Start();

    EXPECT_FALSE(logSwitchedOn);
    EXPECT_FALSE(log.IsLogOn());
    EXPECT_EQ(first.startCount, 1);
    const SettingsStore reread(SystemProfileApi(), store->Files());
    EXPECT_EQ(reread.GetString(SettingId::ProtectLevel), L"3");
    EXPECT_EQ(reread.GetInt(SettingId::SettedPLevel), 1);
    EXPECT_EQ(reread.GetString(SettingId::ORVAWLMVer), L"3.1.0.7");
    EXPECT_EQ(reread.GetString(SettingId::VersionDeployVersion), L"3.1.0.7");
    EXPECT_EQ(reread.GetString(SettingId::VersionPname), L"orva");

    store->SetInt(SettingId::ProtectLevel, 1);
    EXPECT_EQ(Start().startCount, 2);
    EXPECT_EQ(store->GetString(SettingId::ProtectLevel), L"1");
}

TEST_F(SettingsStartupTest, DebugOne_LogsThePresetsItApplies) {
    SetInstall(SettingId::InstallDebug, L"1");
    SetInstall(SettingId::InstallPurgeDays, L"9");

    Start();

    ASSERT_TRUE(logSwitchedOn);
    ASSERT_TRUE(log.IsLogOn());
    EXPECT_TRUE(std::ranges::any_of(debugger.Texts(), [](const std::wstring& line) {
        return line.find(L"[General] PurgeDays=9 applied") != std::wstring::npos;
    }));
}

}  // namespace
}  // namespace Orva::Settings
