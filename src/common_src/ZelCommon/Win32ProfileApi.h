#pragma once

#include "common_src/ZelCommon/ProfileApi.h"

namespace ZelCommon::Storage {

// The real profile functions of Windows (GetPrivateProfileStringW and its family), unchanged.
// Only Windows builds define it.
class Win32ProfileApi : public IProfileApi {
public:
    uint32_t GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue,
                       wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    uint32_t GetInt(const wchar_t* section, const wchar_t* key, int32_t defaultValue,
                    const wchar_t* file) override;
    uint32_t GetSection(const wchar_t* section, wchar_t* buffer, uint32_t size,
                        const wchar_t* file) override;
    uint32_t GetSectionNames(wchar_t* buffer, uint32_t size, const wchar_t* file) override;
    bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                     const wchar_t* file) override;
    uint32_t LastError() const override;
};

}  // namespace ZelCommon::Storage
