#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/ProcessLauncher.h"
#include "support/TempFolder.h"

namespace {

using ZelCommon::Platform::SystemProcessLauncher;

std::wstring SystemProgram(const wchar_t* name) {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = ::GetSystemDirectoryW(folder, MAX_PATH);
    EXPECT_GT(length, 0u);
    return L"\"" + std::wstring(folder) + L"\\" + name + L"\"";
}

bool AppearsWithin(const std::wstring& file, DWORD milliseconds) {
    for (DWORD waited = 0; waited <= milliseconds; waited += 50) {
        if (::GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES) {
            return true;
        }
        ::Sleep(50);
    }
    return false;
}

TEST(SystemProcessLauncherWin, Launch_StartsOnlyAProgramThatCanRun) {
    const struct {
        const char* name;
        std::wstring commandLine;
        std::wstring workingFolder;
        bool started;
    } cases[] = {
        {"existing program", SystemProgram(L"cmd.exe") + L" /c exit 0", L"", true},
        {"missing program", SystemProgram(L"orva-no-such-program-7f3a.exe") + L" /x", L"", false},
        {"empty command line", L"", L"", false},
        {"missing working folder", SystemProgram(L"cmd.exe") + L" /c exit 0",
         L"C:\\orva-no-such-folder-7f3a", false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(SystemProcessLauncher().Launch(each.commandLine, each.workingFolder),
                  each.started);
    }
}

TEST(SystemProcessLauncherWin, Child_RunsInTheGivenWorkingFolder) {
    Orva::Testing::TempFolder folder;
    ASSERT_TRUE(SystemProcessLauncher().Launch(
        SystemProgram(L"cmd.exe") + L" /c echo started> marker.txt", folder.Path()));
    EXPECT_TRUE(AppearsWithin(folder.File(L"marker.txt"), 15000));
}

}  // namespace
