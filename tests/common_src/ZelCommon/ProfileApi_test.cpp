#include <gtest/gtest.h>

#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"

namespace ZelCommon::Storage {
namespace {

// Every settings reader takes what a 1024-character buffer holds.
TEST(ReadProfileString, ValueCutToSettingsBufferOrDefault) {
    Fakes::FakeProfileApi api;
    api.Set(L"S", L"short", L"value");
    api.Set(L"S", L"long", std::wstring(1500, L'x'));
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"short", L"d"), L"value");
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"long", L"d"), std::wstring(1023, L'x'));
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"absent", L"fallback"), L"fallback");
}

}  // namespace
}  // namespace ZelCommon::Storage
