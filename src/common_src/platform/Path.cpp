#include "common_src/platform/Path.h"

#include <filesystem>
#include <system_error>

#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Path {
namespace {

bool IsSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

std::filesystem::path ToFsPath(const std::wstring& path) {
#ifdef _WIN32
    return std::filesystem::path(path);
#else
    // A Linux path's bytes are UTF-8 whatever the C locale (in which a wide path with a
    // character outside ASCII does not convert at all).
    return std::filesystem::path(Text::WideToUtf8(path));
#endif
}

}  // namespace

std::wstring ChildFolder(std::wstring_view folder, std::wstring_view name) {
    std::wstring result = ChildFile(folder, name);
    if (result.empty() || !IsSeparator(result.back())) {
        result.push_back(kSeparator);
    }
    return result;
}

std::wstring ChildFile(std::wstring_view folder, std::wstring_view name) {
    std::wstring result(folder);
    if (!result.empty() && !IsSeparator(result.back())) {
        result.push_back(kSeparator);
    }
    result.append(name);
    return result;
}

std::wstring FolderOf(std::wstring_view path) {
    const size_t last = path.find_last_of(L"\\/");
    return last == std::wstring_view::npos ? std::wstring()
                                           : std::wstring(path.substr(0, last + 1));
}

std::wstring_view FileNameOf(std::wstring_view path) {
    const size_t last = path.find_last_of(L"\\/:");
    return last == std::wstring_view::npos ? path : path.substr(last + 1);
}

bool FileExists(const std::wstring& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(ToFsPath(path), error);
}

bool FolderExists(const std::wstring& path) {
    std::error_code error;
    return std::filesystem::is_directory(ToFsPath(path), error);
}

bool CreateFolderWithParents(const std::wstring& path) {
    std::error_code error;
    std::filesystem::create_directories(ToFsPath(path), error);
    return FolderExists(path);
}

}  // namespace ZelCommon::Path
