#include <windows.h>

#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage {

namespace {

HKEY ToHkey(RegHandle key) {
    return reinterpret_cast<HKEY>(key);
}
RegHandle FromHkey(HKEY key) {
    return reinterpret_cast<RegHandle>(key);
}

// The Win32 registry functions behind the port; statuses pass through unchanged.
class Win32RegistryApi final : public IRegistryApi {
public:
    int32_t OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                    RegHandle* result) override {
        HKEY key = nullptr;
        const LONG status = RegOpenKeyExW(ToHkey(parent), subKey, 0, access, &key);
        if (status == ERROR_SUCCESS && result != nullptr) {
            *result = FromHkey(key);
        }
        return status;
    }

    int32_t CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                      const void* securityAttributes, RegHandle* result) override {
        HKEY key = nullptr;
        // RegCreateKeyExW takes the attributes as non-const but only reads them.
        auto* attributes = const_cast<SECURITY_ATTRIBUTES*>(
            static_cast<const SECURITY_ATTRIBUTES*>(securityAttributes));
        const LONG status =
            RegCreateKeyExW(ToHkey(parent), subKey, 0, nullptr, REG_OPTION_NON_VOLATILE, access,
                            attributes, &key, nullptr);
        if (status == ERROR_SUCCESS && result != nullptr) {
            *result = FromHkey(key);
        }
        return status;
    }

    int32_t CloseKey(RegHandle key) override { return RegCloseKey(ToHkey(key)); }

    int32_t FlushKey(RegHandle key) override { return RegFlushKey(ToHkey(key)); }

    int32_t QueryValue(RegHandle key, const wchar_t* name, uint32_t* type, uint8_t* data,
                       uint32_t* size) override {
        DWORD valueType = 0;
        DWORD valueSize = size != nullptr ? *size : 0;
        const LONG status =
            RegQueryValueExW(ToHkey(key), name, nullptr, type != nullptr ? &valueType : nullptr,
                             data, size != nullptr ? &valueSize : nullptr);
        if (type != nullptr && (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)) {
            *type = valueType;
        }
        if (size != nullptr) {
            *size = valueSize;
        }
        return status;
    }

    int32_t SetValue(RegHandle key, const wchar_t* name, uint32_t type, const uint8_t* data,
                     uint32_t size) override {
        return RegSetValueExW(ToHkey(key), name, 0, type, data, size);
    }

    int32_t DeleteKey(RegHandle parent, const wchar_t* subKey) override {
        return RegDeleteKeyW(ToHkey(parent), subKey);
    }

    int32_t DeleteValue(RegHandle key, const wchar_t* name) override {
        return RegDeleteValueW(ToHkey(key), name);
    }

    int32_t EnumKey(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override {
        return EnumName(nameLength, [&](DWORD* length) {
            return RegEnumKeyExW(ToHkey(key), index, name, length, nullptr, nullptr, nullptr,
                                 nullptr);
        });
    }

    int32_t EnumValue(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override {
        return EnumName(nameLength, [&](DWORD* length) {
            return RegEnumValueW(ToHkey(key), index, name, length, nullptr, nullptr, nullptr,
                                 nullptr);
        });
    }

private:
    // Both enumerations take the name's length in and give it back through a DWORD.
    template <class Enumerate>
    static int32_t EnumName(uint32_t* nameLength, Enumerate enumerate) {
        DWORD length = nameLength != nullptr ? *nameLength : 0;
        const LONG status = enumerate(nameLength != nullptr ? &length : nullptr);
        if (nameLength != nullptr) {
            *nameLength = length;
        }
        return status;
    }
};

}  // namespace

IRegistryApi& SystemRegistryApi() {
    static Win32RegistryApi registry;
    return registry;
}

}  // namespace ZelCommon::Storage
