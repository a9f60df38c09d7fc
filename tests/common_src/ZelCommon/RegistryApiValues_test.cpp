// What the registry stores and gives back, against every registry implementation (the
// suites are instantiated with the status table).
#include <algorithm>
#include <vector>

#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"

namespace ZelCommon::Storage::Testing {
namespace {

// A query hands back the type and the stored size, and the bytes when they fit. Text counted
// without its terminator gains one when the next character is zero, and is ended on the way out
// when the caller's buffer has room; binary data is left as it is.
TEST_P(RegistryApiContract, QueryValue_GivesTypeSizeAndBytesAsStored) {
    constexpr int32_t kOk = RegStatus::Success;
    const std::vector<uint8_t> endedByQuery = {'a', 0, 'b', 0, 'c', 0, 0, 0, 0xFF, 0xFF};
    const std::vector<uint8_t> binaryAsIs = {'a', 0, 'b', 0, 0xFF, 0xFF, 0xFF, 0xFF};
    const struct {
        const char* name;
        uint32_t type;
        std::vector<uint8_t> stored;
        uint32_t storedSize;
        uint32_t bufferSize;  // 0: no buffer
        int32_t status;
        uint32_t size;
        std::vector<uint8_t> buffer;  // the buffer afterwards, filled with 0xFF before
    } cases[] = {
        {"type and size only", RegType::Sz, Utf16Bytes(L"abc"), 8, 0, kOk, 8, {}},
        {"small buffer", RegType::Sz, Utf16Bytes(L"abcdef"), 14, 4, RegStatus::MoreData, 14, {}},
        {"exact buffer", RegType::Binary, {1, 2, 3}, 3, 3, kOk, 3, {1, 2, 3}},
        {"unterminated text", RegType::Sz, Utf16Bytes(L"abcd"), 6, 0, kOk, 6, {}},
        {"counted without terminator", RegType::Sz, Utf16Bytes(L"abc"), 6, 0, kOk, 8, {}},
        {"unterminated text with room", RegType::Sz, Utf16Bytes(L"abcd"), 6, 10, kOk, 6,
         endedByQuery},
        {"binary with room", RegType::Binary, {'a', 0, 'b', 0}, 4, 8, kOk, 4, binaryAsIs},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        ASSERT_EQ(Api().SetValue(Base(), L"v", each.type, each.stored.data(), each.storedSize),
                  RegStatus::Success);
        std::vector<uint8_t> buffer(each.bufferSize, 0xFF);
        uint32_t type = 0;
        uint32_t size = each.bufferSize;
        EXPECT_EQ(
            Api().QueryValue(Base(), L"v", &type, buffer.empty() ? nullptr : buffer.data(), &size),
            each.status);
        EXPECT_EQ(type, each.type);
        EXPECT_EQ(size, each.size);
        if (!each.buffer.empty()) {
            EXPECT_EQ(buffer, each.buffer);
        }
    }
}

TEST_P(RegistryApiContract, SetValue_OtherCaseName_ReplacesTheValue) {
    ASSERT_EQ(SetDwordValue(Api(), Base(), L"Name", 1), RegStatus::Success);
    ASSERT_EQ(SetDwordValue(Api(), Base(), L"NAME", 2), RegStatus::Success);
    uint8_t data[4] = {};
    uint32_t size = 4;
    ASSERT_EQ(Api().QueryValue(Base(), L"name", nullptr, data, &size), RegStatus::Success);
    EXPECT_EQ(data[0], 2);
    EXPECT_EQ(ValueNames(Api(), Base()), std::vector<std::wstring>{L"Name"});
}

TEST_P(RegistryApiContract, DefaultValue_NullAndEmptyName_AreTheSame) {
    ASSERT_EQ(SetDwordValue(Api(), Base(), nullptr, 7), RegStatus::Success);
    uint8_t data[4] = {};
    uint32_t size = 4;
    ASSERT_EQ(Api().QueryValue(Base(), L"", nullptr, data, &size), RegStatus::Success);
    EXPECT_EQ(data[0], 7);
    EXPECT_EQ(ValueNames(Api(), Base()), std::vector<std::wstring>{L""});
}

// Names with characters between 'Z' and 'a' are left out: Windows sorts them after the letters
// (it compares upper-cased names), Wine before them (it compares lower-cased ones).
TEST_P(RegistryApiContract, EnumKey_SortsCaseInsensitively_KeepsSpelling) {
    for (const wchar_t* name : {L"b", L"1x", L"C", L"a1", L"A", L"Zz", L"y", L"a-"}) {
        MustClose(Api(), MustCreate(Api(), Base(), name));
    }
    EXPECT_EQ(KeyNames(Api(), Base()),
              (std::vector<std::wstring>{L"1x", L"A", L"a-", L"a1", L"b", L"C", L"y", L"Zz"}));
    // A deleted key leaves no gap.
    ASSERT_EQ(Api().DeleteKey(Base(), L"b"), RegStatus::Success);
    EXPECT_EQ(KeyNames(Api(), Base()),
              (std::vector<std::wstring>{L"1x", L"A", L"a-", L"a1", L"C", L"y", L"Zz"}));
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

TEST_P(RegistryApiContract, CreateKey_KeepsAnExistingKeysValuesAndADeletedOneComesBackEmpty) {
    const RegHandle first = MustCreate(Api(), Base(), L"k");
    ASSERT_EQ(SetDwordValue(Api(), first, L"d", 5), RegStatus::Success);
    MustClose(Api(), first);
    const RegHandle again = MustCreate(Api(), Base(), L"K", RegAccess::QueryValue);
    EXPECT_EQ(Query(Api(), again, L"d"), RegStatus::Success);
    MustClose(Api(), again);
    ASSERT_EQ(Api().DeleteKey(Base(), L"k"), RegStatus::Success);
    const RegHandle fresh = MustCreate(Api(), Base(), L"k");
    EXPECT_EQ(Query(Api(), fresh, L"d"), RegStatus::FileNotFound);
    MustClose(Api(), fresh);
}

TEST_P(RegistryApiContract, DeleteKey_EmptyName_DeletesTheKeyItself) {
    const RegHandle key = MustCreate(Api(), Base(), L"gone");
    EXPECT_EQ(Api().DeleteKey(key, L""), RegStatus::Success);
    MustClose(Api(), key);
    EXPECT_EQ(OpenAndClose(Api(), Base(), L"gone", RegAccess::QueryValue), RegStatus::FileNotFound);
}

}  // namespace
}  // namespace ZelCommon::Storage::Testing
