#pragma once

// Small steps the registry contract tests share: each fails the test when Windows would not
// answer success.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage::Testing {

inline constexpr uint32_t kGenericRead = 0x80000000u;

RegHandle MustCreate(IRegistryApi& api, RegHandle parent, const wchar_t* path,
                     uint32_t access = RegAccess::AllAccess);
RegHandle MustOpen(IRegistryApi& api, RegHandle parent, const wchar_t* path, uint32_t access);
void MustClose(IRegistryApi& api, RegHandle key);
int32_t SetText(IRegistryApi& api, RegHandle key, const wchar_t* name, const std::wstring& text);
int32_t SetDwordValue(IRegistryApi& api, RegHandle key, const wchar_t* name, uint32_t value);
// Opens with the given access, runs one call on the handle, closes and returns the call's status.
int32_t WithKey(IRegistryApi& api, RegHandle base, const wchar_t* path, uint32_t access,
                const std::function<int32_t(RegHandle)>& call);
// The status of a size-and-type query of one value.
int32_t Query(IRegistryApi& api, RegHandle key, const wchar_t* name);
int32_t OpenAndClose(IRegistryApi& api, RegHandle base, const wchar_t* path, uint32_t access);
int32_t CreateAndClose(IRegistryApi& api, RegHandle base, const wchar_t* path);
// Every subkey or value name, in the order the registry enumerates them.
std::vector<std::wstring> KeyNames(IRegistryApi& api, RegHandle key);
std::vector<std::wstring> ValueNames(IRegistryApi& api, RegHandle key);

}  // namespace ZelCommon::Storage::Testing
