#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/ProfileEngine.h"
#include "common_src/ZelCommon/StorageException.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"

namespace ZelCommon::Storage {
namespace {

using Fakes::FakeProfileApi;
using Function = FakeProfileApi::Function;

constexpr uint32_t kNoError = 0xFFFFFFFF;

// The error code of the storage exception `action` throws, or kNoError.
uint32_t ErrorOf(const std::function<void()>& action) {
    uint32_t code = kNoError;
    ZelCommon::Exception::CatchThrown<Exception>(action,
                                                 [&](const Exception& e) { code = e.ErrorCode(); });
    return code;
}

class IniFileWithFake : public ::testing::Test {
protected:
    void SetUp() override { m_ini.Open(L"C:\\data\\ORVA_WLM.ini", L"Settings", 0); }

    FakeProfileApi m_api;
    IniFile m_ini{m_api};
};

TEST_F(IniFileWithFake, GetString_PassesSectionKeyDefaultAndPath) {
    m_api.Set(L"Settings", L"Level", L"2");
    EXPECT_EQ(m_ini.GetString(std::wstring(L"Level"), L"1"), L"2");
    ASSERT_EQ(m_api.Calls().size(), 1u);
    const auto& call = m_api.Calls()[0];
    EXPECT_EQ(call.section, L"Settings");
    EXPECT_EQ(call.key, L"Level");
    EXPECT_EQ(call.text, L"1");
    EXPECT_EQ(call.file, L"C:\\data\\ORVA_WLM.ini");
}

TEST_F(IniFileWithFake, GetString_MissingKey_ReturnsDefault) {
    EXPECT_EQ(m_ini.GetString(std::wstring(L"Absent"), L"fallback"), L"fallback");
}

TEST_F(IniFileWithFake, GetString_CharacterArrayOverload_Forwards) {
    m_api.Set(L"Settings", L"Name", L"x");
    EXPECT_EQ(m_ini.GetString(L"Name", L"d"), L"x");
}

TEST_F(IniFileWithFake, GetDword_ReadsThroughGetIntWithDefault) {
    m_api.Set(L"Settings", L"PurgeDays", L"14");
    EXPECT_EQ(m_ini.GetDword(std::wstring(L"PurgeDays"), 3), 14u);
    EXPECT_EQ(m_ini.GetDword(std::wstring(L"Absent"), 0xFFFFFFFFu), 0xFFFFFFFFu);
    ASSERT_EQ(m_api.Calls().size(), 2u);
    EXPECT_EQ(m_api.Calls()[0].function, Function::GetInt);
    EXPECT_EQ(m_api.Calls()[0].section, L"Settings");
}

TEST_F(IniFileWithFake, SetDword_WritesUnsignedDecimal) {
    m_ini.SetDword(L"Big", 4294967295u);
    m_ini.SetDword(L"Zero", 0);
    EXPECT_EQ(m_api.Value(L"Settings", L"Big"), L"4294967295");
    EXPECT_EQ(m_api.Value(L"Settings", L"Zero"), L"0");
}

TEST_F(IniFileWithFake, SetString_WriteFails_ThrowsLastError) {
    m_api.FailWritesWith(5);
    EXPECT_EQ(ErrorOf([&] { m_ini.SetString(std::wstring(L"k"), L"v"); }), 5u);
    EXPECT_EQ(ErrorOf([&] { m_ini.SetDword(L"k", 1); }), 5u);
    EXPECT_EQ(ErrorOf([&] { m_ini.DeleteKey(); }), 5u);
    EXPECT_EQ(ErrorOf([&] { m_ini.DeleteValue(std::wstring(L"k")); }), 5u);
}

TEST_F(IniFileWithFake, Exception_CarriesThrowingSourceFile) {
    m_api.FailWritesWith(112);
    ZelCommon::Exception::CatchThrown<Exception>([&] { m_ini.SetString(std::wstring(L"k"), L"v"); },
                                                 [&](const Exception& e) {
                                                     EXPECT_NE(e.SourceFile().find("IniFile"),
                                                               std::string::npos);
                                                     EXPECT_GT(e.SourceLine(), 0u);
                                                 });
}

TEST_F(IniFileWithFake, DeleteKey_RemovesCurrentSectionWithNullKey) {
    m_api.Set(L"Settings", L"a", L"1");
    m_api.Set(L"Other", L"b", L"2");
    m_ini.DeleteKey();
    EXPECT_FALSE(m_api.HasSection(L"Settings"));
    EXPECT_TRUE(m_api.HasSection(L"Other"));
    const auto& call = m_api.Calls().back();
    EXPECT_EQ(call.section, L"Settings");
    EXPECT_FALSE(call.key.has_value());
    EXPECT_FALSE(call.text.has_value());
}

TEST_F(IniFileWithFake, DeleteValue_PassesNullValue) {
    m_api.Set(L"Settings", L"a", L"1");
    m_ini.DeleteValue(L"a");
    EXPECT_FALSE(m_api.Value(L"Settings", L"a").has_value());
    EXPECT_EQ(m_api.Calls().back().key, L"a");
    EXPECT_FALSE(m_api.Calls().back().text.has_value());
}

TEST_F(IniFileWithFake, Flush_FalseFromWindows_DoesNotThrow) {
    EXPECT_EQ(ErrorOf([&] { m_ini.Flush(); }), kNoError);
    const auto& call = m_api.Calls().back();
    EXPECT_EQ(call.function, Function::WriteString);
    EXPECT_FALSE(call.section.has_value());
    EXPECT_FALSE(call.key.has_value());
    EXPECT_FALSE(call.text.has_value());
    EXPECT_EQ(call.file, L"C:\\data\\ORVA_WLM.ini");
}

TEST_F(IniFileWithFake, EnumKeys_ListLongerThanBuffer_GrowsAndReadsAll) {
    std::vector<std::wstring> expected;
    for (int i = 0; i < 300; ++i) {
        expected.push_back(L"Section" + std::to_wstring(i));
        m_api.Set(expected.back(), L"k", L"v");
    }
    StringList names;
    m_ini.EnumKeys(names);
    EXPECT_EQ(std::vector<std::wstring>(names.begin(), names.end()), expected);
    EXPECT_GT(m_api.Calls().size(), 1u);
}

TEST_F(IniFileWithFake, EnumValues_SplitsLinesInOrder) {
    m_api.Set(L"Settings", L"a", L"1");
    m_api.Set(L"Settings", L"b", L"");
    StringList lines{L"kept"};
    m_ini.EnumValues(lines);
    EXPECT_EQ(std::vector<std::wstring>(lines.begin(), lines.end()),
              (std::vector<std::wstring>{L"kept", L"a=1", L"b="}));
}

TEST_F(IniFileWithFake, EnumValues_EmptySection_AddsNothing) {
    StringList lines;
    m_ini.EnumValues(lines);
    EXPECT_TRUE(lines.empty());
}

TEST(IniFile, NeverOpened_EveryOperationThrows160AndCallsNothing) {
    FakeProfileApi api;
    IniFile ini(api);
    StringList list;
    const std::vector<std::function<void()>> operations = {
        [&] { ini.GetString(std::wstring(L"k"), L"d"); },
        [&] { ini.GetString(L"k", L"d"); },
        [&] { ini.GetDword(std::wstring(L"k"), 1); },
        [&] { ini.SetString(std::wstring(L"k"), L"v"); },
        [&] { ini.SetDword(L"k", 1); },
        [&] { ini.DeleteKey(); },
        [&] { ini.DeleteValue(std::wstring(L"k")); },
        [&] { ini.EnumKeys(list); },
        [&] { ini.EnumValues(list); },
        [&] { ini.Flush(); },
        [&] { ini.Close(true); },
    };
    for (size_t i = 0; i < operations.size(); ++i) {
        EXPECT_EQ(ErrorOf(operations[i]), ErrorCode::BadArguments) << "operation " << i;
    }
    EXPECT_TRUE(api.Calls().empty());
}

TEST(IniFile, GetString_NeverOpened_ThrowsEvenWithDefault) {
    FakeProfileApi api;
    IniFile ini(api);
    EXPECT_EQ(ErrorOf([&] { ini.GetString(std::wstring(L"k"), L"default"); }),
              ErrorCode::BadArguments);
}

TEST(IniFile, OpenedWithEmptyPath_IsNotOpen) {
    FakeProfileApi api;
    IniFile ini(api);
    ini.Open(L"", L"Settings", 0);
    EXPECT_FALSE(ini.IsOpen());
    EXPECT_EQ(ErrorOf([&] { ini.Flush(); }), ErrorCode::BadArguments);
}

TEST(IniFile, Close_ClearsPathAndSection) {
    FakeProfileApi api;
    IniFile ini(api);
    ini.Create(L"x.ini", L"S", 0);
    EXPECT_TRUE(ini.IsOpen());
    EXPECT_EQ(ini.Section(), L"S");
    ini.Close(false);
    EXPECT_FALSE(ini.IsOpen());
    EXPECT_TRUE(ini.Section().empty());
    EXPECT_TRUE(api.Calls().empty());
}

TEST(IniFile, CloseWithFlush_FlushesFirst) {
    FakeProfileApi api;
    IniFile ini(api);
    ini.Open(L"x.ini", L"S", 0);
    ini.Close(true);
    ASSERT_EQ(api.Calls().size(), 1u);
    EXPECT_EQ(api.Calls()[0].file, L"x.ini");
    EXPECT_FALSE(ini.IsOpen());
}

// The same class over real files, through the profile engine and through the profile functions
// of this build (Win32 on Windows).
class IniFileOnDisk : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        static std::atomic<unsigned> counter{0};
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        m_folder = std::filesystem::temp_directory_path() /
                   ("orva_ini_" + std::to_string(ticks) + "_" + std::to_string(++counter));
        std::filesystem::create_directories(m_folder);
        m_path = (m_folder / "ORVA_WLM.ini").wstring();
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    void Put(const std::string& bytes) {
        std::ofstream out(std::filesystem::path(m_path), std::ios::binary);
        out << bytes;
    }

