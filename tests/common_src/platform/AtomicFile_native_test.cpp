#include "common_src/platform/AtomicFile.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Platform {
namespace {

constexpr int kCannotDropRoot = 100;

// A folder where the user may write the file but not create another: the save lands in place.
// Root passes every permission check, so then the save runs in a child as "nobody".
TEST(AtomicFileNative, FolderRefusesNewFiles_FileRewrittenInPlace) {
    Orva::Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlackList.dat");
    Orva::Testing::WriteFileBytes(path, "old contents");
    std::filesystem::permissions(std::filesystem::path(path), std::filesystem::perms(0666));
    std::filesystem::permissions(folder.Root(), std::filesystem::perms(0555));
    const pid_t child = ::fork();
    ASSERT_NE(-1, child);
    if (child == 0) {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) {
            ::_exit(kCannotDropRoot);
        }
        ::_exit(static_cast<int>(ReplaceFileContents(path, "new")));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    std::filesystem::permissions(folder.Root(), std::filesystem::perms(0755));
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == kCannotDropRoot) {
        GTEST_SKIP() << "cannot run as another user here";
    }
    EXPECT_EQ(0, WEXITSTATUS(status));
    EXPECT_EQ("new", Orva::Testing::ReadFileBytes(path));
    EXPECT_EQ(1u, folder.FileCount());
}

}  // namespace
}  // namespace ZelCommon::Platform
