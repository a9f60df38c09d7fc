#pragma once

#include <cstdint>
#include <string>

namespace ZelCommon::Storage {

// The profile (ini) file functions, with the Win32 signatures and semantics of
// GetPrivateProfileStringW, GetPrivateProfileIntW, GetPrivateProfileSectionW,
// GetPrivateProfileSectionNamesW and WritePrivateProfileStringW, including their buffer rules.
// On Windows the real functions serve; natively our own profile engine does.
class IProfileApi {
public:
    virtual ~IProfileApi() = default;

    // A null section lists the section names, a null key the key names of the section, each
    // as a double-zero-terminated block. Returns the characters copied, without the final zero.
    virtual uint32_t GetString(const wchar_t* section, const wchar_t* key,
                               const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                               const wchar_t* file) = 0;
    virtual uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                            const wchar_t* file) = 0;
    // The section's lines, each "key=value", as a double-zero-terminated block.
    virtual uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                                const wchar_t* file) = 0;
    virtual uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) = 0;
    // A null value deletes the key, a null key the section; all three null only flush.
    virtual bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                             const wchar_t* file) = 0;
    // The error code of the last failing call on this thread (GetLastError on Windows).
    virtual uint32_t LastError() const = 0;
};

// The profile functions of this build: Win32 on Windows, the profile engine natively.
IProfileApi& SystemProfileApi();

// A string read with a 1024-character buffer, the size every settings reader of the add-in uses.
std::wstring ReadProfileString(IProfileApi& api, const std::wstring& file,
                               const std::wstring& section, const std::wstring& key,
                               const std::wstring& defaultValue);
inline constexpr uint32_t kSettingsBufferChars = 1024;

}  // namespace ZelCommon::Storage
