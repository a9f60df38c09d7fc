#include <windows.h>

#include "common_src/ZelCommon/Win32ProfileApi.h"

namespace ZelCommon::Storage {

uint32_t Win32ProfileApi::GetString(const wchar_t* section, const wchar_t* key,
                                    const wchar_t* defaultValue, wchar_t* buffer, uint32_t size,
                                    const wchar_t* file) {
    return GetPrivateProfileStringW(section, key, defaultValue, buffer, size, file);
}

uint32_t Win32ProfileApi::GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                                 const wchar_t* file) {
    return GetPrivateProfileIntW(section, key, defaultValue, file);
}

uint32_t Win32ProfileApi::GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                                     const wchar_t* file) {
    return GetPrivateProfileSectionW(section, buffer, size, file);
}

uint32_t Win32ProfileApi::GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) {
    return GetPrivateProfileSectionNamesW(buffer, size, file);
}

bool Win32ProfileApi::WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                                  const wchar_t* file) {
    return WritePrivateProfileStringW(section, key, value, file) != FALSE;
}

uint32_t Win32ProfileApi::LastError() const {
    return GetLastError();
}

}  // namespace ZelCommon::Storage
