#include "support/ScratchFolder.h"

#include <atomic>
#include <chrono>
#include <random>
#include <system_error>

#include "common_src/platform/Path.h"

namespace ZelCommon::Fakes {

ScratchFolder::ScratchFolder(std::string_view prefix) {
    static std::atomic<unsigned> counter{0};
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    // Programs run side by side (test programs, a demo), so the counter alone cannot tell
    // them apart.
    const unsigned salt = std::random_device{}();
    std::error_code error;
    m_root = std::filesystem::temp_directory_path(error) /
             (std::string(prefix) + "-" + std::to_string(stamp) + "-" + std::to_string(salt) + "-" +
              std::to_string(++counter));
    std::filesystem::create_directories(m_root, error);
}

ScratchFolder::~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_root, error);
}

std::wstring ScratchFolder::Path() const {
    return Path::ChildFolder(m_root.wstring(), L"");
}

std::wstring ScratchFolder::Folder(const std::wstring& name) const {
    return Path::ChildFolder(Path(), name);
}

std::wstring ScratchFolder::File(const std::wstring& name) const {
    return Path::ChildFile(Path(), name);
}

std::size_t ScratchFolder::FileCount() const {
    std::error_code error;
    std::size_t count = 0;
    for (auto it = std::filesystem::directory_iterator(m_root, error);
         it != std::filesystem::directory_iterator(); ++it) {
        ++count;
    }
    return count;
}

}  // namespace ZelCommon::Fakes
