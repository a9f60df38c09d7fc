#include <windows.h>

#include <gtest/gtest.h>

#include "common_src/platform/UniqueAny_win.h"

namespace {

using ZelCommon::Platform::unique_hmodule;

// The build copies the add-in beside this test program, where LoadLibrary looks first.
unique_hmodule LoadAddin() {
    return unique_hmodule(LoadLibraryW(L"ORVA_WLMA.dll"));
}

// Loading alone starts nothing: the start-up waits for the host's first call.
TEST(PluginExports, ExportsAreFoundByNameAndByOrdinal) {
    const unique_hmodule addin = LoadAddin();
    ASSERT_TRUE(addin) << GetLastError();

    FARPROC initialize = GetProcAddress(addin.get(), "InitializePlugin");
    ASSERT_NE(initialize, nullptr);
    EXPECT_EQ(initialize, GetProcAddress(addin.get(), MAKEINTRESOURCEA(2000)));

    FARPROC setWnd = GetProcAddress(addin.get(), "SetWLMBrowserWnd");
    ASSERT_NE(setWnd, nullptr);
    EXPECT_EQ(setWnd, GetProcAddress(addin.get(), MAKEINTRESOURCEA(1000)));
    EXPECT_EQ(FindWindowW(L"{459F0EC1-7A80-47c5-A264-B8285F4041DD}", nullptr), nullptr);
}

}  // namespace
