#include "common_src/ZelCommon/Registry.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/ZelCommon/StorageException.h"

namespace ZelCommon::Storage {
namespace {

using Testing::Utf16Bytes;

// Passes every call on and records the access each open or create asked for.
class RecordingRegistry : public IRegistryApi {
public:
    explicit RecordingRegistry(IRegistryApi& inner) : m_inner(inner) {}

    struct Open {
        bool create;
        RegHandle parent;
        std::wstring path;
        uint32_t access;
    };
    std::vector<Open> opens;
    std::vector<std::pair<RegHandle, std::wstring>> deletes;

    int32_t OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                    RegHandle* result) override {
        opens.push_back({false, parent, subKey, access});
        return m_inner.OpenKey(parent, subKey, access, result);
    }
    int32_t CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                      const void* securityAttributes, RegHandle* result) override {
        opens.push_back({true, parent, subKey, access});
        return m_inner.CreateKey(parent, subKey, access, securityAttributes, result);
    }
    int32_t CloseKey(RegHandle key) override { return m_inner.CloseKey(key); }
    int32_t FlushKey(RegHandle key) override { return m_inner.FlushKey(key); }
    int32_t QueryValue(RegHandle key, const wchar_t* name, uint32_t* type, uint8_t* data,
                       uint32_t* size) override {
        return m_inner.QueryValue(key, name, type, data, size);
    }
    int32_t SetValue(RegHandle key, const wchar_t* name, uint32_t type, const uint8_t* data,
                     uint32_t size) override {
        return m_inner.SetValue(key, name, type, data, size);
    }
    int32_t DeleteKey(RegHandle parent, const wchar_t* subKey) override {
        deletes.emplace_back(parent, subKey);
        return m_inner.DeleteKey(parent, subKey);
    }
    int32_t DeleteValue(RegHandle key, const wchar_t* name) override {
        return m_inner.DeleteValue(key, name);
    }
    int32_t EnumKey(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override {
        return m_inner.EnumKey(key, index, name, nameLength);
    }
    int32_t EnumValue(RegHandle key, uint32_t index, wchar_t* name, uint32_t* nameLength) override {
        return m_inner.EnumValue(key, index, name, nameLength);
    }

private:
    IRegistryApi& m_inner;
};

constexpr wchar_t kPath[] = L"Software\\OrvaTests\\Store";
const RegHandle kHkcu = RootHandle(RegRoot::CurrentUser);

// Runs the body and returns the storage error it threw, or 0 when it threw nothing.
template <class Body>
uint32_t ThrownCode(Body&& body) {
    uint32_t code = 0;
    const bool completed = ZelCommon::Exception::CatchThrown<Exception>(
        std::forward<Body>(body), [&](const Exception& e) { code = e.ErrorCode(); });
    EXPECT_FALSE(completed && code != 0);
    return code;
}

class RegistryStore : public testing::Test {
protected:
    void SetUp() override {
        RegHandle key = 0;
        ASSERT_EQ(m_memory.CreateKey(kHkcu, kPath, RegAccess::AllAccess, nullptr, &key), 0);
        m_key = UniqueRegKey(m_memory, key);
    }

    void SetRaw(const wchar_t* name, uint32_t type, const std::vector<uint8_t>& bytes,
                uint32_t size) {
        ASSERT_EQ(m_memory.SetValue(m_key.Get(), name, type, bytes.data(), size), 0);
    }

