#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage {

// Without a Windows registry the process shares one in-memory registry.
IRegistryApi& SystemRegistryApi() {
    static MemoryRegistry registry;
    return registry;
}

}  // namespace ZelCommon::Storage
