// How the registry answers, run against every registry implementation we have: natively the
// in-memory one, under Wine both it and the real Win32 registry, so the two are proven to agree.
#include "common_src/ZelCommon/RegistryApiContract.h"

#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"

namespace ZelCommon::Storage::Testing {
namespace {

// One call against a prepared sandbox and the status Windows answers with.
using Act = std::function<int32_t(IRegistryApi&, RegHandle)>;
struct StatusCase {
    const char* name;
    Act act;
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

// The steps a case is made of; `path` and `name` are read when the case runs.
Act Open(const wchar_t* path, uint32_t access = RegAccess::QueryValue) {
    return [=](IRegistryApi& api, RegHandle base) { return OpenAndClose(api, base, path, access); };
}
Act Create(const wchar_t* path) {
    return [=](IRegistryApi& api, RegHandle base) { return CreateAndClose(api, base, path); };
}
// `act` runs on `path` opened with `access` in place of the sandbox.
Act On(const wchar_t* path, uint32_t access, Act act) {
    return [=](IRegistryApi& api, RegHandle base) {
        return WithKey(api, base, path, access, [&](RegHandle key) { return act(api, key); });
    };
}
// As On, with `path` deleted while its handle is open.
Act OnDeleted(const wchar_t* path, uint32_t access, Act act) {
    return [=](IRegistryApi& api, RegHandle base) {
        return WithKey(api, base, path, access, [&](RegHandle key) {
            EXPECT_EQ(api.DeleteKey(base, path), RegStatus::Success);
            return act(api, key);
        });
    };
}
Act QueryOf(const wchar_t* name) {
    return [=](IRegistryApi& api, RegHandle key) { return Query(api, key, name); };
}
Act SetDword(const wchar_t* name) {
    return [=](IRegistryApi& api, RegHandle key) { return SetDwordValue(api, key, name, 1); };
}
Act DeleteKey(const wchar_t* name) {
    return [=](IRegistryApi& api, RegHandle key) { return api.DeleteKey(key, name); };
}
Act DeleteValue(const wchar_t* name) {
    return [=](IRegistryApi& api, RegHandle key) { return api.DeleteValue(key, name); };
}
// Queries "v" into a buffer of `length` bytes (no buffer for 0), giving the size only when asked.
Act QueryData(uint32_t length, bool withSize = true) {
    return [=](IRegistryApi& api, RegHandle key) {
        std::vector<uint8_t> data(length);
        uint32_t size = length;
        return api.QueryValue(key, L"v", nullptr, length ? data.data() : nullptr,
                              withSize ? &size : nullptr);
    };
}
Act Flush() {
    return [](IRegistryApi& api, RegHandle key) { return api.FlushKey(key); };
}
// Stores `bytes` under "raw" as a value of `type` (no data at all when empty).
Act SetRaw(uint32_t type, std::vector<uint8_t> bytes) {
    return [=](IRegistryApi& api, RegHandle key) {
        return api.SetValue(key, L"raw", type, bytes.empty() ? nullptr : bytes.data(),
                            static_cast<uint32_t>(bytes.size()));
    };
}
// Enumerates the name at `index` into a buffer of `length` characters.
Act EnumKey(uint32_t index, uint32_t length = 260) {
    return [=](IRegistryApi& api, RegHandle key) {
        std::vector<wchar_t> name(length);
        uint32_t size = length;
        return api.EnumKey(key, index, name.data(), &size);
    };
}
Act EnumValue(uint32_t index, uint32_t length = 260) {
    return [=](IRegistryApi& api, RegHandle key) {
        std::vector<wchar_t> name(length);
        uint32_t size = length;
        return api.EnumValue(key, index, name.data(), &size);
    };
}

const std::wstring kName255(255, L'n');
const std::wstring kName256(256, L'n');
const std::wstring kName257(257, L'n');
const std::wstring kName300(300, L'n');
constexpr uint32_t kQuery = RegAccess::QueryValue;
constexpr uint32_t kSet = RegAccess::SetValue;
constexpr uint32_t kEnumerate = RegAccess::EnumerateSubKeys;

const StatusCase kStatusCases[] = {
    {"OpenMissingKey", Open(L"missing"), RegStatus::FileNotFound},
    {"OpenMissingParent", Open(L"missing\\k"), RegStatus::FileNotFound},
    {"OpenOtherCase", Open(L"K\\SUB"), RegStatus::Success},
    {"OpenDoubledSeparator", Open(L"k\\\\sub"), RegStatus::Success},
    {"OpenTrailingSeparator", Open(L"k\\sub\\"), RegStatus::Success},
    {"OpenLeadingSeparator", Open(L"\\k"), RegStatus::BadPathName},
    {"OpenEmptyPathGivesNewHandle", Open(L""), RegStatus::Success},
    {"OpenNullPathGivesNewHandle", Open(nullptr), RegStatus::Success},
    {"OpenBelowHandleWithoutRights", On(L"k", kSet, Open(L"sub")), RegStatus::Success},
    {"CreateBelowQueryOnlyHandle", On(L"k", kQuery, Create(L"new")), RegStatus::Success},
    {"CreateLeadingSeparator", Create(L"\\new"), RegStatus::BadPathName},
    {"CreateName255", Create(kName255.c_str()), RegStatus::Success},
    {"CreateName256", Create(kName256.c_str()), RegStatus::Success},
    {"CreateName257", Create(kName257.c_str()), RegStatus::InvalidParameter},
    {"CreateName300", Create(kName300.c_str()), RegStatus::InvalidParameter},
    {"OpenName300", Open(kName300.c_str()), RegStatus::InvalidParameter},
    {"QueryWithoutQueryRight", On(L"k", kSet, QueryOf(L"v")), RegStatus::AccessDenied},
    {"QueryWithGenericRead", On(L"k", kGenericRead, QueryOf(L"v")), RegStatus::Success},
    {"QueryThrough32BitView", On(L"k", kQuery | RegAccess::Wow64_32Key, QueryOf(L"v")),
     RegStatus::Success},
    {"QueryThrough64BitView", On(L"k", kQuery | RegAccess::Wow64_64Key, QueryOf(L"v")),
     RegStatus::Success},
    {"QueryOtherCaseName", On(L"k", kQuery, QueryOf(L"V")), RegStatus::Success},
    {"QueryMissingValue", On(L"k", kQuery, QueryOf(L"missing")), RegStatus::FileNotFound},
    {"QueryMissingDefaultValue", On(L"k", kQuery, QueryOf(nullptr)), RegStatus::FileNotFound},
    {"QueryBufferTooSmall", On(L"k", kQuery, QueryData(4)), RegStatus::MoreData},
    {"SetWithoutSetRight", On(L"k", kQuery, SetDword(L"d")), RegStatus::AccessDenied},
    {"SetWithGenericReadOnly", On(L"k", kGenericRead, SetDword(L"d")), RegStatus::AccessDenied},
    {"DeleteValueWithoutSetRight", On(L"k", kQuery, DeleteValue(L"v")), RegStatus::AccessDenied},
    {"DeleteMissingValue", On(L"k", kSet, DeleteValue(L"missing")), RegStatus::FileNotFound},
    {"EnumKeysWithoutEnumerateRight", On(L"k", kQuery, EnumKey(0)), RegStatus::AccessDenied},
    {"EnumValuesWithoutQueryRight", On(L"k", kEnumerate, EnumValue(0)), RegStatus::AccessDenied},
    {"EnumKeysPastEnd", On(L"k", kEnumerate, EnumKey(1)), RegStatus::NoMoreItems},
    {"EnumKeysOfEmptyKey", On(L"empty", kEnumerate, EnumKey(0)), RegStatus::NoMoreItems},
    // "sub" needs 4 characters with its terminator, "v" 2.
    {"EnumKeysNameBufferExactlyTooSmall", On(L"k", kEnumerate, EnumKey(0, 3)), RegStatus::MoreData},
    {"EnumKeysNameBufferJustLargeEnough", On(L"k", kEnumerate, EnumKey(0, 4)), RegStatus::Success},
    {"EnumValuesNameBufferTooSmall", On(L"k", kQuery, EnumValue(0, 1)), RegStatus::MoreData},
    {"EnumValuesPastEnd", On(L"k", kQuery, EnumValue(1)), RegStatus::NoMoreItems},
    {"DeleteKeyWithSubkeys", DeleteKey(L"k"), RegStatus::AccessDenied},
    {"DeleteMissingKey", DeleteKey(L"missing"), RegStatus::FileNotFound},
    {"DeleteLeafKey", DeleteKey(L"K\\Sub"), RegStatus::Success},
    {"DeleteKeyNullName", DeleteKey(nullptr), RegStatus::InvalidParameter},
    {"QueryOnDeletedKeyHandle", OnDeleted(L"empty", kQuery, QueryOf(L"v")), RegStatus::KeyDeleted},
    {"CreateBelowDeletedKeyHandle", OnDeleted(L"empty", kQuery, Create(L"new")),
     RegStatus::KeyDeleted},
    {"FlushDeletedKey", OnDeleted(L"empty", kQuery, Flush()), RegStatus::KeyDeleted},
    {"SetOnDeletedKey", OnDeleted(L"empty", kSet, SetDword(L"d")), RegStatus::KeyDeleted},
    {"CloseDeletedKeyHandle",
     [](IRegistryApi& api, RegHandle base) {
         const RegHandle key = MustOpen(api, base, L"empty", kQuery);
         EXPECT_EQ(api.DeleteKey(base, L"empty"), RegStatus::Success);
         return api.CloseKey(key);
     },
     RegStatus::Success},
    {"DeleteKeyBelowQueryOnlyHandle", On(L"k", kQuery, DeleteKey(L"sub")), RegStatus::Success},
    {"QueryWithNoRightsAtAll", On(L"k", 0, QueryOf(L"v")), RegStatus::AccessDenied},
    {"QueryExistenceOnly", On(L"k", kQuery, QueryData(0, false)), RegStatus::Success},
    {"QueryDataWithoutSize", On(L"k", kQuery, QueryData(64, false)), RegStatus::InvalidParameter},
    {"SetDwordOfThreeBytes", SetRaw(RegType::Dword, {1, 2, 3}), RegStatus::Success},
    {"SetEmptyBinary", SetRaw(RegType::Binary, {}), RegStatus::Success},
    {"FlushOpenKey", On(L"k", kQuery, Flush()), RegStatus::Success},
    {"CloseRootKey",
     [](IRegistryApi& api, RegHandle) { return api.CloseKey(RootHandle(RegRoot::CurrentUser)); },
     RegStatus::Success},
    {"CloseTwice",
     [](IRegistryApi& api, RegHandle base) {
         const RegHandle key = MustOpen(api, base, L"k", kQuery);
         MustClose(api, key);
         return api.CloseKey(key);
     },
     RegStatus::InvalidHandle},
    {"CloseNullHandle", [](IRegistryApi& api, RegHandle) { return api.CloseKey(0); },
     RegStatus::InvalidHandle},
    {"QueryOnNullHandle", [](IRegistryApi& api, RegHandle) { return Query(api, 0, L"v"); },
     RegStatus::InvalidHandle},
};

TEST_P(RegistryApiContract, StatusTable_EveryCase_AnswersAsWindows) {
    for (const StatusCase& c : kStatusCases) {
        SCOPED_TRACE(c.name);
        const RegHandle caseKey = MustCreate(Api(), Base(), L"case");
        ArrangeCommon(Api(), caseKey);
        EXPECT_EQ(c.act(Api(), caseKey), c.expected) << c.name;
        MustClose(Api(), caseKey);
        EXPECT_EQ(DeleteTree(Api(), Base(), L"case"), RegStatus::Success) << c.name;
    }
}

std::shared_ptr<IRegistryApi> MakeMemoryRegistry() {
    return std::make_shared<MemoryRegistry>();
}

INSTANTIATE_TEST_SUITE_P(Memory, RegistryApiContract,
                         testing::Values(RegistryBackend{"Memory", MakeMemoryRegistry}),
                         BackendName);

}  // namespace
}  // namespace ZelCommon::Storage::Testing
