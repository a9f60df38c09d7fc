#include <windows.h>

#include <gtest/gtest.h>

#include "StringLoaderFixture.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Testing {
namespace {

using ZelResourceStringLoaderWinTest = StringLoaderTest;

// Code of the add-in includes <windows.h>, whose LoadString macro renames the call.
TEST_F(ZelResourceStringLoaderWinTest, CallRenamedByWindowsHeader_StillLoadsTheText) {
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    ZelResourceStringLoader loader(Services());
    ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));

    EXPECT_EQ(loader.LoadString(L"IDS_OK"), L"OK");
}

}  // namespace
}  // namespace Orva::Testing
