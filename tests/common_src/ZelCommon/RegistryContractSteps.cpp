#include "common_src/ZelCommon/RegistryContractSteps.h"

#include <gtest/gtest.h>

#include <cstring>

#include "common_src/ZelCommon/RegistryApiContract.h"

namespace ZelCommon::Storage::Testing {

// Opens or creates and hands back the handle, failing the test when the status is not 0.
RegHandle MustCreate(IRegistryApi& api, RegHandle parent, const wchar_t* path, uint32_t access) {
    RegHandle key = 0;
    EXPECT_EQ(api.CreateKey(parent, path, access, nullptr, &key), RegStatus::Success) << path;
    return key;
}

RegHandle MustOpen(IRegistryApi& api, RegHandle parent, const wchar_t* path, uint32_t access) {
    RegHandle key = 0;
    EXPECT_EQ(api.OpenKey(parent, path, access, &key), RegStatus::Success) << path;
    return key;
}

void MustClose(IRegistryApi& api, RegHandle key) {
    EXPECT_EQ(api.CloseKey(key), RegStatus::Success);
}

int32_t SetText(IRegistryApi& api, RegHandle key, const wchar_t* name, const std::wstring& text) {
    const std::vector<uint8_t> bytes = Utf16Bytes(text);
    return api.SetValue(key, name, RegType::Sz, bytes.data(), static_cast<uint32_t>(bytes.size()));
}

int32_t SetDwordValue(IRegistryApi& api, RegHandle key, const wchar_t* name, uint32_t value) {
    uint8_t bytes[4];
    std::memcpy(bytes, &value, sizeof(bytes));
    return api.SetValue(key, name, RegType::Dword, bytes, sizeof(bytes));
}

int32_t WithKey(IRegistryApi& api, RegHandle base, const wchar_t* path, uint32_t access,
                const std::function<int32_t(RegHandle)>& call) {
    const RegHandle key = MustOpen(api, base, path, access);
    const int32_t status = call(key);
    MustClose(api, key);
    return status;
}

int32_t Query(IRegistryApi& api, RegHandle key, const wchar_t* name) {
    uint32_t type = 0;
    uint32_t size = 0;
    return api.QueryValue(key, name, &type, nullptr, &size);
}

int32_t OpenAndClose(IRegistryApi& api, RegHandle base, const wchar_t* path, uint32_t access) {
    RegHandle key = 0;
    const int32_t status = api.OpenKey(base, path, access, &key);
    if (status == RegStatus::Success) {
        MustClose(api, key);
    }
    return status;
}

int32_t CreateAndClose(IRegistryApi& api, RegHandle base, const wchar_t* path) {
    RegHandle key = 0;
    const int32_t status = api.CreateKey(base, path, RegAccess::QueryValue, nullptr, &key);
    if (status == RegStatus::Success) {
        MustClose(api, key);
    }
    return status;
}

namespace {

using Enumerate = int32_t (IRegistryApi::*)(RegHandle, uint32_t, wchar_t*, uint32_t*);

std::vector<std::wstring> Names(IRegistryApi& api, RegHandle key, Enumerate enumerate) {
    std::vector<std::wstring> names;
    for (uint32_t index = 0;; ++index) {
        wchar_t name[260];
        uint32_t length = 260;
        const int32_t status = (api.*enumerate)(key, index, name, &length);
        if (status != RegStatus::Success) {
            EXPECT_EQ(status, RegStatus::NoMoreItems);
            return names;
        }
        names.emplace_back(name, length);
    }
}

}  // namespace

std::vector<std::wstring> KeyNames(IRegistryApi& api, RegHandle key) {
    return Names(api, key, &IRegistryApi::EnumKey);
}

std::vector<std::wstring> ValueNames(IRegistryApi& api, RegHandle key) {
    return Names(api, key, &IRegistryApi::EnumValue);
}

}  // namespace ZelCommon::Storage::Testing
