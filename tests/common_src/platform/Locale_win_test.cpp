#include <windows.h>

#include <gtest/gtest.h>

#include "common_src/platform/Locale.h"

namespace ZelCommon::Platform {
namespace {

TEST(LocaleWin, SystemDefault_IsWhatWindowsSays) {
    EXPECT_EQ(SystemLocale().SystemDefaultLcid(), ::GetSystemDefaultLCID());
}

struct NameCase {
    uint32_t lcid;
    const wchar_t* name;
};

class LocaleWinNames : public testing::TestWithParam<NameCase> {};

TEST_P(LocaleWinNames, KnownId_GivesItsName) {
    EXPECT_EQ(SystemLocale().LcidToLocaleName(GetParam().lcid), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Cases, LocaleWinNames,
                         testing::Values(NameCase{0x0409, L"en-US"}, NameCase{0x0407, L"de-DE"},
                                         NameCase{0x0807, L"de-CH"}, NameCase{0x0411, L"ja-JP"},
                                         NameCase{0x040C, L"fr-FR"}));

TEST(LocaleWin, UnknownId_GivesNoName) {
    EXPECT_EQ(SystemLocale().LcidToLocaleName(0x7FFF), L"");
}

TEST(LocaleWin, PrimaryLanguage_MatchesTheWindowsMacros) {
    for (const uint32_t lcid : {0x0409u, 0x0807u, 0x0C07u, 0x0411u, 0x1009u}) {
        EXPECT_EQ(PrimaryLanguageOf(lcid), PRIMARYLANGID(LANGIDFROMLCID(lcid))) << lcid;
        EXPECT_EQ(DefaultLcidOfPrimaryLanguage(PrimaryLanguageOf(lcid)),
                  MAKELCID(MAKELANGID(PRIMARYLANGID(LANGIDFROMLCID(lcid)), SUBLANG_DEFAULT),
                           SORT_DEFAULT))
            << lcid;
    }
}

}  // namespace
}  // namespace ZelCommon::Platform
