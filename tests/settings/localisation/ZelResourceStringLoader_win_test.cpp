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
    // The Win32 function itself stays reachable beside the member.
    wchar_t buffer[8] = {};
    EXPECT_EQ(::LoadStringW(nullptr, 1, buffer, 8), 0);
}

}  // namespace
}  // namespace Orva::Testing
