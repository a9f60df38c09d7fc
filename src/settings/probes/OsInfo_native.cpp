#include "settings/probes/OsInfo.h"

namespace Orva::Settings {

namespace {

// Not Windows: the version query fails, so the probe answers "unknown".
class NoWindowsOsInfo final : public IOsInfo {
public:
    bool QueryVersion(OsVersionRecord&) override { return false; }
    uint16_t NativeProcessorArchitecture() override { return 0; }
    int32_t ServerR2Metric() override { return 0; }
};

}  // namespace

IOsInfo& SystemOsInfo() {
    static NoWindowsOsInfo info;
    return info;
}

}  // namespace Orva::Settings
