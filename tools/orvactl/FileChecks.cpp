#include "FileChecks.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "common_src/platform/Path.h"

namespace Orva::Orvactl {
namespace {

std::filesystem::file_status StatusOf(const std::wstring& path) {
    std::error_code error;
    return std::filesystem::status(std::filesystem::path(path), error);
}

}  // namespace

std::optional<std::wstring> WhyNotReadableFile(const std::wstring& path) {
    const std::filesystem::file_status status = StatusOf(path);
    if (!std::filesystem::exists(status)) {
        return path + L": no such file";
    }
    if (std::filesystem::is_directory(status)) {
        return path + L": is a folder, not a file";
    }
    if (!std::ifstream(std::filesystem::path(path)).is_open()) {
        return path + L": cannot be read";
    }
    return std::nullopt;
}

std::optional<std::wstring> WhyNotWritableFile(const std::wstring& path) {
    const std::filesystem::file_status status = StatusOf(path);
    if (std::filesystem::is_directory(status)) {
        return path + L": is a folder, not a file";
    }
    if (std::filesystem::exists(status)) {
        return std::nullopt;
    }
    const std::wstring folder = ZelCommon::Path::FolderOf(path);
    if (!folder.empty() && !ZelCommon::Path::FolderExists(folder)) {
        return path + L": its folder does not exist";
    }
    return std::nullopt;
}

std::optional<std::wstring> WhyNotFolder(const std::wstring& path) {
    const std::filesystem::file_status status = StatusOf(path);
    if (!std::filesystem::exists(status)) {
        return path + L": no such folder";
    }
    if (!std::filesystem::is_directory(status)) {
        return path + L": is not a folder";
    }
    return std::nullopt;
}

}  // namespace Orva::Orvactl