    MemoryRegistry m_memory;
    RecordingRegistry m_recorder{m_memory};
    UniqueRegKey m_key;
};

struct AccessCase {
    const char* name;
    void (Registry::*open)(const Location&, const std::wstring&, int);
    int view;
    bool create;
    uint32_t access;
};

const AccessCase kAccessCases[] = {
    {"Open", &Registry::Open, 0, false, RegAccess::QueryValue},
    {"Open32", &Registry::Open, 1, false, RegAccess::QueryValue | RegAccess::Wow64_32Key},
    {"Open64", &Registry::Open, 2, false, RegAccess::QueryValue | RegAccess::Wow64_64Key},
    {"OpenView3", &Registry::Open, 3, false, RegAccess::QueryValue},
    {"OpenViewNegative", &Registry::Open, -1, false, RegAccess::QueryValue},
    {"Create", &Registry::Create, 0, true,
     RegAccess::QueryValue | RegAccess::SetValue | RegAccess::CreateSubKey},
    {"Create32", &Registry::Create, 1, true,
     RegAccess::QueryValue | RegAccess::SetValue | RegAccess::CreateSubKey |
         RegAccess::Wow64_32Key},
    {"WriteAndDelete", &Registry::OpenForWriteAndDelete, 0, false,
     RegAccess::SetValue | RegAccess::Delete},
    {"WriteAndDelete64", &Registry::OpenForWriteAndDelete, 2, false,
     RegAccess::SetValue | RegAccess::Delete | RegAccess::Wow64_64Key},
    {"Enumerate", &Registry::OpenForEnumerate, 0, false,
     RegAccess::QueryValue | RegAccess::EnumerateSubKeys},
    {"Enumerate32", &Registry::OpenForEnumerate, 1, false,
     RegAccess::QueryValue | RegAccess::EnumerateSubKeys | RegAccess::Wow64_32Key},
};

TEST_F(RegistryStore, OpenKinds_AskForTheirAccessAndView) {
    for (const AccessCase& c : kAccessCases) {
        SCOPED_TRACE(c.name);
        m_recorder.opens.clear();
        Registry store(m_recorder);
        (store.*c.open)(RegRoot::CurrentUser, kPath, c.view);
        ASSERT_EQ(m_recorder.opens.size(), 1u);
        EXPECT_EQ(m_recorder.opens[0].create, c.create);
        EXPECT_EQ(m_recorder.opens[0].parent, kHkcu);
        EXPECT_EQ(m_recorder.opens[0].path, kPath);
        EXPECT_EQ(m_recorder.opens[0].access, c.access);
        EXPECT_TRUE(store.IsOpen());
        EXPECT_EQ(store.KeyPath(), kPath);
    }
}

TEST_F(RegistryStore, OpenMissingKey_ThrowsItsStatus) {
    Registry store(m_memory);
    EXPECT_EQ(ThrownCode([&] { store.Open(RegRoot::CurrentUser, L"Software\\Missing", 0); }), 2u);
    EXPECT_FALSE(store.IsOpen());
}

TEST_F(RegistryStore, OpenLeadingBackslash_ThrowsBadPath) {
    Registry store(m_memory);
    EXPECT_EQ(ThrownCode([&] { store.Create(RegRoot::CurrentUser, L"\\Software\\X", 0); }), 161u);
}

TEST_F(RegistryStore, Create_MakesMissingParents) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, L"Software\\OrvaTests\\New\\Deep", 0);
    store.SetDword(L"n", 3);
    Registry reader(m_memory);
    reader.Open(RegRoot::CurrentUser, L"software\\orvatests\\new\\deep", 0);
    EXPECT_EQ(reader.GetDword(L"N", 0), 3u);
}

TEST_F(RegistryStore, GetString_MissingValueWithDefault_ThrowsFileNotFound) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    uint32_t code = 0;
    std::wstring valueName;
    ZelCommon::Exception::CatchThrown<RegException>(
        [&] { store.GetString(L"Missing", L"fallback"); },
        [&](const RegException& e) {
            code = e.ErrorCode();
            valueName = e.ValueName();
            EXPECT_EQ(e.KeyPath(), kPath);
        });
    EXPECT_EQ(code, 2u);
    EXPECT_EQ(valueName, L"Missing");
}

TEST_F(RegistryStore, GetDword_MissingValueWithDefault_ThrowsFileNotFound) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(ThrownCode([&] { store.GetDword(L"Missing", 42); }), 2u);
}

TEST_F(RegistryStore, SetString_RoundTrips_WithTerminatorCounted) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetString(L"Name", L"Grüße, world");
    uint32_t type = 0;
    uint32_t size = 0;
    ASSERT_EQ(m_memory.QueryValue(m_key.Get(), L"Name", &type, nullptr, &size), 0);
    EXPECT_EQ(type, RegType::Sz);
    EXPECT_EQ(size, (12u + 1u) * 2u);
    EXPECT_EQ(store.GetString(L"name", L""), L"Grüße, world");
}

TEST_F(RegistryStore, GetString_EmptyValue_IsEmpty) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetString(L"e", L"");
    EXPECT_EQ(store.GetString(L"e", L"x"), L"");
}

TEST_F(RegistryStore, GetString_UnterminatedValue_ComesBackWhole) {
    // "abcd" counted as three characters, so the registry keeps it unterminated.
    SetRaw(L"raw", RegType::Sz, Utf16Bytes(L"abcd"), 6);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(store.GetString(L"raw", L""), L"abc");
}

TEST_F(RegistryStore, GetString_OddSizedValue_DoesNotOverRead) {
    // Three bytes: one character and half of the next; the registry peeks past the count.
    SetRaw(L"odd", RegType::ExpandSz, {'a', 0, 'b', 'x', 'y', 'z'}, 3);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(store.GetString(L"odd", L""), L"ab");
}

