// What the registry stores and gives back, against every registry implementation (the
// suites are instantiated with the status table).
#include <algorithm>
#include <cstring>

#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"

namespace ZelCommon::Storage::Testing {
namespace {

TEST_P(RegistryApiContract, QueryValue_NullData_GivesTypeAndSize) {
    EXPECT_EQ(SetText(Api(), Base(), L"s", L"abc"), RegStatus::Success);
    uint32_t type = 0;
    uint32_t size = 0;
    ASSERT_EQ(Api().QueryValue(Base(), L"s", &type, nullptr, &size), RegStatus::Success);
    EXPECT_EQ(type, RegType::Sz);
    EXPECT_EQ(size, 8u);
}

TEST_P(RegistryApiContract, QueryValue_SmallBuffer_GivesMoreDataAndNeededSize) {
    EXPECT_EQ(SetText(Api(), Base(), L"s", L"abcdef"), RegStatus::Success);
    uint8_t data[4] = {};
    uint32_t type = 0;
    uint32_t size = sizeof(data);
    EXPECT_EQ(Api().QueryValue(Base(), L"s", &type, data, &size), RegStatus::MoreData);
    EXPECT_EQ(size, 14u);
    EXPECT_EQ(type, RegType::Sz);
}

TEST_P(RegistryApiContract, QueryValue_ExactBuffer_ReturnsBytes) {
    const uint8_t stored[] = {1, 2, 3};
    ASSERT_EQ(Api().SetValue(Base(), L"b", RegType::Binary, stored, 3), RegStatus::Success);
    uint8_t data[3] = {};
    uint32_t size = 3;
    ASSERT_EQ(Api().QueryValue(Base(), L"b", nullptr, data, &size), RegStatus::Success);
    EXPECT_EQ(size, 3u);
    EXPECT_EQ(std::vector<uint8_t>(data, data + 3), std::vector<uint8_t>(stored, stored + 3));
}

TEST_P(RegistryApiContract, SetValue_UnterminatedText_IsStoredAsGiven) {
    // The character after the counted ones is not zero, so nothing is added.
    const std::vector<uint8_t> bytes = Utf16Bytes(L"abcd");
    ASSERT_EQ(Api().SetValue(Base(), L"s", RegType::Sz, bytes.data(), 6), RegStatus::Success);
    uint32_t size = 0;
    ASSERT_EQ(Api().QueryValue(Base(), L"s", nullptr, nullptr, &size), RegStatus::Success);
    EXPECT_EQ(size, 6u);
}

TEST_P(RegistryApiContract, SetValue_TextCountedWithoutTerminator_GainsIt) {
    const std::vector<uint8_t> bytes = Utf16Bytes(L"abc");
    ASSERT_EQ(Api().SetValue(Base(), L"s", RegType::Sz, bytes.data(), 6), RegStatus::Success);
    uint32_t size = 0;
    ASSERT_EQ(Api().QueryValue(Base(), L"s", nullptr, nullptr, &size), RegStatus::Success);
    EXPECT_EQ(size, 8u);
}

TEST_P(RegistryApiContract, QueryValue_UnterminatedTextWithRoom_IsTerminated) {
    const std::vector<uint8_t> bytes = Utf16Bytes(L"abcd");
    ASSERT_EQ(Api().SetValue(Base(), L"s", RegType::Sz, bytes.data(), 6), RegStatus::Success);
    std::vector<uint8_t> data(10, 0xFF);
    uint32_t size = 10;
    ASSERT_EQ(Api().QueryValue(Base(), L"s", nullptr, data.data(), &size), RegStatus::Success);
    EXPECT_EQ(size, 6u);
    EXPECT_EQ(data[6], 0);
    EXPECT_EQ(data[7], 0);
    EXPECT_EQ(data[8], 0xFF);
}

TEST_P(RegistryApiContract, QueryValue_UnterminatedBinaryWithRoom_IsLeftAlone) {
    const uint8_t stored[] = {'a', 0, 'b', 0};
    ASSERT_EQ(Api().SetValue(Base(), L"b", RegType::Binary, stored, 4), RegStatus::Success);
    std::vector<uint8_t> data(8, 0xFF);
    uint32_t size = 8;
    ASSERT_EQ(Api().QueryValue(Base(), L"b", nullptr, data.data(), &size), RegStatus::Success);
    EXPECT_EQ(data[4], 0xFF);
    EXPECT_EQ(data[5], 0xFF);
}

TEST_P(RegistryApiContract, SetValue_OtherCaseName_ReplacesTheValue) {
    ASSERT_EQ(SetDwordValue(Api(), Base(), L"Name", 1), RegStatus::Success);
    ASSERT_EQ(SetDwordValue(Api(), Base(), L"NAME", 2), RegStatus::Success);
    uint8_t data[4] = {};
    uint32_t size = 4;
    ASSERT_EQ(Api().QueryValue(Base(), L"name", nullptr, data, &size), RegStatus::Success);
    EXPECT_EQ(data[0], 2);
    wchar_t name[260];
    uint32_t length = 260;
    ASSERT_EQ(Api().EnumValue(Base(), 0, name, &length), RegStatus::Success);
    EXPECT_EQ(std::wstring(name, length), L"Name");
    length = 260;
    EXPECT_EQ(Api().EnumValue(Base(), 1, name, &length), RegStatus::NoMoreItems);
}

TEST_P(RegistryApiContract, DefaultValue_NullAndEmptyName_AreTheSame) {
    ASSERT_EQ(SetDwordValue(Api(), Base(), nullptr, 7), RegStatus::Success);
    uint8_t data[4] = {};
    uint32_t size = 4;
    ASSERT_EQ(Api().QueryValue(Base(), L"", nullptr, data, &size), RegStatus::Success);
    EXPECT_EQ(data[0], 7);
    wchar_t name[260] = {L'x'};
    uint32_t length = 260;
    ASSERT_EQ(Api().EnumValue(Base(), 0, name, &length), RegStatus::Success);
    EXPECT_EQ(length, 0u);
}

// Names with characters between 'Z' and 'a' are left out: Windows sorts them after the letters
// (it compares upper-cased names), Wine before them (it compares lower-cased ones).
TEST_P(RegistryApiContract, EnumKey_SortsCaseInsensitively_KeepsSpelling) {
    for (const wchar_t* name : {L"b", L"1x", L"C", L"a1", L"A", L"Zz", L"y", L"a-"}) {
        MustClose(Api(), MustCreate(Api(), Base(), name));
    }
    EXPECT_EQ(KeyNames(Api(), Base()),
              (std::vector<std::wstring>{L"1x", L"A", L"a-", L"a1", L"b", L"C", L"y", L"Zz"}));
}

TEST_P(RegistryApiContract, EnumKey_AfterDelete_ClosesTheGap) {
    for (const wchar_t* name : {L"a", L"b", L"c"}) {
        MustClose(Api(), MustCreate(Api(), Base(), name));
    }
    ASSERT_EQ(Api().DeleteKey(Base(), L"b"), RegStatus::Success);
    EXPECT_EQ(KeyNames(Api(), Base()), (std::vector<std::wstring>{L"a", L"c"}));
}

TEST_P(RegistryApiContract, EnumValue_ListsEveryValueOnce) {
    for (const wchar_t* name : {L"b", L"a", L"C"}) {
        ASSERT_EQ(SetDwordValue(Api(), Base(), name, 1), RegStatus::Success);
    }
    ASSERT_EQ(Api().DeleteValue(Base(), L"A"), RegStatus::Success);
    std::vector<std::wstring> names = ValueNames(Api(), Base());
    // Windows lists values in the order they were set, Wine sorts them; both list each once.
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"C", L"b"}));
}

