#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

void ResourceHandle::Reset() {
    m_module.reset();
    m_path.clear();
}

}  // namespace ZelCommon::Win32
