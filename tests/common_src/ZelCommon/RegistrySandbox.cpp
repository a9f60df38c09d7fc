#include <atomic>
#include <chrono>
#include <random>

#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"
#include "common_src/platform/TextCodec.h"
#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Storage::Testing {

namespace {

// Unique across test processes that share one Wine prefix.
std::wstring UniqueSandboxPath() {
    static std::atomic<uint32_t> counter{0};
    static const uint64_t seed =
        std::random_device{}() ^
        static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    return Text::Format(L"Software\\OrvaTests\\RegistryApi_%llX_%u",
                        static_cast<unsigned long long>(seed), counter.fetch_add(1) + 1);
}

}  // namespace

RegistrySandbox::RegistrySandbox(IRegistryApi& api) : m_api(api), m_path(UniqueSandboxPath()) {
    RegHandle key = 0;
    const int32_t status = m_api.CreateKey(RootHandle(RegRoot::CurrentUser), m_path.c_str(),
                                           RegAccess::AllAccess, nullptr, &key);
    if (status != RegStatus::Success) {
        ADD_FAILURE() << "cannot create the sandbox key, status " << status;
        return;
    }
    m_key = UniqueRegKey(m_api, key);
}

RegistrySandbox::~RegistrySandbox() {
    m_key.Reset();
    EXPECT_EQ(DeleteTree(m_api, RootHandle(RegRoot::CurrentUser), m_path), RegStatus::Success);
}

int32_t DeleteTree(IRegistryApi& api, RegHandle parent, const std::wstring& subKey) {
    RegHandle raw = 0;
    if (int32_t status = api.OpenKey(parent, subKey.c_str(), RegAccess::EnumerateSubKeys, &raw);
        status != RegStatus::Success) {
        return status;
    }
    UniqueRegKey key(api, raw);
    for (const std::wstring& child : KeyNames(api, key.Get())) {
        if (int32_t status = DeleteTree(api, key.Get(), child); status != RegStatus::Success) {
            return status;
        }
    }
    key.Reset();
    return api.DeleteKey(parent, subKey.c_str());
}

std::vector<uint8_t> Utf16Bytes(const std::wstring& text, bool terminated) {
    std::string bytes = Text::WideToUtf16Le(text);
    if (terminated) {
        bytes.append(2, '\0');
    }
    return std::vector<uint8_t>(bytes.begin(), bytes.end());
}

}  // namespace ZelCommon::Storage::Testing
