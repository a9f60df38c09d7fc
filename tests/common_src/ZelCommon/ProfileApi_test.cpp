#include <gtest/gtest.h>

#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"

namespace ZelCommon::Storage {
namespace {

TEST(ReadProfileString, ShortValue_ReadWithSettingsBuffer) {
    Fakes::FakeProfileApi api;
    api.Set(L"S", L"k", L"value");
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"k", L"d"), L"value");
    ASSERT_EQ(api.Calls().size(), 1u);
    EXPECT_EQ(api.Calls()[0].size, kSettingsBufferChars);
    EXPECT_EQ(api.Calls()[0].file, L"f.ini");
}

TEST(ReadProfileString, ValueLongerThanBuffer_Cut) {
    Fakes::FakeProfileApi api;
    api.Set(L"S", L"k", std::wstring(1500, L'x'));
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"k", L"d"), std::wstring(1023, L'x'));
}

TEST(ReadProfileString, MissingKey_Default) {
    Fakes::FakeProfileApi api;
    EXPECT_EQ(ReadProfileString(api, L"f.ini", L"S", L"k", L"fallback"), L"fallback");
}

TEST(SystemProfileApi, SameObjectEveryTime) {
    EXPECT_EQ(&SystemProfileApi(), &SystemProfileApi());
}

}  // namespace
}  // namespace ZelCommon::Storage
