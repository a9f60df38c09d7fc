#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "lists/AtomicFile.h"

namespace Orva::Lists {
namespace {

TEST(AtomicFile, ReplaceFileContents_CreatesMissingFile) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"new.dat");
    EXPECT_TRUE(ReplaceFileContents(path, "abc\n"));
    EXPECT_EQ("abc\n", Testing::ReadFileBytes(path));
}

TEST(AtomicFile, ReplaceFileContents_ReplacesExistingFileWhole) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"old.dat");
    Testing::WriteFileBytes(path, std::string(1000, 'x'));
    EXPECT_TRUE(ReplaceFileContents(path, "short"));
    EXPECT_EQ("short", Testing::ReadFileBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
}

TEST(AtomicFile, ReplaceFileContents_NonAsciiPath) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"J\u00fcrgen \u4e2d.dat");
    EXPECT_TRUE(ReplaceFileContents(path, "x"));
    EXPECT_EQ(std::optional<std::string>("x"), ReadWholeFile(path));
}

TEST(AtomicFile, ReplaceFileContents_MissingFolderFailsAndCreatesNothing) {
    Testing::TempFolder folder;
    EXPECT_FALSE(ReplaceFileContents(folder.File(L"no") + L"/x.dat", "x"));
    EXPECT_EQ(0u, folder.FileCount());
}

TEST(AtomicFile, ReadWholeFile_MissingFileGivesNothing) {
    Testing::TempFolder folder;
    EXPECT_FALSE(ReadWholeFile(folder.File(L"none.dat")).has_value());
}

TEST(AtomicFile, ReadWholeFile_ReadsBinaryBytesUnchanged) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"bin.dat");
    std::string bytes("a\r\nb\0c\x1a", 7);
    bytes += std::string(200000, 'z');
    Testing::WriteFileBytes(path, bytes);
    EXPECT_EQ(std::optional<std::string>(bytes), ReadWholeFile(path));
}

}  // namespace
}  // namespace Orva::Lists
