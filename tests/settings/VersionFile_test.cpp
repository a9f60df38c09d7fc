#include "settings/VersionFile.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"
#include "common_src/platform/Path.h"
#include "common_src/ZelCommon/ProfileLists.h"

namespace Orva::Settings {
namespace {

std::wstring Read(const std::wstring& file, const wchar_t* section, const wchar_t* key) {
    return ZelCommon::Storage::ReadProfileString(ZelCommon::Storage::SystemProfileApi(), file,
                                                 section, key, L"<missing>");
}

TEST(VersionFile, Windows64_WritesTheIdentificationToOrvaOe64) {
    Testing::SettingsTestFiles t(true);
    ASSERT_TRUE(WriteVersionFile(t.store, L"1.2.3.4"));
    const std::wstring& file = t.files.versionFile;
    EXPECT_EQ(Read(file, L"ORVA_OE64", L"pname"), L"orva");
    EXPECT_EQ(Read(file, L"ORVA_OE64", L"class"), L"WLMA");
    EXPECT_EQ(Read(file, L"ORVA_OE64", L"type"), L"addin");
    EXPECT_EQ(Read(file, L"ORVA_OE", L"pname"), L"<missing>");
    EXPECT_EQ(Read(file, L"ORVA_OE", L"DeployVersion"), L"1.2.3.4");
}

TEST(VersionFile, Windows32_WritesEverythingToOrvaOe) {
    Testing::SettingsTestFiles t(false);
    ASSERT_TRUE(WriteVersionFile(t.store, L"1.2.3.4"));
    const std::wstring& file = t.files.versionFile;
    EXPECT_EQ(Read(file, L"ORVA_OE", L"pname"), L"orva");
    EXPECT_EQ(Read(file, L"ORVA_OE", L"class"), L"WLMA");
    EXPECT_EQ(Read(file, L"ORVA_OE", L"type"), L"addin");
    EXPECT_EQ(Read(file, L"ORVA_OE", L"DeployVersion"), L"1.2.3.4");
    EXPECT_EQ(ZelCommon::Storage::ReadSectionNames(ZelCommon::Storage::SystemProfileApi(), file),
              std::vector<std::wstring>{L"ORVA_OE"});
}

TEST(VersionFile, MissingSharedFolder_IsCreated) {
    Testing::TempFolder temp;
    const std::wstring file = temp.Folder(L"ORVA_common") + L"ORVA_version.ini";
    SettingsStore store(ZelCommon::Storage::SystemProfileApi(),
                        SettingsFiles{L"", L"", file, false});
    ASSERT_TRUE(WriteVersionFile(store, L"9.9"));
    EXPECT_TRUE(ZelCommon::Path::FileExists(file));
    EXPECT_EQ(Read(file, L"ORVA_OE", L"DeployVersion"), L"9.9");
}

}  // namespace
}  // namespace Orva::Settings