    IProfileApi& Api() { return GetParam() ? SystemProfileApi() : m_engine; }

    std::filesystem::path m_folder;
    std::wstring m_path;
    ProfileEngine m_engine;
};

TEST_P(IniFileOnDisk, WrittenValues_ReadBack) {
    IniFile ini(Api());
    ini.Create(m_path, L"Settings", 0);
    ini.SetString(std::wstring(L"Name"), L"value");
    ini.SetDword(L"PurgeDays", 30);
    EXPECT_EQ(ini.GetString(std::wstring(L"Name"), L""), L"value");
    EXPECT_EQ(ini.GetDword(std::wstring(L"PurgeDays"), 0), 30u);
    EXPECT_EQ(ini.GetString(std::wstring(L"Absent"), L"d"), L"d");
}

// Passes every call on and counts the string reads.
class CountingProfileApi : public IProfileApi {
public:
    explicit CountingProfileApi(IProfileApi& api) : m_api(api) {}

    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        ++reads;
        return m_api.GetString(section, key, defaultValue, buffer, size, file);
    }
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override {
        return m_api.GetInt(section, key, defaultValue, file);
    }
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override {
        return m_api.GetSection(section, buffer, size, file);
    }
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override {
        return m_api.GetSectionNames(buffer, size, file);
    }
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override {
        return m_api.WriteString(section, key, value, file);
    }
    uint32_t LastError() const override { return m_api.LastError(); }

