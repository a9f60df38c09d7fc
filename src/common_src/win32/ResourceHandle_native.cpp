#include "common_src/platform/Path.h"
#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

// There are no resource modules to map natively: an existing file counts as loaded.
struct ResourceHandle::Loaded {};

ResourceHandle::ResourceHandle() = default;
ResourceHandle::ResourceHandle(ResourceHandle&&) noexcept = default;
ResourceHandle& ResourceHandle::operator=(ResourceHandle&&) noexcept = default;
ResourceHandle::~ResourceHandle() = default;

void* ResourceHandle::Module() const {
    return m_module.get();
}

bool ResourceHandle::Load(const std::wstring& path) {
    Reset();
    if (!Path::FileExists(path)) {
        return false;
    }
    m_module = std::make_unique<Loaded>();
    m_path = path;
    return true;
}

}  // namespace ZelCommon::Win32
