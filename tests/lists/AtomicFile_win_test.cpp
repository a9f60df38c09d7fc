#include <gtest/gtest.h>

#include <stdio.h>
#include <windows.h>

#include <string>

#include "ListTestFiles.h"
#include "lists/AtomicFile.h"

namespace Orva::Lists {
namespace {

// Windows will not rename over a file that is open. A save that meets a reader which keeps the
// file open still lands, written in place, and leaves no temporary file.
TEST(AtomicFileWin, ReaderHoldingTheFileOpen_SaveIsWrittenInPlace) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"WhiteList.dat");
    Testing::WriteFileBytes(path, "old content");
    FILE* const reader = ::_wfopen(path.c_str(), L"rb");
    ASSERT_NE(nullptr, reader);
    EXPECT_TRUE(ReplaceFileContents(path, "new"));
    std::fclose(reader);
    EXPECT_EQ("new", Testing::ReadFileBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
}

TEST(AtomicFileWin, OurReaderHoldingTheFileOpen_SaveStillLands) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlackList.dat");
    Testing::WriteFileBytes(path, "old");
    FileSystem::FilePtr reader = FileSystem::OpenFile(path, L"rb");
    ASSERT_NE(nullptr, reader);
    EXPECT_TRUE(ReplaceFileContents(path, "new"));
    reader.reset();
    EXPECT_EQ("new", Testing::ReadFileBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
}

// A save's rename opens the new file with delete access; our reads share it, so a read in that
// moment does not fail.
TEST(AtomicFileWin, ReadWhileAnotherHandleHasDeleteAccess_Succeeds) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"x.dat");
    Testing::WriteFileBytes(path, "abc");
    const HANDLE renamer = ::CreateFileW(path.c_str(), DELETE | SYNCHRONIZE,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, renamer);
    EXPECT_EQ(std::optional<std::string>("abc"), ReadWholeFile(path));
    ::CloseHandle(renamer);
}

TEST(AtomicFileWin, OpenFile_ReadsThroughBackslashPaths) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"x.dat");
    ASSERT_NE(std::wstring::npos, path.find(L'\\'));
    Testing::WriteFileBytes(path, "abc");
    EXPECT_EQ(std::optional<std::string>("abc"), ReadWholeFile(path));
}

}  // namespace
}  // namespace Orva::Lists
