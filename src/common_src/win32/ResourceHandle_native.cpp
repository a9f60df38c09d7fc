#include "common_src/platform/Path.h"
#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {
namespace {

// Stands for a loaded module: there are no resource modules to map natively.
int g_loadedMarker = 0;

}  // namespace

void ResourceHandle::Closer::operator()(void*) const {}

bool ResourceHandle::Load(const std::wstring& path) {
    Reset();
    if (!Path::FileExists(path)) {
        return false;
    }
    m_module.reset(&g_loadedMarker);
    m_path = path;
    return true;
}

}  // namespace ZelCommon::Win32
