#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "StringLoaderFixture.h"
#include "common_src/platform/TextCodec.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Testing {
namespace {

struct PrimaryLanguageCase {
    uint32_t lcid;
    const wchar_t* windowsName;
    const wchar_t* folder;
};

// Whether each language's folder is of its language and script is judged against Windows' own
// locale data under Wine. Here the lookup's rules: a sub-language goes to its primary language's
// main locale, another script to that script's main locale (Chinese and the languages under
// 0x1A above all), neutral ids like their language, sort orders change nothing, and a locale of
// no language gets English.
// clang-format off
constexpr PrimaryLanguageCase kPrimaryLanguageCases[] = {
    {0x1407, L"de-LI", L"de-DE"}, {0x4C09, L"en-AE", L"en-US"}, {0x0816, L"pt-PT", L"pt-BR"},
    {0x0814, L"nn-NO", L"nb-NO"}, {0x082E, L"dsb-DE", L"hsb-DE"}, {0x2C0A, L"es-AR", L"es-ES"},
    {0x0C51, L"dz-BT", L"bo-CN"}, {0x243B, L"smn-FI", L"se-NO"},
    {0x0859, L"sd-Arab-PK", L"sd-Arab-PK"},
    {0x0404, L"zh-TW", L"zh-TW"}, {0x0804, L"zh-CN", L"zh-CN"}, {0x0C04, L"zh-HK", L"zh-TW"},
    {0x1004, L"zh-SG", L"zh-CN"}, {0x1404, L"zh-MO", L"zh-TW"}, {0x7C04, L"zh-Hant", L"zh-TW"},
    {0x0004, L"zh-Hans", L"zh-CN"}, {0x7804, L"zh", L"zh-CN"},
    {0x041A, L"hr-HR", L"hr-HR"}, {0x101A, L"hr-BA", L"hr-HR"}, {0x001A, L"hr", L"hr-HR"},
    {0x141A, L"bs-Latn-BA", L"bs-Latn-BA"}, {0x201A, L"bs-Cyrl-BA", L"bs-Cyrl-BA"},
    {0x181A, L"sr-Latn-BA", L"sr-Latn-RS"}, {0x1C1A, L"sr-Cyrl-BA", L"sr-Cyrl-RS"},
    {0x081A, L"sr-Latn-CS", L"sr-Latn-RS"}, {0x0C1A, L"sr-Cyrl-CS", L"sr-Cyrl-RS"},
    {0x7C1A, L"sr", L"sr-Latn-RS"}, {0x6C1A, L"sr-Cyrl", L"sr-Cyrl-RS"},
    {0x781A, L"bs", L"bs-Latn-BA"},
    {0x082C, L"az-Cyrl-AZ", L"az-Cyrl-AZ"}, {0x0843, L"uz-Cyrl-UZ", L"uz-Cyrl-UZ"},
    {0x0846, L"pa-Arab-PK", L"pa-Arab-PK"}, {0x0C50, L"mn-Mong-MN", L"mn-Mong-CN"},
    {0x0459, L"sd-Deva-IN", L"sd-Deva-IN"}, {0x005D, L"iu", L"iu-Latn-CA"},
    {0x045D, L"iu-Cans-CA", L"iu-Cans-CA"}, {0x105F, L"tzm-Tfng-MA", L"tzm-Tfng-MA"},
    {0x0860, L"ks-Deva-IN", L"ks-Deva-IN"},
    {0x20804, L"zh-CN_stroke", L"zh-CN"}, {0x40C04, L"zh-HK_radstr", L"zh-TW"},
    {0x10407, L"de-DE_phoneb", L"de-DE"}, {0x040A, L"es-ES_tradnl", L"es-ES"},
    {0x007F, L"invariant", L"en-US"}, {0x0501, L"qps-ploc", L"en-US"},
};
// clang-format on

using PrimaryLanguageFolderTest = StringLoaderTest;

TEST_F(PrimaryLanguageFolderTest, EveryLocale_MapsToTheMainLocaleOfItsLanguageAndScript) {
    ZelResourceStringLoader loader(Services());
    for (const PrimaryLanguageCase& row : kPrimaryLanguageCases) {
        locale.SetSystemDefaultLcid(row.lcid);
        TakeLines();
        EXPECT_EQ(loader.MapPrimaryLangID(), row.folder)
            << ZelCommon::Text::WideToUtf8(row.windowsName);
        EXPECT_EQ(TakeLines(), std::vector<std::wstring>{L"Primary language mapped result: [" +
                                                         std::wstring(row.folder) + L"]"});
    }
}

}  // namespace
}  // namespace Orva::Testing
