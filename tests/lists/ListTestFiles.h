#pragma once

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <system_error>

#include "common_src/platform/Path.h"

namespace Orva::Testing {

// A fresh folder under the temporary folder, removed with its content at the end of the test.
// Path() ends with the separator, as the add-in's folders do.
class ListTempFolder {
public:
    ListTempFolder() {
        static std::atomic<unsigned> counter{0};
        const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        const unsigned salt = std::random_device{}();
        std::error_code error;
        m_root = std::filesystem::temp_directory_path(error) /
                 ("orva-lists-" + std::to_string(stamp) + "-" + std::to_string(salt) + "-" +
                  std::to_string(++counter));
        std::filesystem::create_directories(m_root, error);
    }
    ~ListTempFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_root, error);
    }
    ListTempFolder(const ListTempFolder&) = delete;
    ListTempFolder& operator=(const ListTempFolder&) = delete;

    std::wstring Path() const { return ZelCommon::Path::ChildFolder(m_root.wstring(), L""); }
    std::wstring File(const std::wstring& name) const {
        return ZelCommon::Path::ChildFile(Path(), name);
    }
    // How many files the folder holds.
    size_t FileCount() const {
        size_t count = 0;
        std::error_code error;
        for (auto it = std::filesystem::directory_iterator(m_root, error);
             it != std::filesystem::directory_iterator(); ++it) {
            ++count;
        }
        return count;
    }

private:
    std::filesystem::path m_root;
};

inline void WriteBytes(const std::wstring& path, const std::string& bytes) {
    std::ofstream file(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string ReadBytes(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary | std::ios::ate);
    if (!file) {
        return "<missing>";
    }
    std::string bytes(static_cast<size_t>(file.tellg()), '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

inline constexpr char kMark[] = "\xEF\xBB\xBF";
inline constexpr char kHeader[] = "; Written by ORVA v3.5 (c) 2005 Halvion";

}  // namespace Orva::Testing
