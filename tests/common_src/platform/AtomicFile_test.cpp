#include "common_src/platform/AtomicFile.h"

#include <gtest/gtest.h>

#include <string>

#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Platform {
namespace {

using Orva::Testing::ReadFileBytes;
using Orva::Testing::TempFolder;
using Orva::Testing::WriteFileBytes;

TEST(AtomicFile, Replace_MissingFileCreatedUnderANonAsciiName) {
    TempFolder folder;
    const std::wstring path = folder.File(L"J\u00fcrgen \u4e2d.dat");
    EXPECT_EQ(0u, ReplaceFileContents(path, "x"));
    std::string bytes;
    EXPECT_EQ(0u, ReadWholeFile(path, bytes));
    EXPECT_EQ("x", bytes);
}

TEST(AtomicFile, Replace_MissingFolderFailsAndCreatesNothing) {
    TempFolder folder;
    EXPECT_NE(0u, ReplaceFileContents(folder.Folder(L"no") + L"x.dat", "x"));
    EXPECT_EQ(0u, folder.FileCount());
}

// A longer file is replaced whole, no temporary file is left, and the stamp the profile engine
// caches is that of the version on disk.
TEST(AtomicFile, Replace_ExistingFileReplacedWholeAndStampIsTheWrittenVersions) {
    TempFolder folder;
    const std::wstring path = folder.File(L"a.ini");
    WriteFileBytes(path, std::string(1000, 'x'));
    FileStamp written;
    ASSERT_EQ(0u, ReplaceFileContents(path, "12345", &written));
    EXPECT_EQ("12345", ReadFileBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
    FileStamp onDisk;
    ASSERT_EQ(0u, QueryFileStamp(path, onDisk));
    EXPECT_EQ(5u, written.size);
    EXPECT_EQ(onDisk, written);
    FileStamp read;
    std::string bytes;
    ASSERT_EQ(0u, ReadWholeFile(path, bytes, &read));
    EXPECT_EQ(onDisk, read);
}

// Only a refusal is worth a write in place; a name too long, a missing folder or a full disk
// would fail the same way in place, or must not touch the old file.
TEST(AtomicFile, WritesInPlaceAfter_RefusalsOnly) {
    struct Case {
        uint32_t error;
        bool inPlace;
    };
    const Case cases[] = {
        {5, true},     // ERROR_ACCESS_DENIED: the folder refuses a new file, or Windows the rename
        {32, true},    // ERROR_SHARING_VIOLATION: a reader holds the file
        {33, true},    // ERROR_LOCK_VIOLATION
        {2, false},    // ERROR_FILE_NOT_FOUND
        {3, false},    // ERROR_PATH_NOT_FOUND, natively also a name too long
        {112, false},  // ERROR_DISK_FULL
        {206, false},  // ERROR_FILENAME_EXCED_RANGE
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.inPlace, WritesInPlaceAfter(c.error)) << c.error;
    }
}

TEST(AtomicFile, Read_BinaryBytesUnchangedAndMissingFileNotFound) {
    TempFolder folder;
    const std::wstring path = folder.File(L"bin.dat");
    std::string written("a\r\nb\0c\x1a", 7);
    written += std::string(200000, 'z');
    WriteFileBytes(path, written);
    std::string bytes;
    EXPECT_EQ(0u, ReadWholeFile(path, bytes));
    EXPECT_EQ(written, bytes);
    EXPECT_EQ(2u, ReadWholeFile(folder.File(L"none.dat"), bytes));
}

}  // namespace
}  // namespace ZelCommon::Platform
