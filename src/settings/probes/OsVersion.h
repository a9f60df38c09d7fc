#pragma once

#include <cstdint>

#include "settings/log/DebugLog.h"
#include "settings/probes/OsInfo.h"

namespace Orva::Settings {

// The Windows identifiers of the version probe.
namespace OsVersionId {
inline constexpr uint32_t Unknown = 0;
inline constexpr uint32_t Windows95 = 1;
inline constexpr uint32_t Windows98 = 2;
inline constexpr uint32_t WindowsMe = 3;
inline constexpr uint32_t WindowsNt4 = 4;
inline constexpr uint32_t Windows2000 = 5;
inline constexpr uint32_t WindowsXp = 6;
inline constexpr uint32_t WindowsServer2003 = 7;
inline constexpr uint32_t WindowsServer2003R2 = 8;
inline constexpr uint32_t WindowsXpX64 = 9;
inline constexpr uint32_t Client32 = 10;
inline constexpr uint32_t Client64 = 11;
inline constexpr uint32_t Server32 = 12;
inline constexpr uint32_t Server64 = 13;
}  // namespace OsVersionId

// Everything Windows reports that decides the identifier.
struct OsFacts {
    bool queried = false;  // false when GetVersionExW failed with both record sizes
    OsVersionRecord version;
    uint16_t nativeArchitecture = 0;
    int32_t serverR2 = 0;
};

inline constexpr uint16_t kArchitectureAmd64 = 9;  // PROCESSOR_ARCHITECTURE_AMD64
inline constexpr uint8_t kProductWorkstation = 1;  // VER_NT_WORKSTATION

// The identifier (OsVersionId) for what Windows reported.
uint32_t ClassifyOsVersion(const OsFacts& facts);

// True for the identifiers of 64-bit Windows.
bool IsWindows64Id(uint32_t id);

class CComUtilSet {
public:
    // Asks Windows which version it is and logs what it said.
    static uint32_t GetOSVersion();
    static uint32_t GetOSVersion(IOsInfo& os, ZelCommon::Library::DebugLog& log);

    static bool IsWindows64();
};

}  // namespace Orva::Settings
