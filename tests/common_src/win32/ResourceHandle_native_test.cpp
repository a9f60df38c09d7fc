#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "common_src/win32/ResourceHandle.h"
#include "support/TempFolder.h"

namespace ZelCommon::Win32 {
namespace {

// Natively there is nothing to map: any existing file counts as loaded.
TEST(ResourceHandleNative, ExistingFile_CountsAsLoaded) {
    Orva::Testing::TempFolder temp;
    const std::wstring path = temp.File(L"ORVA_WLMA.dll.mui");
    std::ofstream(std::filesystem::path(path)) << "resources";

    ResourceHandle handle;
    EXPECT_TRUE(handle.Load(path));
    EXPECT_NE(handle.Module(), nullptr);
    EXPECT_EQ(handle.Path(), path);
}

}  // namespace
}  // namespace ZelCommon::Win32
