#include "common_src/win32/ResourceHandle.h"

namespace ZelCommon::Win32 {

void ResourceHandle::Reset() {
    *this = ResourceHandle();
}

}  // namespace ZelCommon::Win32
