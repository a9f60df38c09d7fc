#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/ProcessLauncher.h"

namespace {

using ZelCommon::Platform::SystemProcessLauncher;

std::wstring SystemProgram(const wchar_t* name) {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = ::GetSystemDirectoryW(folder, MAX_PATH);
    EXPECT_GT(length, 0u);
    return std::wstring(folder) + L"\\" + name;
}

std::wstring Quoted(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

// A fresh empty folder under the temporary folder, removed with what the child left in it.
class ScratchFolder {
public:
    ScratchFolder() {
        wchar_t temp[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temp);
        m_path = std::wstring(temp) + L"orva-launch-" + std::to_wstring(::GetCurrentProcessId());
        ::CreateDirectoryW(m_path.c_str(), nullptr);
    }
    ~ScratchFolder() {
        ::DeleteFileW(File(L"marker.txt").c_str());
        ::RemoveDirectoryW(m_path.c_str());
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::wstring& Path() const { return m_path; }
    std::wstring File(const wchar_t* name) const { return m_path + L"\\" + name; }

private:
    std::wstring m_path;
};

bool AppearsWithin(const std::wstring& file, DWORD milliseconds) {
    for (DWORD waited = 0; waited <= milliseconds; waited += 50) {
        if (::GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES) {
            return true;
        }
        ::Sleep(50);
    }
    return false;
}

TEST(SystemProcessLauncherWin, ExistingProgram_IsStarted) {
    EXPECT_TRUE(
        SystemProcessLauncher().Launch(Quoted(SystemProgram(L"cmd.exe")) + L" /c exit 0", L""));
}

TEST(SystemProcessLauncherWin, MissingProgram_Fails) {
    EXPECT_FALSE(SystemProcessLauncher().Launch(
        Quoted(SystemProgram(L"orva-no-such-program-7f3a.exe")) + L" /x", L""));
}

TEST(SystemProcessLauncherWin, EmptyCommandLine_Fails) {
    EXPECT_FALSE(SystemProcessLauncher().Launch(L"", L""));
}

TEST(SystemProcessLauncherWin, MissingWorkingFolder_Fails) {
    EXPECT_FALSE(SystemProcessLauncher().Launch(Quoted(SystemProgram(L"cmd.exe")) + L" /c exit 0",
                                                L"C:\\orva-no-such-folder-7f3a"));
}

TEST(SystemProcessLauncherWin, Child_RunsInTheGivenWorkingFolder) {
    ScratchFolder folder;
    ASSERT_TRUE(SystemProcessLauncher().Launch(
        Quoted(SystemProgram(L"cmd.exe")) + L" /c echo started> marker.txt", folder.Path()));
    EXPECT_TRUE(AppearsWithin(folder.File(L"marker.txt"), 15000));
}

}  // namespace
