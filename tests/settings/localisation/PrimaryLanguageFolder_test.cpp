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

// A locale of every language Windows knows, every Chinese and Serbo-Croatian sub-language, the
// other scripts and sort orders: each goes to the main locale of its language and script.
// clang-format off
constexpr PrimaryLanguageCase kPrimaryLanguageCases[] = {
    {0x4001, L"ar-QA", L"ar-SA"}, {0x0402, L"bg-BG", L"bg-BG"},
    {0x0803, L"ca-ES-valencia", L"ca-ES"}, {0x0404, L"zh-TW", L"zh-TW"},
    {0x0804, L"zh-CN", L"zh-CN"}, {0x0C04, L"zh-HK", L"zh-TW"}, {0x1004, L"zh-SG", L"zh-CN"},
    {0x1404, L"zh-MO", L"zh-TW"}, {0x0405, L"cs-CZ", L"cs-CZ"}, {0x0406, L"da-DK", L"da-DK"},
    {0x1407, L"de-LI", L"de-DE"}, {0x0408, L"el-GR", L"el-GR"}, {0x4C09, L"en-AE", L"en-US"},
    {0x5C0A, L"es-CU", L"es-ES"}, {0x040B, L"fi-FI", L"fi-FI"}, {0x3C0C, L"fr-HT", L"fr-FR"},
    {0x040D, L"he-IL", L"he-IL"}, {0x040E, L"hu-HU", L"hu-HU"}, {0x040F, L"is-IS", L"is-IS"},
    {0x0810, L"it-CH", L"it-IT"}, {0x0411, L"ja-JP", L"ja-JP"}, {0x0412, L"ko-KR", L"ko-KR"},
    {0x0813, L"nl-BE", L"nl-NL"}, {0x0814, L"nn-NO", L"nb-NO"}, {0x0415, L"pl-PL", L"pl-PL"},
    {0x0816, L"pt-PT", L"pt-BR"}, {0x0417, L"rm-CH", L"rm-CH"}, {0x0818, L"ro-MD", L"ro-RO"},
    {0x0819, L"ru-MD", L"ru-RU"}, {0x041A, L"hr-HR", L"hr-HR"}, {0x101A, L"hr-BA", L"hr-HR"},
    {0x141A, L"bs-Latn-BA", L"bs-Latn-BA"}, {0x181A, L"sr-Latn-BA", L"sr-Latn-RS"},
    {0x1C1A, L"sr-Cyrl-BA", L"sr-Cyrl-RS"}, {0x201A, L"bs-Cyrl-BA", L"bs-Cyrl-BA"},
    {0x241A, L"sr-Latn-RS", L"sr-Latn-RS"}, {0x281A, L"sr-Cyrl-RS", L"sr-Cyrl-RS"},
    {0x2C1A, L"sr-Latn-ME", L"sr-Latn-RS"}, {0x301A, L"sr-Cyrl-ME", L"sr-Cyrl-RS"},
    {0x041B, L"sk-SK", L"sk-SK"}, {0x041C, L"sq-AL", L"sq-AL"}, {0x081D, L"sv-FI", L"sv-SE"},
    {0x041E, L"th-TH", L"th-TH"}, {0x041F, L"tr-TR", L"tr-TR"}, {0x0820, L"ur-IN", L"ur-PK"},
    {0x0421, L"id-ID", L"id-ID"}, {0x0422, L"uk-UA", L"uk-UA"}, {0x0423, L"be-BY", L"be-BY"},
    {0x0424, L"sl-SI", L"sl-SI"}, {0x0425, L"et-EE", L"et-EE"}, {0x0426, L"lv-LV", L"lv-LV"},
    {0x0427, L"lt-LT", L"lt-LT"}, {0x0428, L"tg-Cyrl-TJ", L"tg-Cyrl-TJ"},
    {0x0429, L"fa-IR", L"fa-IR"}, {0x042A, L"vi-VN", L"vi-VN"}, {0x042B, L"hy-AM", L"hy-AM"},
    {0x042C, L"az-Latn-AZ", L"az-Latn-AZ"}, {0x082C, L"az-Cyrl-AZ", L"az-Cyrl-AZ"},
    {0x042D, L"eu-ES", L"eu-ES"}, {0x082E, L"dsb-DE", L"hsb-DE"}, {0x042F, L"mk-MK", L"mk-MK"},
    {0x0430, L"st-ZA", L"st-ZA"}, {0x0431, L"ts-ZA", L"ts-ZA"}, {0x0832, L"tn-BW", L"tn-ZA"},
    {0x0433, L"ve-ZA", L"ve-ZA"}, {0x0434, L"xh-ZA", L"xh-ZA"}, {0x0435, L"zu-ZA", L"zu-ZA"},
    {0x0436, L"af-ZA", L"af-ZA"}, {0x0437, L"ka-GE", L"ka-GE"}, {0x0438, L"fo-FO", L"fo-FO"},
    {0x0439, L"hi-IN", L"hi-IN"}, {0x043A, L"mt-MT", L"mt-MT"}, {0x243B, L"smn-FI", L"se-NO"},
    {0x083C, L"ga-IE", L"ga-IE"}, {0x043D, L"yi-001", L"yi-001"}, {0x083E, L"ms-BN", L"ms-MY"},
    {0x043F, L"kk-KZ", L"kk-KZ"}, {0x0440, L"ky-KG", L"ky-KG"}, {0x0441, L"sw-KE", L"sw-KE"},
    {0x0442, L"tk-TM", L"tk-TM"}, {0x0443, L"uz-Latn-UZ", L"uz-Latn-UZ"},
    {0x0843, L"uz-Cyrl-UZ", L"uz-Cyrl-UZ"}, {0x0444, L"tt-RU", L"tt-RU"},
    {0x0845, L"bn-BD", L"bn-IN"}, {0x0446, L"pa-IN", L"pa-IN"},
    {0x0846, L"pa-Arab-PK", L"pa-Arab-PK"}, {0x0447, L"gu-IN", L"gu-IN"},
    {0x0448, L"or-IN", L"or-IN"}, {0x0849, L"ta-LK", L"ta-IN"}, {0x044A, L"te-IN", L"te-IN"},
    {0x044B, L"kn-IN", L"kn-IN"}, {0x044C, L"ml-IN", L"ml-IN"}, {0x044D, L"as-IN", L"as-IN"},
    {0x044E, L"mr-IN", L"mr-IN"}, {0x044F, L"sa-IN", L"sa-IN"}, {0x0450, L"mn-MN", L"mn-MN"},
    {0x0850, L"mn-Mong-CN", L"mn-Mong-CN"}, {0x0C50, L"mn-Mong-MN", L"mn-Mong-CN"},
    {0x0C51, L"dz-BT", L"bo-CN"}, {0x0452, L"cy-GB", L"cy-GB"}, {0x0453, L"km-KH", L"km-KH"},
    {0x0454, L"lo-LA", L"lo-LA"}, {0x0455, L"my-MM", L"my-MM"}, {0x0456, L"gl-ES", L"gl-ES"},
    {0x0457, L"kok-IN", L"kok-IN"}, {0x0458, L"mni-IN", L"mni-IN"},
    {0x0459, L"sd-Deva-IN", L"sd-Deva-IN"}, {0x0859, L"sd-Arab-PK", L"sd-Arab-PK"},
    {0x045A, L"syr-SY", L"syr-SY"}, {0x045B, L"si-LK", L"si-LK"},
    {0x045C, L"chr-Cher-US", L"chr-Cher-US"}, {0x005D, L"iu", L"iu-Latn-CA"},
    {0x045D, L"iu-Cans-CA", L"iu-Cans-CA"}, {0x085D, L"iu-Latn-CA", L"iu-Latn-CA"},
    {0x045E, L"am-ET", L"am-ET"}, {0x085F, L"tzm-Latn-DZ", L"tzm-Latn-DZ"},
    {0x0460, L"ks-Arab", L"ks-Arab"}, {0x0860, L"ks-Deva-IN", L"ks-Deva-IN"},
    {0x0861, L"ne-IN", L"ne-NP"}, {0x0462, L"fy-NL", L"fy-NL"}, {0x0463, L"ps-AF", L"ps-AF"},
    {0x0464, L"fil-PH", L"fil-PH"}, {0x0465, L"dv-MV", L"dv-MV"}, {0x0466, L"bin-NG", L"bin-NG"},
    {0x0867, L"ff-Latn-SN", L"ff-Latn-SN"}, {0x0468, L"ha-Latn-NG", L"ha-Latn-NG"},
    {0x046A, L"yo-NG", L"yo-NG"}, {0x0C6B, L"quz-PE", L"quz-BO"}, {0x046C, L"nso-ZA", L"nso-ZA"},
    {0x046D, L"ba-RU", L"ba-RU"}, {0x046E, L"lb-LU", L"lb-LU"}, {0x046F, L"kl-GL", L"kl-GL"},
    {0x0470, L"ig-NG", L"ig-NG"}, {0x0471, L"kr-Latn-NG", L"kr-Latn-NG"},
    {0x0472, L"om-ET", L"om-ET"}, {0x0873, L"ti-ER", L"ti-ET"}, {0x0474, L"gn-PY", L"gn-PY"},
    {0x0475, L"haw-US", L"haw-US"}, {0x0476, L"la-VA", L"la-VA"}, {0x0477, L"so-SO", L"so-SO"},
    {0x0478, L"ii-CN", L"ii-CN"}, {0x047A, L"arn-CL", L"arn-CL"}, {0x047C, L"moh-CA", L"moh-CA"},
    {0x047E, L"br-FR", L"br-FR"}, {0x0480, L"ug-CN", L"ug-CN"}, {0x0481, L"mi-NZ", L"mi-NZ"},
    {0x0482, L"oc-FR", L"oc-FR"}, {0x0483, L"co-FR", L"co-FR"}, {0x0484, L"gsw-FR", L"gsw-FR"},
    {0x0485, L"sah-RU", L"sah-RU"}, {0x0486, L"quc-Latn-GT", L"quc-Latn-GT"},
    {0x0487, L"rw-RW", L"rw-RW"}, {0x0488, L"wo-SN", L"wo-SN"}, {0x048C, L"prs-AF", L"prs-AF"},
    {0x0491, L"gd-GB", L"gd-GB"}, {0x0492, L"ku-Arab-IQ", L"ku-Arab-IQ"},
    {0x045F, L"tzm-Arab-MA", L"tzm-Arab-MA"}, {0x105F, L"tzm-Tfng-MA", L"tzm-Tfng-MA"},
    {0x0469, L"ibb-NG", L"ibb-NG"}, {0x0479, L"pap-029", L"pap-029"},
    {0x7C04, L"zh-Hant", L"zh-TW"}, {0x0004, L"zh-Hans", L"zh-CN"}, {0x7804, L"zh", L"zh-CN"},
    {0x7C1A, L"sr", L"sr-Latn-RS"}, {0x701A, L"sr-Latn", L"sr-Latn-RS"},
    {0x6C1A, L"sr-Cyrl", L"sr-Cyrl-RS"}, {0x781A, L"bs", L"bs-Latn-BA"},
    {0x681A, L"bs-Latn", L"bs-Latn-BA"}, {0x641A, L"bs-Cyrl", L"bs-Cyrl-BA"},
    {0x081A, L"sr-Latn-CS", L"sr-Latn-RS"}, {0x0C1A, L"sr-Cyrl-CS", L"sr-Cyrl-RS"},
    {0x001A, L"hr", L"hr-HR"}, {0x20804, L"zh-CN_stroke", L"zh-CN"},
    {0x40C04, L"zh-HK_radstr", L"zh-TW"}, {0x10407, L"de-DE_phoneb", L"de-DE"},
    {0x040A, L"es-ES_tradnl", L"es-ES"}, {0x2C0A, L"es-AR", L"es-ES"},
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
