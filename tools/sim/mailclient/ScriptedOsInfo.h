#pragma once

#include <cstdint>

#include "settings/probes/OsInfo.h"

namespace Orva::Sim {

// The simulated machine's Windows: a workstation of the major version chosen (6 by default,
// the only one whose main-window hook is handed back).
class ScriptedOsInfo final : public Orva::Settings::IOsInfo {
public:
    explicit ScriptedOsInfo(uint32_t majorVersion = 6) : m_majorVersion(majorVersion) {}

    bool QueryVersion(Orva::Settings::OsVersionRecord& record) override {
        record.platformId = 2;
        record.majorVersion = m_majorVersion;
        record.minorVersion = 1;
        record.productType = 1;
        return true;
    }
    uint16_t NativeProcessorArchitecture() override { return 0; }
    int32_t ServerR2Metric() override { return 0; }

private:
    uint32_t m_majorVersion;
};

}  // namespace Orva::Sim
