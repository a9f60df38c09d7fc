// How the registry answers, run against every registry implementation we have: natively the
// in-memory one, under Wine both it and the real Win32 registry, so the two are proven to agree.
#include "common_src/ZelCommon/RegistryApiContract.h"

#include <algorithm>
#include <cstring>

#include "common_src/ZelCommon/MemoryRegistry.h"

namespace ZelCommon::Storage::Testing {
namespace {

constexpr uint32_t kGenericRead = 0x80000000u;

// Opens or creates and hands back the handle, failing the test when the status is not 0.
RegHandle MustCreate(IRegistryApi& api, RegHandle parent, const wchar_t* path,
                     uint32_t access = RegAccess::AllAccess) {
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

// Opens with the given access, runs one call on the handle, closes and returns the call's status.
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

// One call against a prepared sandbox and the status Windows answers with.
struct StatusCase {
    const char* name;
    std::function<void(IRegistryApi&, RegHandle)> arrange;
    std::function<int32_t(IRegistryApi&, RegHandle)> act;
    int32_t expected;
};

// Every case starts with "k" (one value "v", subkey "k\sub") and "empty" below the sandbox.
void ArrangeCommon(IRegistryApi& api, RegHandle base) {
    const RegHandle key = MustCreate(api, base, L"k");
    EXPECT_EQ(SetText(api, key, L"v", L"text"), RegStatus::Success);
    MustClose(api, key);
    MustClose(api, MustCreate(api, base, L"k\\sub"));
    MustClose(api, MustCreate(api, base, L"empty"));
}

void Nothing(IRegistryApi&, RegHandle) {}

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

const std::wstring kName255(255, L'n');
const std::wstring kName256(256, L'n');
const std::wstring kName257(257, L'n');
const std::wstring kName300(300, L'n');

const StatusCase kStatusCases[] = {
    {"OpenMissingKey", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"missing", RegAccess::QueryValue);
     },
     RegStatus::FileNotFound},
    {"OpenMissingParent", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"missing\\k", RegAccess::QueryValue);
     },
     RegStatus::FileNotFound},
    {"OpenOtherCase", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"K\\SUB", RegAccess::QueryValue);
     },
     RegStatus::Success},
    {"OpenDoubledSeparator", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"k\\\\sub", RegAccess::QueryValue);
     },
     RegStatus::Success},
    {"OpenTrailingSeparator", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"k\\sub\\", RegAccess::QueryValue);
     },
     RegStatus::Success},
    {"OpenLeadingSeparator", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"\\k", RegAccess::QueryValue);
     },
     RegStatus::BadPathName},
    {"OpenEmptyPathGivesNewHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, L"", RegAccess::QueryValue);
     },
     RegStatus::Success},
    {"OpenNullPathGivesNewHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, nullptr, RegAccess::QueryValue);
     },
     RegStatus::Success},
    {"OpenBelowHandleWithoutRights", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::SetValue, [&](RegHandle key) {
             return OpenAndClose(api, key, L"sub", RegAccess::QueryValue);
         });
     },
     RegStatus::Success},
    {"CreateBelowQueryOnlyHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return CreateAndClose(api, key, L"new"); });
     },
     RegStatus::Success},
    {"CreateLeadingSeparator", Nothing,
     [](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, L"\\new"); },
     RegStatus::BadPathName},
    {"CreateName255", Nothing,
     [](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, kName255.c_str()); },
     RegStatus::Success},
    {"CreateName256", Nothing,
     [](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, kName256.c_str()); },
     RegStatus::Success},
    {"CreateName257", Nothing,
     [](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, kName257.c_str()); },
     RegStatus::InvalidParameter},
    {"CreateName300", Nothing,
     [](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, kName300.c_str()); },
     RegStatus::InvalidParameter},
    {"OpenName300", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return OpenAndClose(api, base, kName300.c_str(), RegAccess::QueryValue);
     },
     RegStatus::InvalidParameter},
    {"QueryWithoutQueryRight", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::SetValue,
                        [&](RegHandle key) { return Query(api, key, L"v"); });
     },
     RegStatus::AccessDenied},
    {"QueryWithGenericRead", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", kGenericRead,
                        [&](RegHandle key) { return Query(api, key, L"v"); });
     },
     RegStatus::Success},
    {"QueryThrough32BitView", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue | RegAccess::Wow64_32Key,
                        [&](RegHandle key) { return Query(api, key, L"v"); });
     },
     RegStatus::Success},
    {"QueryThrough64BitView", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue | RegAccess::Wow64_64Key,
                        [&](RegHandle key) { return Query(api, key, L"v"); });
     },
     RegStatus::Success},
    {"QueryOtherCaseName", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return Query(api, key, L"V"); });
     },
     RegStatus::Success},
    {"QueryMissingValue", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return Query(api, key, L"missing"); });
     },
     RegStatus::FileNotFound},
    {"QueryMissingDefaultValue", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return Query(api, key, nullptr); });
     },
     RegStatus::FileNotFound},
    {"QueryBufferTooSmall", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             uint8_t data[4];
             uint32_t size = sizeof(data);
             return api.QueryValue(key, L"v", nullptr, data, &size);
         });
     },
     RegStatus::MoreData},
    {"SetWithoutSetRight", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return SetDwordValue(api, key, L"d", 1); });
     },
     RegStatus::AccessDenied},
    {"SetWithGenericReadOnly", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", kGenericRead,
                        [&](RegHandle key) { return SetDwordValue(api, key, L"d", 1); });
     },
     RegStatus::AccessDenied},
    {"DeleteValueWithoutSetRight", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return api.DeleteValue(key, L"v"); });
     },
     RegStatus::AccessDenied},
    {"DeleteMissingValue", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::SetValue,
                        [&](RegHandle key) { return api.DeleteValue(key, L"missing"); });
     },
     RegStatus::FileNotFound},
    {"EnumKeysWithoutEnumerateRight", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             wchar_t name[260];
             uint32_t length = 260;
             return api.EnumKey(key, 0, name, &length);
         });
     },
     RegStatus::AccessDenied},
    {"EnumValuesWithoutQueryRight", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::EnumerateSubKeys, [&](RegHandle key) {
             wchar_t name[260];
             uint32_t length = 260;
             return api.EnumValue(key, 0, name, &length);
         });
     },
     RegStatus::AccessDenied},
    {"EnumKeysPastEnd", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::EnumerateSubKeys, [&](RegHandle key) {
             wchar_t name[260];
             uint32_t length = 260;
             return api.EnumKey(key, 1, name, &length);
         });
     },
     RegStatus::NoMoreItems},
    {"EnumKeysOfEmptyKey", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"empty", RegAccess::EnumerateSubKeys, [&](RegHandle key) {
             wchar_t name[260];
             uint32_t length = 260;
             return api.EnumKey(key, 0, name, &length);
         });
     },
     RegStatus::NoMoreItems},
    {"EnumKeysNameBufferExactlyTooSmall", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::EnumerateSubKeys, [&](RegHandle key) {
             wchar_t name[3];
             uint32_t length = 3;  // "sub" needs 4 with its terminator
             return api.EnumKey(key, 0, name, &length);
         });
     },
     RegStatus::MoreData},
    {"EnumKeysNameBufferJustLargeEnough", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::EnumerateSubKeys, [&](RegHandle key) {
             wchar_t name[4];
             uint32_t length = 4;
             return api.EnumKey(key, 0, name, &length);
         });
     },
     RegStatus::Success},
    {"EnumValuesNameBufferTooSmall", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             wchar_t name[1];
             uint32_t length = 1;  // "v" needs 2 with its terminator
             return api.EnumValue(key, 0, name, &length);
         });
     },
     RegStatus::MoreData},
    {"EnumValuesPastEnd", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             wchar_t name[260];
             uint32_t length = 260;
             return api.EnumValue(key, 1, name, &length);
         });
     },
     RegStatus::NoMoreItems},
    {"DeleteKeyWithSubkeys", Nothing,
     [](IRegistryApi& api, RegHandle base) { return api.DeleteKey(base, L"k"); },
     RegStatus::AccessDenied},
    {"DeleteMissingKey", Nothing,
     [](IRegistryApi& api, RegHandle base) { return api.DeleteKey(base, L"missing"); },
     RegStatus::FileNotFound},
    {"DeleteLeafKey", Nothing,
     [](IRegistryApi& api, RegHandle base) { return api.DeleteKey(base, L"K\\Sub"); },
     RegStatus::Success},
    {"DeleteKeyNullName", Nothing,
     [](IRegistryApi& api, RegHandle base) { return api.DeleteKey(base, nullptr); },
     RegStatus::InvalidParameter},
    {"QueryOnDeletedKeyHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"empty", RegAccess::QueryValue, [&](RegHandle key) {
             EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
             return Query(api, key, L"v");
         });
     },
     RegStatus::KeyDeleted},
    {"CreateBelowDeletedKeyHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"empty", RegAccess::QueryValue, [&](RegHandle key) {
             EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
             return CreateAndClose(api, key, L"new");
         });
     },
     RegStatus::KeyDeleted},
    {"FlushDeletedKey", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"empty", RegAccess::QueryValue, [&](RegHandle key) {
             EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
             return api.FlushKey(key);
         });
     },
     RegStatus::KeyDeleted},
    {"SetOnDeletedKey", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"empty", RegAccess::SetValue, [&](RegHandle key) {
             EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
             return SetDwordValue(api, key, L"d", 1);
         });
     },
     RegStatus::KeyDeleted},
    {"CloseDeletedKeyHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         const RegHandle key = MustOpen(api, base, L"empty", RegAccess::QueryValue);
         EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
         return api.CloseKey(key);
     },
     RegStatus::Success},
    {"DeleteKeyBelowQueryOnlyHandle", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return api.DeleteKey(key, L"sub"); });
     },
     RegStatus::Success},
    {"QueryWithNoRightsAtAll", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", 0, [&](RegHandle key) { return Query(api, key, L"v"); });
     },
     RegStatus::AccessDenied},
    {"QueryExistenceOnly", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             return api.QueryValue(key, L"v", nullptr, nullptr, nullptr);
         });
     },
     RegStatus::Success},
    {"QueryDataWithoutSize", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue, [&](RegHandle key) {
             uint8_t data[64];
             return api.QueryValue(key, L"v", nullptr, data, nullptr);
         });
     },
     RegStatus::InvalidParameter},
    {"SetDwordOfThreeBytes", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         const uint8_t bytes[] = {1, 2, 3};
         return api.SetValue(base, L"d3", RegType::Dword, bytes, 3);
     },
     RegStatus::Success},
    {"SetEmptyBinary", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return api.SetValue(base, L"none", RegType::Binary, nullptr, 0);
     },
     RegStatus::Success},
    {"FlushOpenKey", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         return WithKey(api, base, L"k", RegAccess::QueryValue,
                        [&](RegHandle key) { return api.FlushKey(key); });
     },
     RegStatus::Success},
    {"CloseRootKey", Nothing,
     [](IRegistryApi& api, RegHandle) { return api.CloseKey(RootHandle(RegRoot::CurrentUser)); },
     RegStatus::Success},
    {"CloseTwice", Nothing,
     [](IRegistryApi& api, RegHandle base) {
         const RegHandle key = MustOpen(api, base, L"k", RegAccess::QueryValue);
         MustClose(api, key);
         return api.CloseKey(key);
     },
     RegStatus::InvalidHandle},
    {"CloseNullHandle", Nothing, [](IRegistryApi& api, RegHandle) { return api.CloseKey(0); },
     RegStatus::InvalidHandle},
    {"QueryOnNullHandle", Nothing, [](IRegistryApi& api, RegHandle) { return Query(api, 0, L"v"); },
     RegStatus::InvalidHandle},
};

