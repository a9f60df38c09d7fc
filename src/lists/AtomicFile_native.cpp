#include <cstdio>
#include <filesystem>
#include <system_error>

#include "common_src/platform/TextCodec.h"
#include "lists/AtomicFile.h"

namespace Orva::Lists::FileSystem {

FilePtr OpenFile(const std::wstring& path, const wchar_t* mode) {
    const std::string narrowMode = ZelCommon::Text::WideToUtf8(mode);
    return FilePtr(std::fopen(ZelCommon::Text::WideToUtf8(path).c_str(), narrowMode.c_str()));
}

// rename(2) replaces the target atomically.
bool RenameReplacing(const std::wstring& from, const std::wstring& to) {
    return std::rename(ZelCommon::Text::WideToUtf8(from).c_str(),
                       ZelCommon::Text::WideToUtf8(to).c_str()) == 0;
}

void RemoveFile(const std::wstring& path) {
    std::error_code ignored;
    std::filesystem::remove(ZelCommon::Text::WideToUtf8(path), ignored);
}

bool IsRegularFile(const std::wstring& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(ZelCommon::Text::WideToUtf8(path), ignored);
}

}  // namespace Orva::Lists::FileSystem
