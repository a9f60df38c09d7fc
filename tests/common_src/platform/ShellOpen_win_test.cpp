#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/ShellOpen.h"

namespace {

using ZelCommon::Platform::SystemShellOpen;

// Only failures are tried here: a successful open would start a browser.
TEST(SystemShellOpenWin, EmptyAddress_FailsWithoutOpeningAnything) {
    EXPECT_FALSE(SystemShellOpen().OpenAddress(L""));
}

TEST(SystemShellOpenWin, MissingFile_Fails) {
    wchar_t temp[MAX_PATH] = {};
    ASSERT_NE(::GetTempPathW(MAX_PATH, temp), 0u);
    const std::wstring missing = std::wstring(temp) + L"orva-no-such-file-7f3a.orvanone";
    ASSERT_EQ(::GetFileAttributesW(missing.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(SystemShellOpen().OpenAddress(missing));
}

}  // namespace
