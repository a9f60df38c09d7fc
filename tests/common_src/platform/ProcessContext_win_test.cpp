#include <shlobj.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "common_src/platform/ProcessContext.h"

namespace {

using ZelCommon::Platform::SystemProcessContext;

TEST(SystemProcessContextWin, Ids_AreThoseOfTheCallingProcessAndThread) {
    EXPECT_EQ(SystemProcessContext().ProcessId(), ::GetCurrentProcessId());
    EXPECT_EQ(SystemProcessContext().ThreadId(), ::GetCurrentThreadId());
    DWORD other = 0;
    DWORD seen = 0;
    std::thread([&] {
        other = ::GetCurrentThreadId();
        seen = SystemProcessContext().ThreadId();
    }).join();
    EXPECT_EQ(seen, other);
    EXPECT_NE(seen, ::GetCurrentThreadId());
}

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

TEST(SystemProcessContextWin, LastError_ReportsTheThreadsLastError) {
    ::SetLastError(12345);
    EXPECT_EQ(SystemProcessContext().LastError(), 12345u);
}

}  // namespace
