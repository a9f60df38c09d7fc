#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>

#include "common_src/win32/ResourceHandle.h"
#include "support/TempFolder.h"

namespace ZelCommon::Win32 {
namespace {

// A module loaded as data is mapped for its resources only: the version resource of a copy of
// kernel32.dll, under the resource module's name, is found through the handle.
TEST(ResourceHandleWin, ModuleCopy_LoadsAsDataWithItsResources) {
    Orva::Testing::TempFolder temp;
    const std::wstring copy = temp.File(L"ORVA_WLMA.dll.mui");
    wchar_t system[MAX_PATH] = {};
    ASSERT_NE(::GetSystemDirectoryW(system, MAX_PATH), 0u);
    ASSERT_TRUE(
        ::CopyFileW((std::wstring(system) + L"\\kernel32.dll").c_str(), copy.c_str(), TRUE));

    ResourceHandle handle;
    ASSERT_TRUE(handle.Load(copy));

    const auto module = static_cast<HMODULE>(handle.Module());
    EXPECT_NE(module, ::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_NE(::FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)), nullptr);
    EXPECT_EQ(handle.Path(), copy);
}

TEST(ResourceHandleWin, TextFile_IsNoModule) {
    Orva::Testing::TempFolder temp;
    const std::wstring path = temp.File(L"ORVA_WLMA.dll.mui");
    std::ofstream(path.c_str()) << "not a module";

    ResourceHandle handle;
    EXPECT_FALSE(handle.Load(path));
    EXPECT_FALSE(handle.IsLoaded());
}

}  // namespace
}  // namespace ZelCommon::Win32
