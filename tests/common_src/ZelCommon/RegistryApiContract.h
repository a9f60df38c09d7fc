#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "common_src/ZelCommon/RegistryApi.h"

namespace ZelCommon::Storage::Testing {

// A private key under HKEY_CURRENT_USER\Software\OrvaTests of some registry, full access,
// removed with everything below it when the sandbox goes.
class RegistrySandbox {
public:
    explicit RegistrySandbox(IRegistryApi& api);
    ~RegistrySandbox();
    RegistrySandbox(const RegistrySandbox&) = delete;
    RegistrySandbox& operator=(const RegistrySandbox&) = delete;

    RegHandle Key() const { return m_key.Get(); }
    // The sandbox's path below HKEY_CURRENT_USER.
    const std::wstring& Path() const { return m_path; }

private:
    IRegistryApi& m_api;
    std::wstring m_path;
    UniqueRegKey m_key;
};

// Deletes a key and all its subkeys.
int32_t DeleteTree(IRegistryApi& api, RegHandle parent, const std::wstring& subKey);

// UTF-16LE bytes of a text, with the terminator when asked.
std::vector<uint8_t> Utf16Bytes(const std::wstring& text, bool terminated = true);

// One registry implementation the contract runs against.
struct RegistryBackend {
    const char* name;
    std::function<std::shared_ptr<IRegistryApi>()> make;
};

inline std::string BackendName(const testing::TestParamInfo<RegistryBackend>& info) {
    return info.param.name;
}

class RegistryApiContract : public testing::TestWithParam<RegistryBackend> {
protected:
    void SetUp() override {
        m_api = GetParam().make();
        m_sandbox = std::make_unique<RegistrySandbox>(*m_api);
    }
    void TearDown() override { m_sandbox.reset(); }

    IRegistryApi& Api() { return *m_api; }
    RegHandle Base() const { return m_sandbox->Key(); }

private:
    std::shared_ptr<IRegistryApi> m_api;
    std::unique_ptr<RegistrySandbox> m_sandbox;
};

}  // namespace ZelCommon::Storage::Testing
