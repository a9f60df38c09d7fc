#pragma once

#include <cstdint>
#include <utility>

namespace ZelCommon::Storage {

// An open registry key as the Win32 API sees it: the numeric value of an HKEY.
using RegHandle = std::uintptr_t;

// The predefined root keys, with the values of the HKEY_* constants.
enum class RegRoot : uint32_t {
    ClassesRoot = 0x80000000u,
    CurrentUser = 0x80000001u,
    LocalMachine = 0x80000002u,
    Users = 0x80000003u,
};

// HKEY_* constants are sign-extended 32-bit values on 64-bit Windows.
constexpr RegHandle RootHandle(RegRoot root) {
    return static_cast<RegHandle>(static_cast<std::intptr_t>(static_cast<int32_t>(root)));
}

// Access rights and value types with their Win32 values.
namespace RegAccess {
inline constexpr uint32_t QueryValue = 0x0001;        // KEY_QUERY_VALUE
inline constexpr uint32_t SetValue = 0x0002;          // KEY_SET_VALUE
inline constexpr uint32_t CreateSubKey = 0x0004;      // KEY_CREATE_SUB_KEY
inline constexpr uint32_t EnumerateSubKeys = 0x0008;  // KEY_ENUMERATE_SUB_KEYS
inline constexpr uint32_t Wow64_64Key = 0x0100;       // KEY_WOW64_64KEY
inline constexpr uint32_t Wow64_32Key = 0x0200;       // KEY_WOW64_32KEY
inline constexpr uint32_t Notify = 0x0010;            // KEY_NOTIFY
inline constexpr uint32_t Delete = 0x00010000;        // DELETE
inline constexpr uint32_t ReadControl = 0x00020000;   // READ_CONTROL
inline constexpr uint32_t WriteDac = 0x00040000;      // WRITE_DAC
inline constexpr uint32_t WriteOwner = 0x00080000;    // WRITE_OWNER
inline constexpr uint32_t AllAccess = 0x000F003F;     // KEY_ALL_ACCESS
}  // namespace RegAccess

namespace RegType {
inline constexpr uint32_t None = 0;
inline constexpr uint32_t Sz = 1;
inline constexpr uint32_t ExpandSz = 2;
inline constexpr uint32_t Binary = 3;
inline constexpr uint32_t Dword = 4;
inline constexpr uint32_t DwordBigEndian = 5;
inline constexpr uint32_t MultiSz = 7;
inline constexpr uint32_t Qword = 11;
}  // namespace RegType

// The registry functions the storage layer uses, with the Win32 signatures reduced to what it
// passes; each returns the Win32 status (0 on success). On Windows they are the real Reg*W
// functions; natively an in-memory registry serves.
class IRegistryApi {
public:
    virtual ~IRegistryApi() = default;

    virtual int32_t OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                            RegHandle* result) = 0;
    // securityAttributes points to a SECURITY_ATTRIBUTES on Windows, or is null.
    virtual int32_t CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                              const void* securityAttributes, RegHandle* result) = 0;
    virtual int32_t CloseKey(RegHandle key) = 0;
    virtual int32_t FlushKey(RegHandle key) = 0;
    // As RegQueryValueExW: a null data pointer asks for type and size only.
    virtual int32_t QueryValue(RegHandle key, const wchar_t* name, uint32_t* type, uint8_t* data,
                               uint32_t* size) = 0;
    virtual int32_t SetValue(RegHandle key, const wchar_t* name, uint32_t type, const uint8_t* data,
                             uint32_t size) = 0;
    virtual int32_t DeleteKey(RegHandle parent, const wchar_t* subKey) = 0;
    virtual int32_t DeleteValue(RegHandle key, const wchar_t* name) = 0;
    // As RegEnumKeyExW / RegEnumValueW: nameLength is the buffer size in, the name length out.
    virtual int32_t EnumKey(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) = 0;
    virtual int32_t EnumValue(RegHandle key, uint32_t index, wchar_t* name,
                              uint32_t* nameLength) = 0;
};

// Win32 status codes the registry functions return.
namespace RegStatus {
inline constexpr int32_t Success = 0;
inline constexpr int32_t FileNotFound = 2;       // ERROR_FILE_NOT_FOUND
inline constexpr int32_t AccessDenied = 5;       // ERROR_ACCESS_DENIED
inline constexpr int32_t InvalidHandle = 6;      // ERROR_INVALID_HANDLE
inline constexpr int32_t InvalidParameter = 87;  // ERROR_INVALID_PARAMETER
inline constexpr int32_t BadPathName = 161;      // ERROR_BAD_PATHNAME
inline constexpr int32_t MoreData = 234;         // ERROR_MORE_DATA
inline constexpr int32_t NoMoreItems = 259;      // ERROR_NO_MORE_ITEMS
inline constexpr int32_t KeyDeleted = 1018;      // ERROR_KEY_DELETED
}  // namespace RegStatus

// Owns one open key of an IRegistryApi and closes it when dropped.
class UniqueRegKey {
public:
    UniqueRegKey() = default;
    UniqueRegKey(IRegistryApi& api, RegHandle key) : m_api(&api), m_key(key) {}
    UniqueRegKey(UniqueRegKey&& other) noexcept
        : m_api(other.m_api), m_key(std::exchange(other.m_key, 0)) {}
    UniqueRegKey& operator=(UniqueRegKey&& other) noexcept {
        if (this != &other) {
            Reset();
            m_api = other.m_api;
            m_key = std::exchange(other.m_key, 0);
        }
        return *this;
    }
    UniqueRegKey(const UniqueRegKey&) = delete;
    UniqueRegKey& operator=(const UniqueRegKey&) = delete;
    ~UniqueRegKey() { Reset(); }

    RegHandle Get() const { return m_key; }
    explicit operator bool() const { return m_key != 0; }
    // Closes the key and returns the close status (0 when nothing was open).
    int32_t Reset() {
        const RegHandle key = std::exchange(m_key, 0);
        return key != 0 && m_api != nullptr ? m_api->CloseKey(key) : 0;
    }

private:
    IRegistryApi* m_api = nullptr;
    RegHandle m_key = 0;
};

// The registry of this build: Win32 on Windows, a process-wide in-memory registry natively.
IRegistryApi& SystemRegistryApi();

}  // namespace ZelCommon::Storage