    size_t reads = 0;

private:
    IProfileApi& m_api;
};

// A quoted value comes back without its quotes, and when the buffer cuts it, one character
// shorter still: that answer must not pass for the whole value. A value of 255 characters is
// read at once.
TEST_P(IniFileOnDisk, LongValues_ComeBackWhole) {
    struct Row {
        size_t length;
        bool quoted;
        size_t reads;
    };
    static const Row kRows[] = {
        {255, false, 1}, {256, false, 2},  {257, false, 2}, {511, false, 2},
        {512, false, 3}, {2000, false, 8}, {255, true, 1},  {256, true, 2},
        {257, true, 2},  {512, true, 3},   {768, true, 4},
    };
    CountingProfileApi api(Api());
    IniFile ini(api);
    ini.Open(m_path, L"S", 0);
    for (const Row& row : kRows) {
        const std::wstring value(row.length, L'x');
        ini.SetString(std::wstring(L"k"), row.quoted ? L'"' + value + L'"' : value);
        api.reads = 0;
        EXPECT_EQ(ini.GetString(std::wstring(L"k"), L""), value)
            << row.length << (row.quoted ? " quoted" : "");
        EXPECT_EQ(api.reads, row.reads) << row.length << (row.quoted ? " quoted" : "");
    }
}