TEST_P(RegistryApiContract, CreateKey_Nested_MakesEveryParent) {
    MustClose(Api(), MustCreate(Api(), Base(), L"x\\y\\z"));
    EXPECT_EQ(KeyNames(Api(), Base()), std::vector<std::wstring>{L"x"});
    const RegHandle x = MustOpen(Api(), Base(), L"X", RegAccess::EnumerateSubKeys);
    EXPECT_EQ(KeyNames(Api(), x), std::vector<std::wstring>{L"y"});
    MustClose(Api(), x);
}

TEST_P(RegistryApiContract, CreateKey_Existing_OpensItAndKeepsValues) {
    const RegHandle first = MustCreate(Api(), Base(), L"k");
    ASSERT_EQ(SetDwordValue(Api(), first, L"d", 5), RegStatus::Success);
    MustClose(Api(), first);
    const RegHandle again = MustCreate(Api(), Base(), L"K", RegAccess::QueryValue);
    EXPECT_EQ(Query(Api(), again, L"d"), RegStatus::Success);
    MustClose(Api(), again);
}

TEST_P(RegistryApiContract, DeleteKey_EmptyName_DeletesTheKeyItself) {
    const RegHandle key = MustCreate(Api(), Base(), L"gone");
    EXPECT_EQ(Api().DeleteKey(key, L""), RegStatus::Success);
    MustClose(Api(), key);
    EXPECT_EQ(OpenAndClose(Api(), Base(), L"gone", RegAccess::QueryValue), RegStatus::FileNotFound);
}

TEST_P(RegistryApiContract, DeleteKey_ThenRecreate_GivesAFreshKey) {
    const RegHandle key = MustCreate(Api(), Base(), L"k");
    ASSERT_EQ(SetDwordValue(Api(), key, L"d", 5), RegStatus::Success);
    MustClose(Api(), key);
    ASSERT_EQ(Api().DeleteKey(Base(), L"k"), RegStatus::Success);
    const RegHandle fresh = MustCreate(Api(), Base(), L"k");
    EXPECT_EQ(Query(Api(), fresh, L"d"), RegStatus::FileNotFound);
    MustClose(Api(), fresh);
}

}  // namespace
}  // namespace ZelCommon::Storage::Testing