TEST_F(RegistryStore, GetString_ExpandAndMultiText_AreAccepted) {
    SetRaw(L"exp", RegType::ExpandSz, Utf16Bytes(L"%TEMP%\\x"), 18);
    const std::vector<uint8_t> multi = Utf16Bytes(std::wstring(L"one\0two\0", 8));
    SetRaw(L"multi", RegType::MultiSz, multi, static_cast<uint32_t>(multi.size()));
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(store.GetString(L"exp", L""), L"%TEMP%\\x");
    EXPECT_EQ(store.GetString(L"multi", L""), L"one");
}

TEST_F(RegistryStore, GetString_OfDword_ThrowsInvalidData) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetDword(L"d", 5);
    EXPECT_EQ(ThrownCode([&] { store.GetString(L"d", L""); }), 13u);
}

TEST_F(RegistryStore, GetBinary_ThreeBytesIntoFour_ThrowsInvalidData) {
    SetRaw(L"b", RegType::Binary, {1, 2, 3}, 3);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    uint8_t buffer[4] = {9, 9, 9, 9};
    EXPECT_EQ(ThrownCode([&] { store.GetBinary(L"b", buffer, 4); }), 13u);
    EXPECT_EQ(buffer[0], 9);
}

TEST_F(RegistryStore, GetBinary_FiveBytesIntoFour_ThrowsInvalidData) {
    SetRaw(L"b", RegType::Binary, {1, 2, 3, 4, 5}, 5);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    uint8_t buffer[4] = {};
    EXPECT_EQ(ThrownCode([&] { store.GetBinary(L"b", buffer, 4); }), 13u);
}

TEST_F(RegistryStore, SetBinary_RoundTrips) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    const uint8_t data[] = {0xDE, 0xAD, 0xBE, 0xEF, 0x00};
    store.SetBinary(L"blob", data, sizeof(data));
    uint8_t back[5] = {};
    store.GetBinary(L"blob", back, sizeof(back));
    EXPECT_EQ(0, std::memcmp(data, back, sizeof(data)));
}

TEST_F(RegistryStore, GetBinary_OfText_ThrowsInvalidData) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetString(L"s", L"a");  // four bytes, but not binary
    uint8_t buffer[4] = {};
    EXPECT_EQ(ThrownCode([&] { store.GetBinary(L"s", buffer, 4); }), 13u);
}

TEST_F(RegistryStore, GetDword_WrongTypeOrSize_ThrowsInvalidData) {
    SetRaw(L"bin4", RegType::Binary, {1, 0, 0, 0}, 4);
    SetRaw(L"dword3", RegType::Dword, {1, 0, 0}, 3);
    SetRaw(L"dword8", RegType::Dword, {1, 0, 0, 0, 0, 0, 0, 0}, 8);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    for (const wchar_t* name : {L"bin4", L"dword3", L"dword8"}) {
        EXPECT_EQ(ThrownCode([&] { store.GetDword(name, 0); }), 13u);
        EXPECT_EQ(ThrownCode([&] { store.GetSigned(name); }), 13u);
    }
}

TEST_F(RegistryStore, SetDword_IsLittleEndianFourBytes) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetDword(L"d", 0x11223344u);
    uint8_t bytes[4] = {};
    uint32_t size = 4;
    uint32_t type = 0;
    ASSERT_EQ(m_memory.QueryValue(m_key.Get(), L"d", &type, bytes, &size), 0);
    EXPECT_EQ(type, RegType::Dword);
    EXPECT_EQ(bytes[0], 0x44);
    EXPECT_EQ(bytes[3], 0x11);
    EXPECT_EQ(store.GetDword(L"d", 0), 0x11223344u);
}

TEST_F(RegistryStore, GetSigned_ReadsDwordAsSigned) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetDword(L"d", 0xFFFFFFFEu);
    EXPECT_EQ(store.GetSigned(L"d"), -2);
    EXPECT_EQ(store.GetDword(L"d", 0), 0xFFFFFFFEu);
}

TEST_F(RegistryStore, ReadOnlyOpen_RefusesWrites) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(ThrownCode([&] { store.SetDword(L"d", 1); }), 5u);
    EXPECT_EQ(ThrownCode([&] { store.DeleteValue(L"d"); }), 5u);
}

TEST_F(RegistryStore, WriteAndDeleteOpen_RefusesReads) {
    Registry store(m_memory);
    store.OpenForWriteAndDelete(RegRoot::CurrentUser, kPath, 0);
    store.SetDword(L"d", 1);
    EXPECT_EQ(ThrownCode([&] { store.GetDword(L"d", 0); }), 5u);
    store.DeleteValue(L"d");
    EXPECT_EQ(ThrownCode([&] { store.DeleteValue(L"d"); }), 2u);
}

