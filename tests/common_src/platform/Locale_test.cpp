#include "common_src/platform/Locale.h"

#include <gtest/gtest.h>

namespace ZelCommon::Platform {
namespace {

// The same names natively as Windows gives, and none for an id it does not know.
TEST(Locale, LcidToLocaleName_NamesKnownIdsAsWindowsDoes) {
    ILocale& locale = SystemLocale();
    EXPECT_FALSE(locale.LcidToLocaleName(locale.SystemDefaultLcid()).empty());
    const struct {
        uint32_t lcid;
        const wchar_t* name;
    } cases[] = {{kLcidEnglishUnitedStates, L"en-US"},
                 {0x0407, L"de-DE"},
                 {0x0807, L"de-CH"},
                 {0x0411, L"ja-JP"},
                 {0x040C, L"fr-FR"},
                 {0x7FFF, L""}};
    for (const auto& each : cases) {
        EXPECT_EQ(locale.LcidToLocaleName(each.lcid), each.name) << each.lcid;
    }
}

TEST(Locale, PrimaryLanguage_DropsSublanguageAndSort) {
    EXPECT_EQ(PrimaryLanguageOf(0x0807), 0x07);
    EXPECT_EQ(PrimaryLanguageOf(0x00010407), 0x07);
    EXPECT_EQ(DefaultLcidOfPrimaryLanguage(0x07), 0x0407u);
    EXPECT_EQ(DefaultLcidOfPrimaryLanguage(0x09), 0x0409u);
}

}  // namespace
}  // namespace ZelCommon::Platform
