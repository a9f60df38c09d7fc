#pragma once

#include <cstdint>

namespace Orva::Settings {

// What GetVersionExW reports, reduced to the fields the version probe reads.
struct OsVersionRecord {
    uint32_t platformId = 0;
    uint32_t majorVersion = 0;
    uint32_t minorVersion = 0;
    uint8_t productType = 0;  // 1 workstation, 2 domain controller, 3 server
};

// The version questions the probe asks Windows.
class IOsInfo {
public:
    virtual ~IOsInfo() = default;
    // GetVersionExW with the extended record, else the plain one; false when both fail (the
    // product type then stays 0).
    virtual bool QueryVersion(OsVersionRecord& record) = 0;
    // wProcessorArchitecture of GetNativeSystemInfo, 0 where that function does not exist.
    virtual uint16_t NativeProcessorArchitecture() = 0;
    // GetSystemMetrics(SM_SERVERR2).
    virtual int32_t ServerR2Metric() = 0;
};

IOsInfo& SystemOsInfo();

}  // namespace Orva::Settings
