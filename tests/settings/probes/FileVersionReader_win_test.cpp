#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "settings/probes/FileVersionReader.h"
#include "support/TempFolder.h"

namespace Orva::Settings {
namespace {

TEST(FileVersionReaderWin32, SystemDll_HasFileVersionAndLanguageButNoUnknownName) {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    FileVersionReader reader(std::wstring(folder, length) + L"\\kernel32.dll");
    ASSERT_TRUE(reader.HasVersionBlock());
    const auto version = reader.Query(L"FileVersion");
    ASSERT_TRUE(version.has_value());
    EXPECT_NE(version->find(L'.'), std::wstring::npos) << *version;
    EXPECT_NE(reader.LanguageId(), 0);
    EXPECT_FALSE(reader.Query(L"NoSuchVersionString").has_value());
    EXPECT_FALSE(reader.Query(L"").has_value());
}

TEST(FileVersionReaderWin32, NoVersionResource_EveryQueryIsNone) {
    Testing::TempFolder folder;
    const std::wstring plain = folder.File(L"plain.txt");
    std::ofstream(std::filesystem::path(plain)) << "no version resource here";
    for (const std::wstring& path : {plain, std::wstring(L"C:\\no\\such\\file.dll")}) {
        SCOPED_TRACE(testing::PrintToString(path));
        FileVersionReader reader(path);
        EXPECT_FALSE(reader.HasVersionBlock());
        for (const wchar_t* name : {L"FileVersion", L"ProductVersion", L""}) {
            EXPECT_FALSE(reader.Query(name).has_value()) << testing::PrintToString(name);
        }
        EXPECT_EQ(reader.LanguageId(), 0);
    }
}

}  // namespace
}  // namespace Orva::Settings
