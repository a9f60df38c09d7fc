#include <windows.h>

#include <gtest/gtest.h>

#include <stdio.h>

#include <string>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/UniqueAny_win.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Platform {
namespace {

using Orva::Testing::ReadFileBytes;
using Orva::Testing::TempFolder;
using Orva::Testing::WriteFileBytes;

// Windows will not rename over a file that is open without delete sharing, as the C runtime
// opens it. A save that meets such a reader still lands, written in place, and leaves no
// temporary file.
TEST(AtomicFileWin, ReaderHoldingTheFileOpen_SaveIsWrittenInPlace) {
    TempFolder folder;
    const std::wstring path = folder.File(L"WhiteList.dat");
    WriteFileBytes(path, "old content");
    FILE* const reader = ::_wfopen(path.c_str(), L"rb");
    ASSERT_NE(nullptr, reader);
    FileStamp stamp;
    EXPECT_EQ(0u, ReplaceFileContents(path, "new", &stamp));
    std::fclose(reader);
    EXPECT_EQ("new", ReadFileBytes(path));
    EXPECT_EQ(3u, stamp.size);
    EXPECT_EQ(1u, folder.FileCount());
}

// A save's rename opens the new file with delete access; our reads share it, so a read in that
// moment does not fail.
TEST(AtomicFileWin, ReadWhileAnotherHandleHasDeleteAccess_Succeeds) {
    TempFolder folder;
    const std::wstring path = folder.File(L"x.dat");
    WriteFileBytes(path, "abc");
    const unique_handle renamer(::CreateFileW(
        path.c_str(), DELETE | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(renamer);
    std::string bytes;
    EXPECT_EQ(0u, ReadWholeFile(path, bytes));
    EXPECT_EQ("abc", bytes);
}

}  // namespace
}  // namespace ZelCommon::Platform
