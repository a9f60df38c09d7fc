#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "support/TempFolder.h"
#include "tools/orvactl/TextSink.h"

namespace Orva::Orvactl {
namespace {

using ZelCommon::Platform::unique_handle;

// Points the standard output at a file for the life of the object.
class RedirectedOutput {
public:
    explicit RedirectedOutput(const std::wstring& path)
        : m_saved(GetStdHandle(STD_OUTPUT_HANDLE)),
          m_file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                             FILE_ATTRIBUTE_NORMAL, nullptr)) {
        SetStdHandle(STD_OUTPUT_HANDLE, m_file.get());
    }
    ~RedirectedOutput() { SetStdHandle(STD_OUTPUT_HANDLE, m_saved); }
    RedirectedOutput(const RedirectedOutput&) = delete;
    RedirectedOutput& operator=(const RedirectedOutput&) = delete;

private:
    HANDLE m_saved;
    unique_handle m_file;
};

std::string ReadBytes(const std::wstring& path) {
    const unique_handle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string bytes(4096, '\0');
    DWORD read = 0;
    if (!file ||
        !ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) {
        return "<unreadable>";
    }
    bytes.resize(read);
    return bytes;
}

TEST(StandardOutput, RedirectedToAFile_WritesUtf8WithoutByteOrderMark) {
    Testing::TempFolder temp;
    const std::wstring path = temp.File(L"out.txt");
    {
        RedirectedOutput redirect(path);
        StandardOutput().Write(L"S\u00f8ren \u20ac\n");
        StandardOutput().Write(L"second line\n");
    }
    EXPECT_EQ(ReadBytes(path), "S\xc3\xb8ren \xe2\x82\xac\nsecond line\n");
}

}  // namespace
}  // namespace Orva::Orvactl
