#include <windows.h>

#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

void ResourceHandle::Closer::operator()(void* module) const {
    ::FreeLibrary(static_cast<HMODULE>(module));
}

bool ResourceHandle::Load(const std::wstring& path) {
    Reset();
    HMODULE module = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr) {
        return false;
    }
    m_module.reset(module);
    m_path = path;
    return true;
}

}  // namespace ZelCommon::Win32
