#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "lists/AtomicFile.h"

namespace Orva::Lists {
namespace {

TEST(AtomicFile, ReplaceFileContents_CreatesMissingFile) {
    Testing::ListTempFolder folder;
    const std::wstring path = folder.File(L"new.dat");
    EXPECT_TRUE(ReplaceFileContents(path, "abc\n"));
    EXPECT_EQ("abc\n", Testing::ReadBytes(path));
}

TEST(AtomicFile, ReplaceFileContents_ReplacesExistingFileWhole) {
    Testing::ListTempFolder folder;
    const std::wstring path = folder.File(L"old.dat");
    Testing::WriteBytes(path, std::string(1000, 'x'));
    EXPECT_TRUE(ReplaceFileContents(path, "short"));
    EXPECT_EQ("short", Testing::ReadBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
}

TEST(AtomicFile, ReplaceFileContents_NonAsciiPath) {
    Testing::ListTempFolder folder;
    const std::wstring path = folder.File(L"J\u00fcrgen \u4e2d.dat");
    EXPECT_TRUE(ReplaceFileContents(path, "x"));
    EXPECT_EQ(std::optional<std::string>("x"), ReadWholeFile(path));
}

TEST(AtomicFile, ReplaceFileContents_MissingFolderFailsAndCreatesNothing) {
    Testing::ListTempFolder folder;
    EXPECT_FALSE(ReplaceFileContents(folder.File(L"no") + L"/x.dat", "x"));
    EXPECT_EQ(0u, folder.FileCount());
}

TEST(AtomicFile, ReadWholeFile_MissingFileGivesNothing) {
    Testing::ListTempFolder folder;
    EXPECT_FALSE(ReadWholeFile(folder.File(L"none.dat")).has_value());
}

TEST(AtomicFile, ReadWholeFile_ReadsBinaryBytesUnchanged) {
    Testing::ListTempFolder folder;
    const std::wstring path = folder.File(L"bin.dat");
    std::string bytes("a\r\nb\0c\x1a", 7);
    bytes += std::string(200000, 'z');
    Testing::WriteBytes(path, bytes);
    EXPECT_EQ(std::optional<std::string>(bytes), ReadWholeFile(path));
}

}  // namespace
}  // namespace Orva::Lists
