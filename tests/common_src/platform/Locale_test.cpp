#include "common_src/platform/Locale.h"

#include <gtest/gtest.h>

namespace ZelCommon::Platform {
namespace {

TEST(Locale, SystemLocale_NamesItsOwnDefault) {
    ILocale& locale = SystemLocale();
    EXPECT_FALSE(locale.LcidToLocaleName(locale.SystemDefaultLcid()).empty());
    EXPECT_EQ(locale.LcidToLocaleName(kLcidEnglishUnitedStates), L"en-US");
}

TEST(Locale, PrimaryLanguage_DropsSublanguageAndSort) {
    EXPECT_EQ(PrimaryLanguageOf(0x0807), 0x07);
    EXPECT_EQ(PrimaryLanguageOf(0x00010407), 0x07);
    EXPECT_EQ(DefaultLcidOfPrimaryLanguage(0x07), 0x0407u);
    EXPECT_EQ(DefaultLcidOfPrimaryLanguage(0x09), 0x0409u);
}

}  // namespace
}  // namespace ZelCommon::Platform
