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
}

// The shell names the folder without a final separator.
TEST(SystemProcessContextWin, CommonAppData_IsTheShellsFolderWithoutFinalSeparator) {
    wchar_t expected[MAX_PATH] = {};
    ASSERT_TRUE(::SHGetSpecialFolderPathW(nullptr, expected, CSIDL_COMMON_APPDATA, FALSE));
    EXPECT_EQ(SystemProcessContext().CommonAppDataFolder(), std::wstring(expected));
}

}  // namespace
