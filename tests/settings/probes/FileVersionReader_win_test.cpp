#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/TempFolder.h"
#include "settings/probes/FileVersionReader.h"

namespace Orva::Settings {
namespace {

std::wstring SystemFile(const wchar_t* name) {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    return std::wstring(folder, length) + L"\\" + name;
}

TEST(FileVersionReaderWin32, SystemDll_HasFileVersionAndLanguage) {
    FileVersionReader reader(SystemFile(L"kernel32.dll"));
    ASSERT_TRUE(reader.HasVersionBlock());
    const auto version = reader.Query(L"FileVersion");
    ASSERT_TRUE(version.has_value());
    EXPECT_FALSE(version->empty());
    EXPECT_NE(version->find(L'.'), std::wstring::npos) << *version;
    EXPECT_NE(reader.LanguageId(), 0);
}

TEST(FileVersionReaderWin32, SystemDll_UnknownName_IsNone) {
    FileVersionReader reader(SystemFile(L"kernel32.dll"));
    EXPECT_FALSE(reader.Query(L"NoSuchVersionString").has_value());
    EXPECT_FALSE(reader.Query(L"").has_value());
}

TEST(FileVersionReaderWin32, FileWithoutVersionResource_EveryQueryIsNone) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"plain.txt");
    std::ofstream(std::filesystem::path(path)) << "no version resource here";
    FileVersionReader reader(path);
    EXPECT_FALSE(reader.HasVersionBlock());
    for (const wchar_t* name : {L"FileVersion", L"ProductVersion", L"PrivateBuild", L""}) {
        EXPECT_FALSE(reader.Query(name).has_value()) << name;
    }
    EXPECT_EQ(reader.LanguageId(), 0);
}

TEST(FileVersionReaderWin32, MissingFile_EveryQueryIsNone) {
    FileVersionReader reader(L"C:\\no\\such\\file.dll");
    EXPECT_FALSE(reader.HasVersionBlock());
    EXPECT_FALSE(reader.Query(L"FileVersion").has_value());
}

}  // namespace
}  // namespace Orva::Settings
