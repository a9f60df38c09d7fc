#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/ProfileEngine.h"
#include "common_src/ZelCommon/StorageException.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"

namespace ZelCommon::Storage {
namespace {

using Fakes::FakeProfileApi;
using Orva::Testing::WriteFileBytes;

constexpr uint32_t kNoError = 0xFFFFFFFF;

// The error code of the storage exception `action` throws, or kNoError.
uint32_t ErrorOf(const std::function<void()>& action) {
    uint32_t code = kNoError;
    ZelCommon::Exception::CatchThrown<Exception>(action,
                                                 [&](const Exception& e) { code = e.ErrorCode(); });
    return code;
}

std::vector<std::wstring> Listed(const StringList& list) {
    return std::vector<std::wstring>(list.begin(), list.end());
}

// Never opened, opened with an empty path, and closed: a store without a path refuses all.
TEST(IniFile, NoPath_EveryOperationThrows160) {
    FakeProfileApi api;
    IniFile never(api);
    IniFile emptyPath(api);
    emptyPath.Open(L"", L"Settings", 0);
    IniFile closed(api);
    closed.Create(L"x.ini", L"Settings", 0);
    closed.Close(false);
    for (IniFile* ini : {&never, &emptyPath, &closed}) {
        StringList list;
        const std::vector<std::function<void()>> operations = {
            [&] { ini->GetString(std::wstring(L"k"), L"d"); },
            [&] { ini->GetString(L"k", L"d"); },
            [&] { ini->GetDword(std::wstring(L"k"), 1); },
            [&] { ini->SetString(std::wstring(L"k"), L"v"); },
            [&] { ini->SetDword(L"k", 1); },
            [&] { ini->DeleteKey(); },
            [&] { ini->DeleteValue(std::wstring(L"k")); },
            [&] { ini->EnumKeys(list); },
            [&] { ini->EnumValues(list); },
            [&] { ini->Flush(); },
            [&] { ini->Close(true); },
        };
        for (size_t i = 0; i < operations.size(); ++i) {
            EXPECT_EQ(ErrorOf(operations[i]), ErrorCode::BadArguments) << "operation " << i;
        }
    }
}

// A refused write throws the profile functions' last error, from this class's own file.
TEST(IniFile, WriteRefused_ThrowsLastErrorFromIniFile) {
    FakeProfileApi api;
    IniFile ini(api);
    ini.Open(L"x.ini", L"Settings", 0);
    api.FailWritesWith(5);
    const std::vector<std::function<void()>> writes = {
        [&] { ini.SetString(L"k", L"v"); },
        [&] { ini.SetDword(L"k", 1); },
        [&] { ini.DeleteKey(); },
        [&] { ini.DeleteValue(L"k"); },
    };
    for (size_t i = 0; i < writes.size(); ++i) {
        uint32_t code = kNoError;
        std::string file;
        ZelCommon::Exception::CatchThrown<Exception>(writes[i], [&](const Exception& e) {
            code = e.ErrorCode();
            file = e.SourceFile();
        });
        EXPECT_EQ(code, 5u) << "write " << i;
        EXPECT_NE(file.find("IniFile"), std::string::npos) << "write " << i;
    }
}

// The class over real files, through the profile engine and through the profile functions of
// this build (Win32 on Windows).
class IniFileOnDisk : public ::testing::TestWithParam<bool> {
protected:
    IProfileApi& Api() { return GetParam() ? SystemProfileApi() : m_engine; }

