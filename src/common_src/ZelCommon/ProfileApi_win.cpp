#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/Win32ProfileApi.h"

namespace ZelCommon::Storage {

IProfileApi& SystemProfileApi() {
    static Win32ProfileApi api;
    return api;
}

}  // namespace ZelCommon::Storage
