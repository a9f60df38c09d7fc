#include "settings/probes/OsVersion.h"

namespace Orva::Settings {

namespace {

constexpr uint32_t kPlatformWindows9x = 1;  // VER_PLATFORM_WIN32_WINDOWS
constexpr uint32_t kPlatformNt = 2;         // VER_PLATFORM_WIN32_NT

uint32_t Classify9x(uint32_t major, uint32_t minor) {
    if (major != 4) {
        return OsVersionId::Unknown;
    }
    switch (minor) {
        case 90:
            return OsVersionId::WindowsMe;
        case 10:
            return OsVersionId::Windows98;
        case 0:
            return OsVersionId::Windows95;
        default:
            return OsVersionId::Unknown;
    }
}

}  // namespace

uint32_t ClassifyOsVersion(const OsFacts& facts) {
    if (!facts.queried) {
        return OsVersionId::Unknown;
    }
    const OsVersionRecord& v = facts.version;
    if (v.platformId == kPlatformWindows9x) {
        return Classify9x(v.majorVersion, v.minorVersion);
    }
    if (v.platformId != kPlatformNt) {
        return OsVersionId::Unknown;
    }
    const bool amd64 = facts.nativeArchitecture == kArchitectureAmd64;
    const bool workstation = v.productType == kProductWorkstation;
    if (v.majorVersion >= 6) {
        const uint32_t base = workstation ? OsVersionId::Client32 : OsVersionId::Server32;
        return base + (amd64 ? 1u : 0u);
    }
    if (v.majorVersion == 5) {
        switch (v.minorVersion) {
            case 2:
                if (facts.serverR2 != 0) {
                    return OsVersionId::WindowsServer2003R2;
                }
                return workstation && amd64 ? OsVersionId::WindowsXpX64
                                            : OsVersionId::WindowsServer2003;
            case 1:
                return OsVersionId::WindowsXp;
            case 0:
                return OsVersionId::Windows2000;
            default:
                return OsVersionId::Unknown;
        }
    }
    return OsVersionId::WindowsNt4;
}

bool IsWindows64Id(uint32_t id) {
    return id == OsVersionId::WindowsXpX64 || id == OsVersionId::Client64 ||
           id == OsVersionId::Server64;
}

uint32_t CComUtilSet::GetOSVersion(IOsInfo& os, ZelCommon::Library::DebugLog& log) {
    OsFacts facts;
    facts.queried = os.QueryVersion(facts.version);
    if (!facts.queried) {
        return OsVersionId::Unknown;
    }
    log.LogText(
        L"@@@ CComUtilSet::GetOSVersion() - osvi.dwPlatformId = %u, osvi.dwMajorVersion = %u, "
        L"osvi.dwMinorVersion = %u\n",
        facts.version.platformId, facts.version.majorVersion, facts.version.minorVersion);
    const bool nt = facts.version.platformId == kPlatformNt;
    const bool needsArchitecture =
        nt && (facts.version.majorVersion >= 6 ||
               (facts.version.majorVersion == 5 && facts.version.minorVersion == 2));
    if (needsArchitecture) {
        facts.nativeArchitecture = os.NativeProcessorArchitecture();
    }
    if (nt && facts.version.majorVersion == 5 && facts.version.minorVersion == 2) {
        facts.serverR2 = os.ServerR2Metric();
    }
    return ClassifyOsVersion(facts);
}

uint32_t CComUtilSet::GetOSVersion() {
    return GetOSVersion(SystemOsInfo(), ZelCommon::Library::TheLog());
}

bool CComUtilSet::IsWindows64() {
    return IsWindows64Id(GetOSVersion());
}

}  // namespace Orva::Settings
