#include <gtest/gtest.h>

#include "settings/probes/OsVersion.h"

namespace Orva::Settings {
namespace {

// Wine reports an NT-family client Windows; this test program is 64-bit, so Windows is too.
TEST(OsVersionWin32, GetOSVersion_UnderThisWindows_IsA64BitNtIdentifier) {
    OsVersionRecord record;
    ASSERT_TRUE(SystemOsInfo().QueryVersion(record));
    EXPECT_EQ(record.platformId, 2u);
    EXPECT_GE(record.majorVersion, 5u);
    EXPECT_EQ(SystemOsInfo().NativeProcessorArchitecture(), kArchitectureAmd64);
    const uint32_t id = CComUtilSet::GetOSVersion();
    EXPECT_TRUE(id == 9 || id == 11 || id == 13) << id;
    EXPECT_TRUE(CComUtilSet::IsWindows64());
}

}  // namespace
}  // namespace Orva::Settings