TEST_P(RegistryApiContract, StatusTable_EveryCase_AnswersAsWindows) {
    for (const StatusCase& c : kStatusCases) {
        SCOPED_TRACE(c.name);
        const RegHandle caseKey = MustCreate(Api(), Base(), L"case");
        ArrangeCommon(Api(), caseKey);
        c.arrange(Api(), caseKey);
        EXPECT_EQ(c.act(Api(), caseKey), c.expected) << c.name;
        MustClose(Api(), caseKey);
        EXPECT_EQ(DeleteTree(Api(), Base(), L"case"), RegStatus::Success) << c.name;
    }
}

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

std::vector<std::wstring> KeyNames(IRegistryApi& api, RegHandle key) {
    std::vector<std::wstring> names;
    for (uint32_t index = 0;; ++index) {
        wchar_t name[260];
        uint32_t length = 260;
        const int32_t status = api.EnumKey(key, index, name, &length);
        if (status != RegStatus::Success) {
            EXPECT_EQ(status, RegStatus::NoMoreItems);
            return names;
        }
        names.emplace_back(name, length);
    }
}

std::vector<std::wstring> ValueNames(IRegistryApi& api, RegHandle key) {
    std::vector<std::wstring> names;
    for (uint32_t index = 0;; ++index) {
        wchar_t name[260];
        uint32_t length = 260;
        const int32_t status = api.EnumValue(key, index, name, &length);
        if (status != RegStatus::Success) {
            EXPECT_EQ(status, RegStatus::NoMoreItems);
            return names;
        }
        names.emplace_back(name, length);
    }
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

std::shared_ptr<IRegistryApi> MakeMemoryRegistry() {
    return std::make_shared<MemoryRegistry>();
}

INSTANTIATE_TEST_SUITE_P(Memory, RegistryApiContract,
                         testing::Values(RegistryBackend{"Memory", MakeMemoryRegistry}),
                         BackendName);

}  // namespace
}  // namespace ZelCommon::Storage::Testing
