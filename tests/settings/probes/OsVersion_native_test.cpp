#include <gtest/gtest.h>

#include "settings/probes/OsVersion.h"

namespace Orva::Settings {
namespace {

TEST(OsVersionNative, GetOSVersion_WithoutWindows_IsUnknownAnd32Bit) {
    EXPECT_EQ(CComUtilSet::GetOSVersion(), 0u);
    EXPECT_FALSE(CComUtilSet::IsWindows64());
}

}  // namespace
}  // namespace Orva::Settings
