#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "ProfileCases.h"
#include "common_src/ZelCommon/ProfileEngine.h"
#include "support/FileBytes.h"

namespace ZelCommon::Storage::Testing {
namespace {

using namespace std::string_literals;

class ProfileEngineCases : public ::testing::TestWithParam<ProfileCase> {};

TEST_P(ProfileEngineCases, AnswersAsWin32) {
    ProfileEngine engine;
    RunProfileCase(engine, GetParam(), 2);
}

INSTANTIATE_TEST_SUITE_P(ProfileEngine, ProfileEngineCases, ::testing::ValuesIn(ProfileCases()),
                         ProfileCaseName);

// Buffers of one character or none: the Win32 functions write a zero just outside such a buffer
// when they list a section, so these cases are the engine's own: it stays inside and answers
// with an empty list.
ProfileCase TinyListCase(std::string name, ProfileCall call, const wchar_t* section, uint32_t size,
                         std::wstring buffer) {
    ProfileCase c;
    c.name = std::move(name);
    c.bytes = "[s]\r\na=1\r\nb=2\r\n";
    c.call = call;
    c.section = section;
    c.text = L"dd";
    c.size = size;
    c.expectedReturn = 0;
    c.expectedBuffer = std::move(buffer);
    return c;
}

TEST(ProfileEngine, SectionLinesSizeOne_EmptyAndInsideBuffer) {
    ProfileEngine engine;
    RunProfileCase(engine, TinyListCase("lines1", ProfileCall::GetSection, L"s", 1, L"\0"s));
}

TEST(ProfileEngine, SectionLinesSizeZero_TouchesNothing) {
    ProfileEngine engine;
    RunProfileCase(engine, TinyListCase("lines0", ProfileCall::GetSection, L"s", 0, L""s));
}

TEST(ProfileEngine, MissingSectionLinesSizeOne_EmptyAndInsideBuffer) {
    ProfileEngine engine;
    RunProfileCase(engine, TinyListCase("missing1", ProfileCall::GetSection, L"x", 1, L"\0"s));
}

TEST(ProfileEngine, KeyNamesSizeOne_EmptyDefaultInsideBuffer) {
    ProfileEngine engine;
    RunProfileCase(engine, TinyListCase("keys1", ProfileCall::GetString, L"s", 1, L"\0"s));
}

class ProfileEngineFiles : public ::testing::Test {
protected:
    void SetUp() override {
        m_folder = std::filesystem::temp_directory_path() /
                   ("orva_engine_" +
                    std::to_string(std::hash<std::thread::id>{}(std::this_thread::get_id())) + "_" +
                    ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
        m_file = (m_folder / "settings.ini").wstring();
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    void Put(const std::string& bytes) {
        std::ofstream out(std::filesystem::path(m_file), std::ios::binary | std::ios::trunc);
        out << bytes;
    }

    std::wstring Get(const wchar_t* section, const wchar_t* key) {
        wchar_t buffer[256] = {};
        m_engine.GetString(section, key, L"?", buffer, 256, m_file.c_str());
        return buffer;
    }

    std::filesystem::path m_folder;
    std::wstring m_file;
    ProfileEngine m_engine;
};

TEST_F(ProfileEngineFiles, FileReplacedBehindTheCache_NewContentsRead) {
    Put("[s]\r\nk=1\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    // Same size and, on a coarse clock, the same time: the rename still gives a new identity.
    const std::filesystem::path other = m_folder / "other.ini";
    {
        std::ofstream out(other, std::ios::binary);
        out << "[s]\r\nk=2\r\n";
    }
    std::filesystem::rename(other, std::filesystem::path(m_file));
    EXPECT_EQ(Get(L"s", L"k"), L"2");
}

TEST_F(ProfileEngineFiles, SameSizeRewriteInPlace_NewContentsRead) {
    Put("[s]\r\nk=1\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    // Same file, same size, and within the file system's time granularity.
    Put("[s]\r\nk=2\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"2");
}

TEST_F(ProfileEngineFiles, OldFileRewrittenWithSameStamp_CacheTrusted) {
    Put("[s]\r\nk=1\r\n");
    const std::filesystem::path path(m_file);
    const auto old = std::filesystem::last_write_time(path) - std::chrono::hours(1);
    std::filesystem::last_write_time(path, old);
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    // A stamp well in the past is trusted: a rewrite that forges it back goes unseen, which
    // shows the second read came from the cache.
    Put("[s]\r\nk=2\r\n");
    std::filesystem::last_write_time(path, old);
    EXPECT_EQ(Get(L"s", L"k"), L"1");
    m_engine.ClearCache();
    EXPECT_EQ(Get(L"s", L"k"), L"2");
}

TEST_F(ProfileEngineFiles, WriteThenRead_SeesTheFileAsWritten) {
    Put("[s]\r\n");
    ASSERT_TRUE(m_engine.WriteString(L"s", L"k", L"v  ", m_file.c_str()));
    // A reader of the file sees the value trimmed, so the cache must too.
    EXPECT_EQ(Get(L"s", L"k"), L"v");
    ASSERT_TRUE(m_engine.WriteString(L"s", L"k", L"v", m_file.c_str()));
    EXPECT_EQ(Get(L"s", L"k"), L"v");
}

// A name of 250 bytes leaves no room under the limit of 255 for the temporary name beside it, so
// the write fails whoever runs it (root too). The old file stays exactly as it was.
TEST_F(ProfileEngineFiles, TemporaryFileCannotBeCreated_OldFileUnchangedAndFailureReported) {
    const std::filesystem::path path = m_folder / (std::string(246, 's') + ".ini");
    const std::string old = "[s]\r\nk=1\r\n";
    {
        std::ofstream out(path, std::ios::binary);
        out << old;
    }
    EXPECT_EQ(old, Orva::Testing::ReadFileBytes(path));
    EXPECT_FALSE(m_engine.WriteString(L"s", L"k", L"2", path.wstring().c_str()));
    EXPECT_NE(0u, m_engine.LastError());
    EXPECT_EQ(old, Orva::Testing::ReadFileBytes(path));
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(m_folder),
                               std::filesystem::directory_iterator()));
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
    size_t lines = 0;
    for (uint32_t i = 0; i < length; ++i) {
        lines += buffer[i] == L'\0' ? 1u : 0u;
    }
    EXPECT_EQ(lines, static_cast<size_t>(kThreads * kKeysPerThread));
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
        Put(bytes);
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

TEST_F(ProfileEngineFiles, OddLengthUtf16_LastByteIgnored) {
    Put("\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0v\0\r\0\n\0x"s);
    EXPECT_EQ(Get(L"s", L"k"), L"v");
}

TEST_F(ProfileEngineFiles, LoneSurrogatesInUtf16_DoNotStopTheFile) {
    Put("\xFF\xFE[\0s\0]\0\n\0a\0=\0\x00\xD8\n\0k\0=\0v\0"s);
    EXPECT_EQ(Get(L"s", L"k"), L"v");
}

TEST_F(ProfileEngineFiles, Utf8MarkOnly_NoSections) {
    Put("\xEF\xBB\xBF");
    wchar_t buffer[8] = {L'#', L'#'};
    EXPECT_EQ(m_engine.GetSectionNames(buffer, 8, m_file.c_str()), 0u);
    EXPECT_EQ(buffer[0], L'\0');
}

TEST_F(ProfileEngineFiles, InvalidUtf8_ReadAroundTheDamage) {
    Put("\xEF\xBB\xBF[s]\r\nbad=\xC3\x28\xFF\r\nk=v\r\n");
    EXPECT_EQ(Get(L"s", L"k"), L"v");
    EXPECT_NE(Get(L"s", L"bad"), L"?");
}

TEST_F(ProfileEngineFiles, FiveMegabyteFile_ReadAndRewritten) {
    std::string bytes = "[s]\r\nk=" + std::string(4 * 1024 * 1024, 'x') + "\r\n";
    for (int i = 0; i < 20000; ++i) {
        bytes += "[n" + std::to_string(i) + "]\r\nk=v\r\n";
    }
    Put(bytes);
    EXPECT_EQ(Get(L"n19999", L"k"), L"v");
    EXPECT_EQ(Get(L"s", L"k"), std::wstring(255, L'x'));
    ASSERT_TRUE(m_engine.WriteString(L"n5", L"k", L"w", m_file.c_str()));
    EXPECT_EQ(Get(L"n5", L"k"), L"w");
    EXPECT_EQ(std::filesystem::file_size(m_folder / "settings.ini"), bytes.size());
}

}  // namespace
}  // namespace ZelCommon::Storage::Testing
