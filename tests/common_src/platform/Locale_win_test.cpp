#include <windows.h>

#include <gtest/gtest.h>

#include "common_src/platform/Locale.h"

namespace ZelCommon::Platform {
namespace {

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
