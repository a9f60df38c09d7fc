#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Storage::Testing {

enum class ProfileCall { GetString, GetInt, GetSection, GetSectionNames, WriteString };

// Where the call points: at a file with the given bytes, at a file that does not exist, into a
// folder that does not exist, or at a folder.
enum class FileSetup { Contents, Missing, MissingFolder, Folder };

// One call of a profile function and everything it must produce. Null arguments are null
// pointers. The buffer is pre-filled with '#', so an expected '#' means "left alone".
struct ProfileCase {
    std::string name;
    FileSetup setup = FileSetup::Contents;
    std::string bytes;
    ProfileCall call = ProfileCall::GetString;
    const wchar_t* section = nullptr;
    const wchar_t* key = nullptr;
    const wchar_t* text = nullptr;  // the default of a read, the value of a write
    int32_t intDefault = 0;
    uint32_t size = 0;
    uint32_t expectedReturn = 0;  // writes: 1 for true
    std::wstring expectedBuffer;  // the buffer's leading characters, zeros included
    // Writes: the file afterwards; "unchanged" compares it with `bytes`.
    enum class After { NotChecked, Bytes, Unchanged, Absent } after = After::NotChecked;
    std::string expectedBytes;
    std::optional<uint32_t> expectedLastError;
};

std::ostream& operator<<(std::ostream& out, const ProfileCase& profileCase);

// The cases every implementation of the profile functions must answer alike.
const std::vector<ProfileCase>& ProfileCases();
// Buffers of one character or none, the engine's own cases: listing a section, the Win32
// functions write a zero just outside such a buffer; the engine stays inside.
const std::vector<ProfileCase>& TinyBufferEngineCases();

std::string ProfileCaseName(const ::testing::TestParamInfo<ProfileCase>& param);

// Sets the case's file up in a fresh temporary folder, makes the call and checks every
// expectation with GoogleTest assertions; the folder is removed afterwards. Read calls are made
// `repeats` times, so that a cache is exercised too.
void RunProfileCase(IProfileApi& api, const ProfileCase& profileCase, int repeats = 1);

// The file bytes of text in UTF-16LE or UTF-16BE with a byte-order mark.
std::string Utf16LeFile(std::wstring_view text);
std::string Utf16BeFile(std::wstring_view text);

}  // namespace ZelCommon::Storage::Testing