TEST_P(IniFileOnDisk, DeleteKey_RemovesCurrentSectionOnly) {
    Put("[Keep]\r\na=1\r\n[Drop]\r\nb=2\r\nc=3\r\n");
    IniFile drop(Api());
    drop.Open(m_path, L"Drop", 0);
    drop.DeleteKey();
    StringList sections;
    drop.EnumKeys(sections);
    EXPECT_EQ(std::vector<std::wstring>(sections.begin(), sections.end()),
              (std::vector<std::wstring>{L"Keep"}));
    EXPECT_EQ(drop.GetString(std::wstring(L"b"), L"gone"), L"gone");
}

TEST_P(IniFileOnDisk, DeleteValue_AbsentKeyAndMissingFile_Succeed) {
    IniFile ini(Api());
    ini.Open(m_path, L"S", 0);
    EXPECT_EQ(ErrorOf([&] { ini.DeleteValue(std::wstring(L"absent")); }), kNoError);
    Put("[S]\r\na=1\r\n");
    EXPECT_EQ(ErrorOf([&] { ini.DeleteValue(std::wstring(L"absent")); }), kNoError);
    ini.DeleteValue(std::wstring(L"a"));
    EXPECT_EQ(ini.GetString(std::wstring(L"a"), L"gone"), L"gone");
}

TEST_P(IniFileOnDisk, EnumKeysAndValues_BigFile_ReadWhole) {
    std::string bytes;
    for (int s = 0; s < 400; ++s) {
        bytes += "[Section" + std::to_string(s) + "]\r\n";
    }
    bytes += "[Big]\r\n";
    for (int k = 0; k < 3000; ++k) {
        bytes += "Key" + std::to_string(k) + "=Value" + std::to_string(k) + "\r\n";
    }
    Put(bytes);
    IniFile ini(Api());
    ini.Open(m_path, L"Big", 0);
    StringList sections;
    ini.EnumKeys(sections);
    ASSERT_EQ(sections.size(), 401u);
    EXPECT_EQ(sections.front(), L"Section0");
    EXPECT_EQ(sections.back(), L"Big");
    StringList lines;
    ini.EnumValues(lines);
    ASSERT_EQ(lines.size(), 3000u);
    EXPECT_EQ(lines.back(), L"Key2999=Value2999");
}

TEST_P(IniFileOnDisk, SetString_FolderMissing_ThrowsPathNotFound) {
    IniFile ini(Api());
    ini.Open((m_folder / "absent" / "x.ini").wstring(), L"S", 0);
    EXPECT_EQ(ErrorOf([&] { ini.SetString(std::wstring(L"k"), L"v"); }), 3u);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "absent"));
}

TEST_P(IniFileOnDisk, FailedWrite_LeavesOldFileIntact) {
    Put("[S]\r\nk=old\r\n");
    // A folder squatting on the path forces the replacement to fail.
    IniFile blocked(Api());
    blocked.Open(m_folder.wstring(), L"S", 0);
    EXPECT_NE(ErrorOf([&] { blocked.SetString(std::wstring(L"k"), L"new"); }), kNoError);
    IniFile ini(Api());
    ini.Open(m_path, L"S", 0);
    EXPECT_EQ(ini.GetString(std::wstring(L"k"), L""), L"old");
}

INSTANTIATE_TEST_SUITE_P(Apis, IniFileOnDisk, ::testing::Values(false, true),
                         [](const ::testing::TestParamInfo<bool>& param) {
                             return param.param ? "SystemProfileApi" : "ProfileEngine";
                         });

}  // namespace
}  // namespace ZelCommon::Storage
