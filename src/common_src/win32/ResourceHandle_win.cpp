#include <windows.h>

#include <utility>

#include "common_src/platform/UniqueAny_win.h"
#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

struct ResourceHandle::Loaded {
    Platform::unique_hmodule module;
};

ResourceHandle::ResourceHandle() = default;
ResourceHandle::ResourceHandle(ResourceHandle&&) noexcept = default;
ResourceHandle& ResourceHandle::operator=(ResourceHandle&&) noexcept = default;
ResourceHandle::~ResourceHandle() = default;

void* ResourceHandle::Module() const {
    return m_module ? m_module->module.get() : nullptr;
}

bool ResourceHandle::Load(const std::wstring& path) {
    Reset();
    Platform::unique_hmodule module(
        ::LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    if (!module) {
        return false;
    }
    m_module = std::make_unique<Loaded>(Loaded{std::move(module)});
    m_path = path;
    return true;
}

}  // namespace ZelCommon::Win32