    Orva::Testing::TempFolder m_folder;
    std::wstring m_path = m_folder.File(L"ORVA_WLM.ini");
    ProfileEngine m_engine;
};

TEST_P(IniFileOnDisk, WrittenValues_ReadBack) {
    IniFile ini(Api());
    ini.Create(m_path, L"Settings", 0);
    ini.SetString(L"Name", L"value");
    ini.SetDword(L"PurgeDays", 30);
    ini.SetDword(L"Big", 4294967295u);
    EXPECT_EQ(ini.GetString(L"Name", L""), L"value");
    EXPECT_EQ(ini.GetDword(L"PurgeDays", 0), 30u);
    EXPECT_EQ(ini.GetString(L"Big", L""), L"4294967295");
    EXPECT_EQ(ini.GetString(L"Absent", L"d"), L"d");
    EXPECT_EQ(ini.GetDword(L"Absent", 0xFFFFFFFFu), 0xFFFFFFFFu);
    // Windows answers a flush with false even when it worked.
    EXPECT_EQ(ErrorOf([&] { ini.Close(true); }), kNoError);
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
        ini.SetString(L"k", row.quoted ? L'"' + value + L'"' : value);
        api.reads = 0;
        EXPECT_EQ(ini.GetString(L"k", L""), value) << row.length << (row.quoted ? " quoted" : "");
        EXPECT_EQ(api.reads, row.reads) << row.length << (row.quoted ? " quoted" : "");
    }
}

TEST_P(IniFileOnDisk, DeleteKey_RemovesCurrentSectionOnly) {
    WriteFileBytes(m_path, "[Keep]\r\na=1\r\n[Drop]\r\nb=2\r\nc=3\r\n");
    IniFile drop(Api());
    drop.Open(m_path, L"Drop", 0);
    drop.DeleteKey();
    StringList sections;
    drop.EnumKeys(sections);
    EXPECT_EQ(Listed(sections), (std::vector<std::wstring>{L"Keep"}));
    StringList lines;
    drop.EnumValues(lines);
    EXPECT_TRUE(lines.empty());
}

TEST_P(IniFileOnDisk, DeleteValue_AbsentKeyAndMissingFile_Succeed) {
    IniFile ini(Api());
    ini.Open(m_path, L"S", 0);
    EXPECT_EQ(ErrorOf([&] { ini.DeleteValue(L"absent"); }), kNoError);
    WriteFileBytes(m_path, "[S]\r\na=1\r\n");
    EXPECT_EQ(ErrorOf([&] { ini.DeleteValue(L"absent"); }), kNoError);
    ini.DeleteValue(L"a");
    EXPECT_EQ(ini.GetString(L"a", L"gone"), L"gone");
}

// Lists longer than the first buffer, appended to what the caller's list holds.
TEST_P(IniFileOnDisk, EnumKeysAndValues_BigFile_ReadWhole) {
    std::string bytes;
    std::vector<std::wstring> sections;
    for (int s = 0; s < 400; ++s) {
        bytes += "[Section" + std::to_string(s) + "]\r\n";
        sections.push_back(L"Section" + std::to_wstring(s));
    }
    bytes += "[Big]\r\n";
    sections.push_back(L"Big");
    std::vector<std::wstring> lines{L"kept"};
    for (int k = 0; k < 3000; ++k) {
        bytes += "Key" + std::to_string(k) + "=Value" + std::to_string(k) + "\r\n";
        lines.push_back(L"Key" + std::to_wstring(k) + L"=Value" + std::to_wstring(k));
    }
    WriteFileBytes(m_path, bytes);
    IniFile ini(Api());
    ini.Open(m_path, L"Big", 0);
    StringList found;
    ini.EnumKeys(found);
    EXPECT_EQ(Listed(found), sections);
    found = {L"kept"};
    ini.EnumValues(found);
    EXPECT_EQ(Listed(found), lines);
}

TEST_P(IniFileOnDisk, SetString_FolderMissing_ThrowsPathNotFound) {
    IniFile ini(Api());
    ini.Open((m_folder.Root() / "absent" / "x.ini").wstring(), L"S", 0);
    EXPECT_EQ(ErrorOf([&] { ini.SetString(L"k", L"v"); }), 3u);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Root() / "absent"));
}

INSTANTIATE_TEST_SUITE_P(Apis, IniFileOnDisk, ::testing::Values(false, true),
                         [](const ::testing::TestParamInfo<bool>& param) {
                             return param.param ? "SystemProfileApi" : "ProfileEngine";
                         });

}  // namespace
}  // namespace ZelCommon::Storage
