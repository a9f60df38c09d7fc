#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

#include "common_src/platform/Path.h"

namespace Orva::Testing {

// A fresh folder under the system's temporary folder, removed with everything in it at the
// end of the test. Path() ends with the separator, as the add-in's folders do.
class TempFolder {
public:
    TempFolder() {
        static std::atomic<unsigned> counter{0};
        const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        // Test programs run side by side, so the counter alone cannot tell them apart.
        const unsigned salt = std::random_device{}();
        std::error_code error;
        m_root = std::filesystem::temp_directory_path(error) /
                 ("orva-test-" + std::to_string(stamp) + "-" + std::to_string(salt) + "-" +
                  std::to_string(++counter));
        std::filesystem::create_directories(m_root, error);
    }
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_root, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::wstring Path() const { return ZelCommon::Path::ChildFolder(m_root.wstring(), L""); }
    std::wstring Folder(const std::wstring& name) const {
        return ZelCommon::Path::ChildFolder(Path(), name);
    }
    std::wstring File(const std::wstring& name) const {
        return ZelCommon::Path::ChildFile(Path(), name);
    }
    const std::filesystem::path& Root() const { return m_root; }

    // How many files and folders it holds.
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

}  // namespace Orva::Testing
