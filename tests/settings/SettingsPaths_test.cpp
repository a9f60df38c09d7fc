#include "settings/SettingsPaths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/Registry.h"
#include "common_src/platform/AppendFile.h"
#include "common_src/platform/Path.h"
#include "settings/probes/ProbeLog.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Settings {
namespace {

using ZelCommon::Path::kSeparator;
using ZelCommon::Storage::MemoryRegistry;
using ZelCommon::Storage::RegRoot;

std::wstring Native(std::wstring path) {
    std::replace(path.begin(), path.end(), L'/', kSeparator);
    return path;
}

// The last user's identity, else the default user's, else "Default"; an empty or non-text value
// counts as missing, and no key is left open.
TEST(IdentityName, LastThenDefaultUserId_ElseDefault) {
    const struct {
        const char* name;
        const wchar_t* last;  // nullptr: absent
        const wchar_t* byDefault;
        const wchar_t* expected;
    } cases[] = {
        {"no Identities key", nullptr, nullptr, L"Default"},
        {"last wins", L"{LAST}", L"{DEFAULT}", L"{LAST}"},
        {"last missing", nullptr, L"{DEFAULT}", L"{DEFAULT}"},
        {"last empty", L"", L"{DEFAULT}", L"{DEFAULT}"},
        {"both empty", L"", L"", L"Default"},
        {"last a number", L"#7", L"{DEFAULT}", L"{DEFAULT}"},
    };
    for (const auto& each : cases) {
        MemoryRegistry registry;
        if (each.last || each.byDefault) {
            ZelCommon::Storage::Registry key(registry);
            key.Create(RegRoot::CurrentUser, L"Identities", 0);
            if (each.last && each.last[0] == L'#') {
                key.SetDword(L"Last User ID", 7);
            } else if (each.last) {
                key.SetString(L"Last User ID", each.last);
            }
            if (each.byDefault) {
                key.SetString(L"Default User ID", each.byDefault);
            }
        }
        EXPECT_EQ(IdentityName(registry), each.expected) << each.name;
        EXPECT_EQ(registry.OpenHandleCount(), 0u) << each.name;
    }
}

TEST(MakeSettingsPaths, BuildsEveryPathFromTheThreeFacts) {
    const SettingsPaths paths =
        MakeSettingsPaths(Native(L"C:/Addin/"), Native(L"C:/ProgramData"), L"{ID}");
    EXPECT_EQ(paths.addinFolder, Native(L"C:/Addin/"));
    EXPECT_EQ(paths.installFile, Native(L"C:/Addin/ORVA_WLM.ini"));
    EXPECT_EQ(paths.dataRoot, Native(L"C:/ProgramData/Halvion/WLM/"));
    EXPECT_EQ(paths.userFolder, Native(L"C:/ProgramData/Halvion/WLM/Users/{ID}/"));
    EXPECT_EQ(paths.userFile, Native(L"C:/ProgramData/Halvion/WLM/Users/{ID}/ORVA_WLM.ini"));
    EXPECT_EQ(paths.logFolder, Native(L"C:/ProgramData/Halvion/WLM/Users/{ID}/log/"));
    EXPECT_EQ(paths.versionFile, Native(L"C:/ProgramData/ORVA_common/ORVA_version.ini"));
}

// The add-in's folder keeps its final separator; the user's folder is named by the identity.
TEST(ComputeSettingsPaths, ModuleFolderDataFolderAndIdentity_GiveThePaths) {
    Testing::TempFolder temp;
    ZelCommon::Fakes::FakeProcessContext process;
    process.SetModuleFilePath(temp.File(L"ORVA_WLMA.dll"));
    process.SetCommonAppDataFolder(temp.Folder(L"data"));
    MemoryRegistry registry;
    {
        ZelCommon::Storage::Registry key(registry);
        key.Create(RegRoot::CurrentUser, L"Identities", 0);
        key.SetString(L"Last User ID", L"{8E4C}");
    }

    const SettingsPaths paths = ComputeSettingsPaths(process, registry);

    EXPECT_EQ(paths.addinFolder, temp.Path());
    EXPECT_EQ(paths.identity, L"{8E4C}");
    EXPECT_EQ(paths.userFile, temp.Path() + Native(L"data/Halvion/WLM/Users/{8E4C}/ORVA_WLM.ini"));
    EXPECT_TRUE(CreateSettingsFolders(paths));
    EXPECT_TRUE(ZelCommon::Path::FolderExists(paths.userFolder));
}

// Without the common application-data folder nothing of the add-in's may land anywhere, least
// of all in the mail client's current folder.
TEST(ComputeSettingsPaths, NoCommonAppData_LogsItAndNothingCanBeWritten) {
    Testing::TempFolder temp;
    ZelCommon::Fakes::FakeProcessContext process;
    process.SetModuleFilePath(temp.File(L"ORVA_WLMA.dll"));
    ZelCommon::Platform::AppendFile::Open(process.ModuleFilePath()).Write("MZ");
    process.SetCommonAppDataFolder(L"");
    MemoryRegistry registry;
    Testing::ProbeLog log;

    const SettingsPaths paths = ComputeSettingsPaths(process, registry, log.Log());

    EXPECT_THAT(log.Lines(), testing::ElementsAre(testing::StartsWith(L"xxx ")));
    EXPECT_FALSE(CreateSettingsFolders(paths));
    ZelCommon::Storage::IProfileApi& profile = ZelCommon::Storage::SystemProfileApi();
    for (const std::wstring& file : {paths.userFile, paths.versionFile}) {
        EXPECT_FALSE(profile.WriteString(L"General", L"Debug", L"1", file.c_str()));
    }
    EXPECT_FALSE(ZelCommon::Platform::AppendFile::Open(
                     ZelCommon::Path::ChildFile(paths.logFolder, L"ORVAAgent.log"))
                     .IsOpen());
    EXPECT_EQ(paths.addinFolder, temp.Path());
}

}  // namespace
}  // namespace Orva::Settings
