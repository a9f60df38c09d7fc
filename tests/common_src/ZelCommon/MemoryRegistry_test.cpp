// What the in-memory registry does like Windows where Wine does not, so that only it can show.
#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace ZelCommon::Storage {
namespace {

const RegHandle kHkcu = RootHandle(RegRoot::CurrentUser);

TEST(MemoryRegistry, EnumValue_ListsValuesInTheOrderFirstSet) {
    MemoryRegistry registry;
    const uint8_t one[] = {1};
    for (const wchar_t* name : {L"zeta", L"Alpha", L"mid", L"ALPHA"}) {
        ASSERT_EQ(registry.SetValue(kHkcu, name, RegType::Binary, one, 1), 0);
    }
    ASSERT_EQ(registry.DeleteValue(kHkcu, L"zeta"), 0);
    ASSERT_EQ(registry.SetValue(kHkcu, L"zeta", RegType::Binary, one, 1), 0);
    EXPECT_EQ(Testing::ValueNames(registry, kHkcu),
              (std::vector<std::wstring>{L"Alpha", L"mid", L"zeta"}));
}

TEST(MemoryRegistry, EnumKey_SortsByUpperCasedName) {
    MemoryRegistry registry;
    for (const wchar_t* name : {L"_u", L"b", L"[x", L"A", L"`q"}) {
        RegHandle key = 0;
        ASSERT_EQ(registry.CreateKey(kHkcu, name, RegAccess::QueryValue, nullptr, &key), 0);
        registry.CloseKey(key);
    }
    EXPECT_EQ(Testing::KeyNames(registry, kHkcu),
              (std::vector<std::wstring>{L"A", L"b", L"[x", L"_u", L"`q"}));
}

TEST(MemoryRegistry, EnumKey_FoldsLatin1Letters) {
    MemoryRegistry registry;
    RegHandle key = 0;
    ASSERT_EQ(registry.CreateKey(kHkcu, L"Grüße", RegAccess::QueryValue, nullptr, &key), 0);
    registry.CloseKey(key);
    EXPECT_EQ(registry.OpenKey(kHkcu, L"GRÜßE", RegAccess::QueryValue, &key), 0);
    registry.CloseKey(key);
}

TEST(MemoryRegistry, Roots_AreSeparateTrees) {
    MemoryRegistry registry;
    RegHandle key = 0;
    ASSERT_EQ(registry.CreateKey(kHkcu, L"Software\\X", RegAccess::QueryValue, nullptr, &key), 0);
    registry.CloseKey(key);
    EXPECT_EQ(registry.OpenKey(RootHandle(RegRoot::LocalMachine), L"Software\\X",
                               RegAccess::QueryValue, &key),
              RegStatus::FileNotFound);
}

TEST(MemoryRegistry, ConcurrentWriters_LoseNoValue) {
    MemoryRegistry registry;
    RegHandle key = 0;
    ASSERT_EQ(registry.CreateKey(kHkcu, L"shared", RegAccess::AllAccess, nullptr, &key), 0);
    constexpr int kThreads = 4;
    constexpr int kValuesEach = 200;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&registry, key, t] {
            for (int i = 0; i < kValuesEach; ++i) {
                const std::wstring name = std::to_wstring(t) + L"_" + std::to_wstring(i);
                const uint8_t data[] = {static_cast<uint8_t>(i)};
                registry.SetValue(key, name.c_str(), RegType::Binary, data, 1);
                RegHandle sub = 0;
                registry.CreateKey(key, name.c_str(), RegAccess::QueryValue, nullptr, &sub);
                registry.CloseKey(sub);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(Testing::ValueNames(registry, key).size(),
              static_cast<std::size_t>(kThreads * kValuesEach));
    EXPECT_EQ(Testing::KeyNames(registry, key).size(),
              static_cast<std::size_t>(kThreads * kValuesEach));
    registry.CloseKey(key);
    EXPECT_EQ(registry.OpenHandleCount(), 0u);
}

}  // namespace
}  // namespace ZelCommon::Storage
