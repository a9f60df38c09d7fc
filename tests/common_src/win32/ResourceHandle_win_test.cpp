#include <windows.h>

#include <gtest/gtest.h>

#include <fstream>

#include "common_src/platform/ProcessContext.h"
#include "common_src/win32/ResourceHandle.h"
#include "settings/TempFolder.h"

namespace ZelCommon::Win32 {
namespace {

// A module loaded as data is mapped for its resources: the version resource of this program is
// found through the handle, and the module is not the running program's own handle.
TEST(ResourceHandleWin, ProgramFile_LoadsAsDataWithItsResources) {
    ResourceHandle handle;
    ASSERT_TRUE(handle.Load(L"C:\\windows\\system32\\kernel32.dll"));

    const auto module = static_cast<HMODULE>(handle.Module());
    EXPECT_NE(module, ::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_NE(::FindResourceW(module, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)), nullptr);
}

TEST(ResourceHandleWin, TextFile_IsNoModule) {
    Orva::Testing::TempFolder temp;
    const std::wstring path = temp.File(L"ORVA_WLMA.dll.mui");
    std::ofstream(path.c_str()) << "not a module";

    ResourceHandle handle;
    EXPECT_FALSE(handle.Load(path));
    EXPECT_FALSE(handle.IsLoaded());
}

TEST(ResourceHandleWin, Reset_FreesTheMapping) {
    Orva::Testing::TempFolder temp;
    const std::wstring copy = temp.File(L"ORVA_WLMA.dll.mui");
    ASSERT_TRUE(
        ::CopyFileW(Platform::SystemProcessContext().ModuleFilePath().c_str(), copy.c_str(), TRUE));
    ResourceHandle handle;
    ASSERT_TRUE(handle.Load(copy));

    handle.Reset();

    // Windows refuses to delete a file that is mapped; once freed it can go.
    EXPECT_TRUE(::DeleteFileW(copy.c_str())) << ::GetLastError();
}

}  // namespace
}  // namespace ZelCommon::Win32
