#include "ScratchFolder.h"

#include <atomic>
#include <chrono>
#include <random>
#include <system_error>

#include "common_src/platform/Path.h"

namespace Orva::Sim {

ScratchFolder::ScratchFolder() {
    static std::atomic<unsigned> counter{0};
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    // Several simulations (a demo and a test program) may run side by side.
    const unsigned salt = std::random_device{}();
    std::error_code error;
    m_root = std::filesystem::temp_directory_path(error) /
             ("orva-mailclient-" + std::to_string(stamp) + "-" + std::to_string(salt) + "-" +
              std::to_string(++counter));
    std::filesystem::create_directories(m_root, error);
}

ScratchFolder::~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_root, error);
}

std::wstring ScratchFolder::Path() const {
    return ZelCommon::Path::ChildFolder(m_root.wstring(), L"");
}

std::wstring ScratchFolder::Folder(const std::wstring& name) const {
    const std::wstring folder = ZelCommon::Path::ChildFolder(Path(), name);
    ZelCommon::Path::CreateFolderWithParents(folder);
    return folder;
}

}  // namespace Orva::Sim
