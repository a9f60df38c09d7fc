#include <gtest/gtest.h>

#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/ProfileLists.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "settings/SettingsCatalogue.h"
#include "settings/localisation/OnlineHelpAddress.h"
#include "support/SourceRoot.h"

namespace Orva::Settings {
namespace {

// The sample shipped to administrators.
std::wstring SampleInstallFile() {
    return (Orva::Testing::SourceRoot() / "res" / "sample-install" / "ORVA_WLM.ini").wstring();
}

// The on-line help section belongs to the string loader, which names its keys itself.
bool IsOnlineHelpKey(std::wstring_view section, std::wstring_view key) {
    return section == kOnlineHelpSection && (key == kProductRootRegKey || key == kUrlKey ||
                                             key == kPidKey || key.starts_with(L"FunID_"));
}

TEST(SampleInstall, EveryKey_IsAnInstallationSettingOfTheCatalogueOrOfTheHelp) {
    auto& api = ZelCommon::Storage::SystemProfileApi();
    const std::wstring file = SampleInstallFile();
    ASSERT_TRUE(ZelCommon::Path::FileExists(file));
    size_t keys = 0;
    for (const std::wstring& section : ZelCommon::Storage::ReadSectionNames(api, file)) {
        for (const std::wstring& key : ZelCommon::Storage::ReadKeyNames(api, file, section)) {
            ++keys;
            EXPECT_TRUE(FindSetting(SettingsFile::Install, section, key).has_value() ||
                        IsOnlineHelpKey(section, key))
                << ZelCommon::Text::WideToUtf8(section) << "/" << ZelCommon::Text::WideToUtf8(key);
        }
    }
    EXPECT_GT(keys, 20u);
}

}  // namespace
}  // namespace Orva::Settings
