// How the registry answers, run against every registry implementation we have: natively the
// in-memory one, under Wine both it and the real Win32 registry, so the two are proven to agree.
#include "common_src/ZelCommon/RegistryApiContract.h"

#include <algorithm>
#include <cstring>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryContractSteps.h"

namespace ZelCommon::Storage::Testing {
namespace {

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

std::shared_ptr<IRegistryApi> MakeMemoryRegistry() {
    return std::make_shared<MemoryRegistry>();
}

INSTANTIATE_TEST_SUITE_P(Memory, RegistryApiContract,
                         testing::Values(RegistryBackend{"Memory", MakeMemoryRegistry}),
                         BackendName);

}  // namespace
}  // namespace ZelCommon::Storage::Testing
