#include "common_src/platform/AppendFile.h"
#include "common_src/platform/TextCodec.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;
using ZelCommon::Platform::AppendFile;

class AppendFileTest : public ::testing::Test {
protected:
    static std::string Read(const fs::path& path) { return Orva::Testing::ReadFileBytes(path); }

    Orva::Testing::TempFolder m_temp;
    const fs::path m_folder = m_temp.Root();
};

// Line breaks follow the platform, as the runtime's text mode writes them.
TEST_F(AppendFileTest, Open_CreatesAndAppendsAcrossOpenings) {
    const fs::path path = m_folder / "log.txt";
    {
        AppendFile file = AppendFile::Open(path.wstring());
        ASSERT_TRUE(file.IsOpen());
        EXPECT_TRUE(file.Write("abc"));
        EXPECT_EQ(Read(path), "abc");
    }
    AppendFile again = AppendFile::Open(path.wstring());
    ASSERT_TRUE(again.IsOpen());
    EXPECT_TRUE(again.Write("d\ne\n"));
    EXPECT_TRUE(again.Write(""));
#ifdef _WIN32
    EXPECT_EQ(Read(path), "abcd\r\ne\r\n");
#else
    EXPECT_EQ(Read(path), "abcd\ne\n");
#endif
}

TEST_F(AppendFileTest, WideFileName_IsHonoured) {
    const std::wstring name = L"caf\u00E9 \u65E5\u672C.log";
#ifdef _WIN32
    const fs::path path = m_folder / name;
#else
    const fs::path path = m_folder / ZelCommon::Text::WideToUtf8(name);
#endif
    AppendFile file = AppendFile::Open(m_folder.wstring() + L"/" + name);
    ASSERT_TRUE(file.IsOpen());
    file.Write("x");
    EXPECT_TRUE(fs::exists(path));
    EXPECT_EQ(Read(path), "x");
}

TEST_F(AppendFileTest, MissingFolder_LeavesItUnopened) {
    AppendFile file = AppendFile::Open((m_folder / "none" / "log.txt").wstring());
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(file.Write("x"));
    EXPECT_FALSE(fs::exists(m_folder / "none"));
}

TEST_F(AppendFileTest, MoveAndClose_TransferAndReleaseTheFile) {
    const fs::path path = m_folder / "moved.txt";
    AppendFile first = AppendFile::Open(path.wstring());
    AppendFile second = std::move(first);
    EXPECT_FALSE(first.IsOpen());  // NOLINT(bugprone-use-after-move)
    ASSERT_TRUE(second.IsOpen());
    second.Write("1");
    second.Close();
    EXPECT_FALSE(second.IsOpen());
    EXPECT_FALSE(second.Write("2"));
    EXPECT_EQ(Read(path), "1");
    // Closed files can be removed even on Windows.
    EXPECT_TRUE(fs::remove(path));
}

}  // namespace
