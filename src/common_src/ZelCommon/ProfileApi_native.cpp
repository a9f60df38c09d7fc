#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/ZelCommon/ProfileEngine.h"

namespace ZelCommon::Storage {

IProfileApi& SystemProfileApi() {
    static ProfileEngine engine;
    return engine;
}

}  // namespace ZelCommon::Storage
