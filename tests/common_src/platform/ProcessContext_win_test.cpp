#include <shlobj.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/ProcessContext.h"

namespace {

using ZelCommon::Platform::SystemProcessContext;

TEST(SystemProcessContextWin, ModuleFilePath_IsThisProgramsExistingFile) {
    const std::wstring path = SystemProcessContext().ModuleFilePath();
    wchar_t exe[MAX_PATH] = {};
    ASSERT_NE(::GetModuleFileNameW(nullptr, exe, MAX_PATH), 0u);
    // The code is linked statically into the test program, so its module is the program.
    EXPECT_EQ(path, std::wstring(exe));
    EXPECT_NE(::GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(SystemProcessContextWin, CommonAppData_IsAnExistingFolderWithoutFinalSeparator) {
    const std::wstring folder = SystemProcessContext().CommonAppDataFolder();
    ASSERT_FALSE(folder.empty());
    EXPECT_NE(folder.back(), L'\\');
    const DWORD attributes = ::GetFileAttributesW(folder.c_str());
    ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(attributes & FILE_ATTRIBUTE_DIRECTORY, 0u);
    wchar_t expected[MAX_PATH] = {};
    ASSERT_TRUE(::SHGetSpecialFolderPathW(nullptr, expected, CSIDL_COMMON_APPDATA, FALSE));
    EXPECT_EQ(folder, std::wstring(expected));
}

}  // namespace