TEST_F(RegistryStore, EnumKeys_ListsSubkeysInRegistryOrder) {
    for (const wchar_t* name : {L"beta", L"Alpha", L"gamma"}) {
        RegHandle key = 0;
        ASSERT_EQ(m_memory.CreateKey(m_key.Get(), name, RegAccess::QueryValue, nullptr, &key), 0);
        m_memory.CloseKey(key);
    }
    Registry store(m_memory);
    store.OpenForEnumerate(RegRoot::CurrentUser, kPath, 0);
    StringList names{L"kept"};
    store.EnumKeys(names);
    EXPECT_EQ(names, (StringList{L"kept", L"Alpha", L"beta", L"gamma"}));
}

TEST_F(RegistryStore, EnumValues_ListsValueNames) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetDword(L"second", 2);
    store.SetString(L"first", L"1");
    Registry reader(m_memory);
    reader.OpenForEnumerate(RegRoot::CurrentUser, kPath, 0);
    StringList names;
    reader.EnumValues(names);
    EXPECT_EQ(names, (StringList{L"second", L"first"}));
}

TEST_F(RegistryStore, EnumValues_NameLongerThanBuffer_Throws) {
    const std::wstring longName(300, L'v');
    ASSERT_EQ(m_memory.SetValue(m_key.Get(), longName.c_str(), RegType::Binary, nullptr, 0), 0);
    Registry store(m_memory);
    store.OpenForEnumerate(RegRoot::CurrentUser, kPath, 0);
    StringList names;
    EXPECT_EQ(ThrownCode([&] { store.EnumValues(names); }), 234u);
}

TEST_F(RegistryStore, EnumKeys_WithoutEnumerateRight_Throws) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    StringList names;
    EXPECT_EQ(ThrownCode([&] { store.EnumKeys(names); }), 5u);
}

TEST_F(RegistryStore, DeleteKey_DeletesUnderRootAndPath_ThenCloses) {
    Registry store(m_recorder);
    store.Create(RegRoot::CurrentUser, L"Software\\OrvaTests\\Doomed", 0);
    const std::size_t handlesBefore = m_memory.OpenHandleCount();
    store.DeleteKey();
    ASSERT_EQ(m_recorder.deletes.size(), 1u);
    EXPECT_EQ(m_recorder.deletes[0].first, kHkcu);
    EXPECT_EQ(m_recorder.deletes[0].second, L"Software\\OrvaTests\\Doomed");
    EXPECT_FALSE(store.IsOpen());
    EXPECT_EQ(m_memory.OpenHandleCount(), handlesBefore - 1);
    Registry check(m_memory);
    EXPECT_EQ(
        ThrownCode([&] { check.Open(RegRoot::CurrentUser, L"Software\\OrvaTests\\Doomed", 0); }),
        2u);
}

TEST_F(RegistryStore, DeleteKey_WithSubkeys_ThrowsAccessDenied) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, L"Software\\OrvaTests", 0);
    EXPECT_EQ(ThrownCode([&] { store.DeleteKey(); }), 5u);
    EXPECT_TRUE(store.IsOpen());
}

TEST_F(RegistryStore, CloseAndDestructor_ReleaseTheHandle) {
    const std::size_t before = m_memory.OpenHandleCount();
    {
        Registry store(m_memory);
        store.Open(RegRoot::CurrentUser, kPath, 0);
        EXPECT_EQ(m_memory.OpenHandleCount(), before + 1);
        store.Open(RegRoot::CurrentUser, kPath, 0);  // reopening drops the first key
        EXPECT_EQ(m_memory.OpenHandleCount(), before + 1);
    }
    EXPECT_EQ(m_memory.OpenHandleCount(), before);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    store.Close(false);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_EQ(m_memory.OpenHandleCount(), before);
}

TEST_F(RegistryStore, OperationsOnClosedStore_ThrowInvalidHandle) {
    Registry store(m_memory);
    EXPECT_EQ(ThrownCode([&] { store.GetString(L"x", L""); }), 6u);
    EXPECT_EQ(ThrownCode([&] { store.Flush(); }), 6u);
}

TEST_F(RegistryStore, Flush_OnOpenKey_Succeeds) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    EXPECT_EQ(ThrownCode([&] { store.Flush(); }), 0u);
}

TEST_F(RegistryStore, CharArrayOverloads_ForwardToMainForms) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    Base& base = store;
    const wchar_t* name = L"plain";
    base.SetString(name, L"v");
    EXPECT_EQ(base.GetString(name, L""), L"v");
    base.DeleteValue(name);
    EXPECT_EQ(ThrownCode([&] { base.GetString(name, L""); }), 2u);
}

}  // namespace
}  // namespace ZelCommon::Storage
