#include "settings/VersionFile.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"
#include "common_src/ZelCommon/ProfileLists.h"
#include "common_src/platform/Path.h"

namespace Orva::Settings {
namespace {

std::wstring Read(const std::wstring& file, const wchar_t* section, const wchar_t* key) {
    return ZelCommon::Storage::ReadProfileString(ZelCommon::Storage::SystemProfileApi(), file,
                                                 section, key, L"<missing>");
}

// The identification goes to ORVA_OE64 on 64-bit Windows; the deployed version always to ORVA_OE.
TEST(VersionFile, Write_PutsTheIdentificationInTheMachinesSection) {
    for (const bool windows64 : {true, false}) {
        SCOPED_TRACE(windows64);
        Testing::SettingsTestFiles t(windows64);
        ASSERT_TRUE(WriteVersionFile(t.store, L"1.2.3.4"));
        const std::wstring& file = t.files.versionFile;
        const wchar_t* section = windows64 ? L"ORVA_OE64" : L"ORVA_OE";
        EXPECT_EQ(Read(file, section, L"pname"), L"orva");
        EXPECT_EQ(Read(file, section, L"class"), L"WLMA");
        EXPECT_EQ(Read(file, section, L"type"), L"addin");
        EXPECT_EQ(Read(file, L"ORVA_OE", L"DeployVersion"), L"1.2.3.4");
        // Nothing else is written anywhere.
        auto& api = ZelCommon::Storage::SystemProfileApi();
        EXPECT_EQ(ZelCommon::Storage::ReadSectionNames(api, file).size(), windows64 ? 2u : 1u);
        EXPECT_EQ(ZelCommon::Storage::ReadKeyNames(api, file, L"ORVA_OE").size(),
                  windows64 ? 1u : 4u);
    }
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
