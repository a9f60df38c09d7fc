#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ProfileCases.h"
#include "common_src/ZelCommon/ProfileEngine.h"
#include "common_src/ZelCommon/Win32ProfileApi.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace ZelCommon::Storage::Testing {
namespace {

class Win32ProfileCases : public ::testing::TestWithParam<ProfileCase> {};

TEST_P(Win32ProfileCases, AnswersAsTabled) {
    Win32ProfileApi api;
    RunProfileCase(api, GetParam(), 2);
}

INSTANTIATE_TEST_SUITE_P(Win32ProfileApi, Win32ProfileCases, ::testing::ValuesIn(ProfileCases()),
                         ProfileCaseName);

// Random small files, the same calls on the engine and on Windows, every answer compared.
class ProfileDifferential : public ::testing::Test {
protected:
    uint32_t Next() {
        m_seed = m_seed * 1103515245u + 12345u;
        return m_seed >> 16;
    }

    std::string RandomFile() {
        static const char kPool[] = "[]=;\r\n \t\"'\x1A\xE9\0aAbB";
        std::string bytes;
        const uint32_t kind = Next() % 8;
        if (kind == 0) {
            bytes = "\xEF\xBB\xBF";
        }
        const size_t size = Next() % 120;
        for (size_t i = 0; i < size; ++i) {
            bytes.push_back(kPool[Next() % (sizeof(kPool) - 1)]);
        }
        if (kind == 1 || kind == 2) {
            std::wstring wide;
            for (char c : bytes) {
                wide.push_back(static_cast<wchar_t>(static_cast<unsigned char>(c)));
            }
            return kind == 1 ? Utf16LeFile(wide) : Utf16BeFile(wide);
        }
        if (kind == 3) {
            return "\xEF\xBB" + bytes;  // a cut UTF-8 mark is ANSI text
        }
        return bytes;
    }

    const wchar_t* RandomName() {
        static const wchar_t* const kNames[] = {L"a", L"A",  L"b",      L" a", L"a ",
                                                L"",  L";a", L"\u00E9", L"[a]"};
        return kNames[Next() % (sizeof(kNames) / sizeof(kNames[0]))];
    }

    Orva::Testing::TempFolder m_folder;
    uint32_t m_seed = 2024;
};

TEST_F(ProfileDifferential, RandomFiles_EngineAnswersAsWin32) {
    ProfileEngine engine;
    Win32ProfileApi win32;
    static const uint32_t kSizes[] = {2, 3, 5, 8, 64};
    for (int round = 0; round < 600; ++round) {
        const std::string bytes = RandomFile();
        const std::filesystem::path engineFile =
            m_folder.Root() / ("e" + std::to_string(round) + ".ini");
        const std::filesystem::path win32File =
            m_folder.Root() / ("w" + std::to_string(round) + ".ini");
        Orva::Testing::WriteFileBytes(engineFile, bytes);
        Orva::Testing::WriteFileBytes(win32File, bytes);
        const std::wstring e = engineFile.wstring();
        const std::wstring w = win32File.wstring();
        const wchar_t* section = RandomName();
        const wchar_t* key = RandomName();
        const uint32_t size = kSizes[Next() % 5];
        SCOPED_TRACE("round " + std::to_string(round));

        std::vector<wchar_t> a(size, L'#');
        std::vector<wchar_t> b(size, L'#');
        EXPECT_EQ(engine.GetString(section, key, L"d ", a.data(), size, e.c_str()),
                  win32.GetString(section, key, L"d ", b.data(), size, w.c_str()));
        EXPECT_EQ(a, b) << "GetString";
        a.assign(size, L'#');
        b.assign(size, L'#');
        EXPECT_EQ(engine.GetString(section, nullptr, L"d", a.data(), size, e.c_str()),
                  win32.GetString(section, nullptr, L"d", b.data(), size, w.c_str()));
        EXPECT_EQ(a, b) << "key names";
        a.assign(size, L'#');
        b.assign(size, L'#');
        EXPECT_EQ(engine.GetSection(section, a.data(), size, e.c_str()),
                  win32.GetSection(section, b.data(), size, w.c_str()));
        EXPECT_EQ(a, b) << "GetSection";
        a.assign(size, L'#');
        b.assign(size, L'#');
        EXPECT_EQ(engine.GetSectionNames(a.data(), size, e.c_str()),
                  win32.GetSectionNames(b.data(), size, w.c_str()));
        EXPECT_EQ(a, b) << "GetSectionNames";
        EXPECT_EQ(engine.GetInt(section, key, 7, e.c_str()),
                  win32.GetInt(section, key, 7, w.c_str()));

        const uint32_t write = Next() % 3;
        const wchar_t* value = write == 0 ? L" v" : nullptr;
        const wchar_t* writeKey = write == 2 ? nullptr : key;
        EXPECT_EQ(engine.WriteString(section, writeKey, value, e.c_str()),
                  win32.WriteString(section, writeKey, value, w.c_str()));
        EXPECT_EQ(Orva::Testing::ReadFileBytes(engineFile), Orva::Testing::ReadFileBytes(win32File))
            << "after write " << write;
    }
}

}  // namespace
}  // namespace ZelCommon::Storage::Testing
