#include <windows.h>

#include <string>

#include "common_src/platform/Locale.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::Platform {
namespace {

// LCIDToLocaleName and nlsdl.dll's DownlevelLCIDToLocaleName share this signature.
using LcidToNameFunction = int(WINAPI*)(LCID, LPWSTR, int, DWORD);

constexpr int kLocaleNameMaxLength = 85;  // LOCALE_NAME_MAX_LENGTH

template <class Function>
Function ProcOf(HMODULE module, const char* name) {
    if (module == nullptr) {
        return nullptr;
    }
    // GetProcAddress returns a generic function pointer; the exported function has this type.
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

class WindowsLocale final : public ILocale {
public:
    WindowsLocale() {
        // Windows before Vista lacks LCIDToLocaleName; the down-level library offers it there.
        m_convert =
            ProcOf<LcidToNameFunction>(::GetModuleHandleW(L"kernel32.dll"), "LCIDToLocaleName");
        if (m_convert == nullptr) {
            m_downlevel.reset(::LoadLibraryW(L"nlsdl.dll"));
            m_convert = ProcOf<LcidToNameFunction>(m_downlevel.get(), "DownlevelLCIDToLocaleName");
        }
    }

    uint32_t SystemDefaultLcid() const override { return ::GetSystemDefaultLCID(); }

    std::wstring LcidToLocaleName(uint32_t lcid) const override {
        if (m_convert == nullptr) {
            return {};
        }
        wchar_t name[kLocaleNameMaxLength] = {};
        const int length = m_convert(static_cast<LCID>(lcid), name, kLocaleNameMaxLength, 0);
        if (length <= 1) {
            return {};
        }
        return std::wstring(name, static_cast<size_t>(length - 1));
    }

private:
    unique_hmodule m_downlevel;
    LcidToNameFunction m_convert = nullptr;
};

}  // namespace

ILocale& SystemLocale() {
    static WindowsLocale locale;
    return locale;
}

}  // namespace ZelCommon::Platform
