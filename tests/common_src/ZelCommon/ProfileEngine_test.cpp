#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "ProfileCases.h"
#include "common_src/ZelCommon/ProfileEngine.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Storage::Testing {
namespace {

using Orva::Testing::ReadFileBytes;
using Orva::Testing::WriteFileBytes;

class ProfileEngineCases : public ::testing::TestWithParam<ProfileCase> {};

TEST_P(ProfileEngineCases, AnswersAsTabled) {
    ProfileEngine engine;
    RunProfileCase(engine, GetParam(), 2);
}

INSTANTIATE_TEST_SUITE_P(ProfileEngine, ProfileEngineCases, ::testing::ValuesIn(ProfileCases()),
                         ProfileCaseName);
INSTANTIATE_TEST_SUITE_P(ProfileEngineTinyBuffers, ProfileEngineCases,
                         ::testing::ValuesIn(TinyBufferEngineCases()), ProfileCaseName);

class ProfileEngineFiles : public ::testing::Test {
protected:
    std::wstring Get(const wchar_t* section, const wchar_t* key) {
        wchar_t buffer[256] = {};
        m_engine.GetString(section, key, L"?", buffer, 256, m_file.c_str());
        return buffer;
    }

    Orva::Testing::TempFolder m_folder;
    std::filesystem::path m_path = m_folder.Root() / "settings.ini";
    std::wstring m_file = m_path.wstring();
    ProfileEngine m_engine;
};

// Same size and, on a coarse clock, the same write time: neither a file renamed over this one
// nor a rewrite in place may be answered from the cache.
TEST_F(ProfileEngineFiles, SameSizeChangeMomentsLater_NewContentsRead) {
    WriteFileBytes(m_path, "[s]\r\nk=1\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    const std::filesystem::path other = m_folder.Root() / "other.ini";
    WriteFileBytes(other, "[s]\r\nk=2\r\n");
    std::filesystem::rename(other, m_path);
    EXPECT_EQ(Get(L"s", L"k"), L"2");
    WriteFileBytes(m_path, "[s]\r\nk=3\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"3");
}

TEST_F(ProfileEngineFiles, OldFileRewrittenWithSameStamp_CacheTrusted) {
    WriteFileBytes(m_path, "[s]\r\nk=1\r\n");
    const auto old = std::filesystem::last_write_time(m_path) - std::chrono::hours(1);
    std::filesystem::last_write_time(m_path, old);
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    // A stamp well in the past is trusted: a rewrite that forges it back goes unseen, which
    // shows the second read came from the cache.
    WriteFileBytes(m_path, "[s]\r\nk=2\r\n");
    std::filesystem::last_write_time(m_path, old);
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    m_engine.ClearCache();
    EXPECT_EQ(Get(L"s", L"k"), L"2");
}

TEST_F(ProfileEngineFiles, WriteThenRead_SeesTheFileAsWritten) {
    WriteFileBytes(m_path, "[s]\r\n");
    ASSERT_TRUE(m_engine.WriteString(L"s", L"k", L"v  ", m_file.c_str()));
    // A reader of the file sees the value trimmed, so the cache must too.
    EXPECT_EQ(Get(L"s", L"k"), L"v");
    ASSERT_TRUE(m_engine.WriteString(L"s", L"k", L"v", m_file.c_str()));
    EXPECT_EQ(Get(L"s", L"k"), L"v");
}

// A name of 250 bytes leaves no room under the limit of 255 for the temporary name beside it, so
// the write fails whoever runs it (root too). The old file stays exactly as it was.
TEST_F(ProfileEngineFiles, TemporaryFileCannotBeCreated_OldFileUnchangedAndFailureReported) {
    const std::filesystem::path path = m_folder.Root() / (std::string(246, 's') + ".ini");
    const std::string old = "[s]\r\nk=1\r\n";
    WriteFileBytes(path, old);
    EXPECT_FALSE(m_engine.WriteString(L"s", L"k", L"2", path.wstring().c_str()));
    EXPECT_NE(0u, m_engine.LastError());
    EXPECT_EQ(old, ReadFileBytes(path));
    EXPECT_EQ(1u, m_folder.FileCount());
}

TEST_F(ProfileEngineFiles, ManyThreadsWriting_NoUpdateLost) {
    constexpr int kThreads = 4;
    constexpr int kKeysPerThread = 25;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([this, t] {
            for (int k = 0; k < kKeysPerThread; ++k) {
                const std::wstring key = L"k" + std::to_wstring(t) + L"_" + std::to_wstring(k);
                m_engine.WriteString(L"s", key.c_str(), L"1", m_file.c_str());
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    ProfileEngine fresh;
    std::vector<wchar_t> buffer(65536);
    const uint32_t length = fresh.GetSection(L"s", buffer.data(), 65536, m_file.c_str());
    EXPECT_EQ(std::ranges::count(std::wstring_view(buffer.data(), length), L'\0'),
              kThreads * kKeysPerThread);
}

TEST_F(ProfileEngineFiles, RandomBytes_NeverCrash) {
    uint32_t seed = 12345;
    for (int round = 0; round < 200; ++round) {
        std::string bytes;
        const size_t size = (seed = seed * 1103515245u + 12345u) % 600;
        for (size_t i = 0; i < size; ++i) {
            seed = seed * 1103515245u + 12345u;
            const char pool[] = "[]=;\r\n \t\"'\xFF\xFE\xEF\xBB\xBF\0abK";
            bytes.push_back(pool[(seed >> 16) % (sizeof(pool) - 1)]);
        }
        WriteFileBytes(m_path, bytes);
        wchar_t buffer[16];
        m_engine.GetSectionNames(buffer, 16, m_file.c_str());
        m_engine.GetSection(L"a", buffer, 16, m_file.c_str());
        m_engine.GetString(L"a", L"b", L"d", buffer, 16, m_file.c_str());
        m_engine.GetString(L"a", nullptr, L"d", buffer, 3, m_file.c_str());
        m_engine.GetInt(L"a", L"K", 1, m_file.c_str());
        // Not read back: rewriting can turn leading bytes into a byte-order mark, as on Windows.
        EXPECT_TRUE(m_engine.WriteString(L"a", L"b", L"c", m_file.c_str()));
    }
}

}  // namespace
}  // namespace ZelCommon::Storage::Testing
