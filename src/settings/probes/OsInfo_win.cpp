#include <windows.h>

#include "settings/probes/OsInfo.h"

namespace Orva::Settings {

namespace {

class Win32OsInfo final : public IOsInfo {
public:
    bool QueryVersion(OsVersionRecord& record) override {
        OSVERSIONINFOEXW info{};
        info.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXW);
        // Windows before NT 4 SP6 only knows the plain record.
        if (!GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&info))) {
            info.dwOSVersionInfoSize = sizeof(OSVERSIONINFOW);
            if (!GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&info))) {
                return false;
            }
        }
        record.platformId = info.dwPlatformId;
        record.majorVersion = info.dwMajorVersion;
        record.minorVersion = info.dwMinorVersion;
        record.productType = info.wProductType;
        return true;
    }

    uint16_t NativeProcessorArchitecture() override {
        using GetNativeSystemInfoFn = void(WINAPI*)(LPSYSTEM_INFO);
        // Looked up at run time: Windows 2000 has no GetNativeSystemInfo.
        HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
        FARPROC proc = kernel != nullptr ? GetProcAddress(kernel, "GetNativeSystemInfo") : nullptr;
        if (proc == nullptr) {
            return 0;
        }
        SYSTEM_INFO info{};
        reinterpret_cast<GetNativeSystemInfoFn>(reinterpret_cast<void*>(proc))(&info);
        return info.wProcessorArchitecture;
    }

    int32_t ServerR2Metric() override { return GetSystemMetrics(SM_SERVERR2); }
};

}  // namespace

IOsInfo& SystemOsInfo() {
    static Win32OsInfo info;
    return info;
}

}  // namespace Orva::Settings
