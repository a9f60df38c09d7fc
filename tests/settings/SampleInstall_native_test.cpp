#include <gtest/gtest.h>

#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "settings/ProfileLists.h"
#include "settings/SettingsCatalogue.h"

namespace Orva::Settings {
namespace {

// The sample shipped to administrators, found from this source file's place in the checkout.
std::wstring SampleInstallFile() {
    const std::wstring testFolder =
        ZelCommon::Path::FolderOf(ZelCommon::Text::Utf8ToWide(__FILE__));
    return testFolder + L"../../res/sample-install/ORVA_WLM.ini";
}

TEST(SampleInstall, EveryKey_IsAnInstallationSettingOfTheCatalogue) {
    auto& api = ZelCommon::Storage::SystemProfileApi();
    const std::wstring file = SampleInstallFile();
    ASSERT_TRUE(ZelCommon::Path::FileExists(file));
    size_t keys = 0;
    for (const std::wstring& section : ReadSectionNames(api, file)) {
        for (const std::wstring& key : ReadKeyNames(api, file, section)) {
            ++keys;
            EXPECT_TRUE(FindSetting(SettingsFile::Install, section, key).has_value())
                << ZelCommon::Text::WideToUtf8(section) << "/" << ZelCommon::Text::WideToUtf8(key);
        }
    }
    EXPECT_GT(keys, 20u);
}

TEST(SampleInstall, PresetsTheDocumentedExampleLevel) {
    const SettingEntry& level = Entry(SettingId::InstallProtectLevel);
    EXPECT_EQ(ZelCommon::Storage::ReadProfileString(
                  ZelCommon::Storage::SystemProfileApi(), SampleInstallFile(),
                  std::wstring(level.section), std::wstring(level.key), L""),
              L"3");
}

}  // namespace
}  // namespace Orva::Settings
