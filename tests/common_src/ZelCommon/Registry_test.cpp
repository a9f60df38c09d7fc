#include "common_src/ZelCommon/Registry.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/ZelCommon/StorageException.h"

namespace ZelCommon::Storage {
namespace {

using Testing::Utf16Bytes;

constexpr wchar_t kPath[] = L"Software\\OrvaTests\\Store";

// Runs the body and returns the storage error it threw, or 0 when it threw nothing.
template <class Body>
uint32_t ThrownCode(Body&& body) {
    uint32_t code = 0;
    const bool completed = ZelCommon::Exception::CatchThrown<Exception>(
        std::forward<Body>(body), [&](const Exception& e) { code = e.ErrorCode(); });
    EXPECT_FALSE(completed && code != 0);
    return code;
}

// The in-memory registry, noting the registry view each open or create asked for.
class ViewRecordingRegistry final : public MemoryRegistry {
public:
    int32_t OpenKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                    RegHandle* result) override {
        views.push_back(access & (RegAccess::Wow64_32Key | RegAccess::Wow64_64Key));
        return MemoryRegistry::OpenKey(parent, subKey, access, result);
    }
    int32_t CreateKey(RegHandle parent, const wchar_t* subKey, uint32_t access,
                      const void* securityAttributes, RegHandle* result) override {
        views.push_back(access & (RegAccess::Wow64_32Key | RegAccess::Wow64_64Key));
        return MemoryRegistry::CreateKey(parent, subKey, access, securityAttributes, result);
    }
    std::vector<uint32_t> views;
};

class RegistryStore : public testing::Test {
protected:
    void SetUp() override {
        RegHandle key = 0;
        ASSERT_EQ(m_memory.CreateKey(RootHandle(RegRoot::CurrentUser), kPath, RegAccess::AllAccess,
                                     nullptr, &key),
                  0);
        m_key = UniqueRegKey(m_memory, key);
    }

    void SetRaw(const wchar_t* name, uint32_t type, const std::vector<uint8_t>& bytes,
                uint32_t size) {
        ASSERT_EQ(m_memory.SetValue(m_key.Get(), name, type, bytes.data(), size), 0);
    }

    ViewRecordingRegistry m_memory;
    UniqueRegKey m_key;
};

using OpenKind = void (Registry::*)(const Location&, const std::wstring&, int);

// Each kind of open grants what its users need and no more: reading, writing and deleting
// values, listing subkeys. View 1 asks for the 32-bit registry, 2 for the 64-bit one.
TEST_F(RegistryStore, OpenKinds_GrantTheirRightsInTheAskedView) {
    const struct {
        const char* name;
        OpenKind open;
        bool reads;
        bool writes;
        bool lists;
    } kinds[] = {
        {"open", &Registry::Open, true, false, false},
        {"create", &Registry::Create, true, true, false},
        {"write and delete", &Registry::OpenForWriteAndDelete, false, true, false},
        {"enumerate", &Registry::OpenForEnumerate, true, false, true},
    };
    const auto status = [](bool granted) { return granted ? 0u : 5u; };
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.name);
        Registry writer(m_memory);
        writer.Create(RegRoot::CurrentUser, kPath, 0);
        writer.SetDword(L"d", 1);
        Registry store(m_memory);
        (store.*kind.open)(RegRoot::CurrentUser, kPath, 0);
        EXPECT_TRUE(store.IsOpen());
        EXPECT_EQ(store.KeyPath(), kPath);
        StringList names;
        EXPECT_EQ(ThrownCode([&] { store.GetDword(L"d", 0); }), status(kind.reads));
        EXPECT_EQ(ThrownCode([&] { store.EnumKeys(names); }), status(kind.lists));
        EXPECT_EQ(ThrownCode([&] { store.DeleteValue(L"d"); }), status(kind.writes));
        EXPECT_EQ(ThrownCode([&] { store.SetDword(L"d", 2); }), status(kind.writes));

        for (const int view : {0, 1, 2, 3, -1}) {
            m_memory.views.clear();
            (store.*kind.open)(RegRoot::CurrentUser, kPath, view);
            EXPECT_EQ(m_memory.views, std::vector<uint32_t>{view == 1   ? RegAccess::Wow64_32Key
                                                            : view == 2 ? RegAccess::Wow64_64Key
                                                                        : 0u})
                << view;
        }
    }
}

TEST_F(RegistryStore, Create_MakesMissingParentsAndRefusesALeadingBackslash) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, L"Software\\OrvaTests\\New\\Deep", 0);
    store.SetDword(L"n", 3);
    Registry reader(m_memory);
    reader.Open(RegRoot::CurrentUser, L"software\\orvatests\\new\\deep", 0);
    EXPECT_EQ(reader.GetDword(L"N", 0), 3u);

    Registry refused(m_memory);
    EXPECT_EQ(ThrownCode([&] { refused.Create(RegRoot::CurrentUser, L"\\Software\\X", 0); }), 161u);
    EXPECT_EQ(ThrownCode([&] { refused.Open(RegRoot::CurrentUser, L"Software\\Missing", 0); }), 2u);
    EXPECT_FALSE(refused.IsOpen());
}

TEST_F(RegistryStore, MissingValue_ThrowsFileNotFoundNamingKeyAndValueDespiteTheDefault) {
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    uint32_t code = 0;
    ZelCommon::Exception::CatchThrown<RegException>(
        [&] { store.GetString(L"Missing", L"fallback"); },
        [&](const RegException& e) {
            code = e.ErrorCode();
            EXPECT_EQ(e.ValueName(), L"Missing");
            EXPECT_EQ(e.KeyPath(), kPath);
        });
    EXPECT_EQ(code, 2u);
    EXPECT_EQ(ThrownCode([&] { store.GetDword(L"Missing", 42); }), 2u);
}

// What each getter makes of the bytes the registry holds: strings of any of the three text
// types, ended even when stored without their zero and never read past their size; binary and
// 32-bit values only of their own type and exact size, else invalid data (13).
TEST_F(RegistryStore, Getters_ReadRawValuesOrRefuseThemAsInvalidData) {
    const std::vector<uint8_t> multi = Utf16Bytes(std::wstring(L"one\0two\0", 8));
    uint8_t buffer[4] = {};
    const auto readText = [](Registry& r) { return r.GetString(L"v", L"x"); };
    const auto readBinary = [&buffer](Registry& r) {
        r.GetBinary(L"v", buffer, 4);
        return std::wstring();
    };
    const struct {
        const char* name;
        uint32_t type;
        std::vector<uint8_t> bytes;
        uint32_t size;
        std::function<std::wstring(Registry&)> read;
        std::wstring value;  // empty when the read throws
        uint32_t error;
    } cases[] = {
        {"empty text", RegType::Sz, Utf16Bytes(L""), 2, readText, L"", 0},
        {"unterminated text", RegType::Sz, Utf16Bytes(L"abcd"), 6, readText, L"abc", 0},
        {"odd size", RegType::ExpandSz, {'a', 0, 'b', 'x', 'y', 'z'}, 3, readText, L"ab", 0},
        {"expandable text", RegType::ExpandSz, Utf16Bytes(L"%TEMP%\\x"), 18, readText, L"%TEMP%\\x",
         0},
        {"multi-text", RegType::MultiSz, multi, static_cast<uint32_t>(multi.size()), readText,
         L"one", 0},
        {"dword as text", RegType::Dword, {5, 0, 0, 0}, 4, readText, L"", 13},
        {"three bytes into four", RegType::Binary, {1, 2, 3}, 3, readBinary, L"", 13},
        {"five bytes into four", RegType::Binary, {1, 2, 3, 4, 5}, 5, readBinary, L"", 13},
        {"text as binary", RegType::Sz, Utf16Bytes(L"a"), 4, readBinary, L"", 13},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        SetRaw(L"v", each.type, each.bytes, each.size);
        Registry store(m_memory);
        store.Open(RegRoot::CurrentUser, kPath, 0);
        std::wstring value;
        std::memset(buffer, 9, sizeof(buffer));
        EXPECT_EQ(ThrownCode([&] { value = each.read(store); }), each.error);
        EXPECT_EQ(value, each.value);
        EXPECT_EQ(buffer[0], 9) << "a refused read leaves the caller's buffer alone";
    }
    // Neither 32-bit getter takes binary data or a value of another size.
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

// Text with its terminator counted, binary as given, 32-bit values as four little-endian bytes
// that the second getter reads as signed.
TEST_F(RegistryStore, Setters_StoreTheirTypeAndBytes) {
    const uint8_t blob[] = {0xDE, 0xAD, 0xBE, 0xEF, 0x00};
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, kPath, 0);
    store.SetString(L"Name", L"Grüße, world");
    store.SetBinary(L"blob", blob, sizeof(blob));
    store.SetDword(L"d", 0xFFFFFFFEu);
    const struct {
        const wchar_t* name;
        uint32_t type;
        std::vector<uint8_t> bytes;
    } stored[] = {
        {L"Name", RegType::Sz, Utf16Bytes(L"Grüße, world")},
        {L"blob", RegType::Binary, std::vector<uint8_t>(blob, blob + sizeof(blob))},
        {L"d", RegType::Dword, {0xFE, 0xFF, 0xFF, 0xFF}},
    };
    for (const auto& each : stored) {
        std::vector<uint8_t> bytes(64);
        uint32_t size = 64;
        uint32_t type = 0;
        ASSERT_EQ(m_memory.QueryValue(m_key.Get(), each.name, &type, bytes.data(), &size), 0);
        bytes.resize(size);
        EXPECT_EQ(type, each.type);
        EXPECT_EQ(bytes, each.bytes);
    }
    uint8_t back[5] = {};
    store.GetBinary(L"blob", back, sizeof(back));
    EXPECT_EQ(0, std::memcmp(blob, back, sizeof(blob)));
    EXPECT_EQ(store.GetString(L"name", L""), L"Grüße, world");
    EXPECT_EQ(store.GetDword(L"d", 0), 0xFFFFFFFEu);
    EXPECT_EQ(store.GetSigned(L"d"), -2);
}

TEST_F(RegistryStore, Enumerations_AppendNamesInRegistryOrder) {
    for (const wchar_t* name : {L"beta", L"Alpha", L"gamma"}) {
        RegHandle key = 0;
        ASSERT_EQ(m_memory.CreateKey(m_key.Get(), name, RegAccess::QueryValue, nullptr, &key), 0);
        m_memory.CloseKey(key);
    }
    Registry writer(m_memory);
    writer.Create(RegRoot::CurrentUser, kPath, 0);
    writer.SetDword(L"second", 2);
    writer.SetString(L"first", L"1");
    Registry store(m_memory);
    store.OpenForEnumerate(RegRoot::CurrentUser, kPath, 0);
    StringList keys{L"kept"};
    store.EnumKeys(keys);
    EXPECT_EQ(keys, (StringList{L"kept", L"Alpha", L"beta", L"gamma"}));
    StringList values;
    store.EnumValues(values);
    EXPECT_EQ(values, (StringList{L"second", L"first"}));

    const std::wstring longName(300, L'v');
    ASSERT_EQ(m_memory.SetValue(m_key.Get(), longName.c_str(), RegType::Binary, nullptr, 0), 0);
    EXPECT_EQ(ThrownCode([&] { store.EnumValues(values); }), 234u);
}

TEST_F(RegistryStore, DeleteKey_DeletesAnEmptyKeyAndClosesIt) {
    Registry store(m_memory);
    store.Create(RegRoot::CurrentUser, L"Software\\OrvaTests\\Doomed", 0);
    const std::size_t handlesBefore = m_memory.OpenHandleCount();
    store.DeleteKey();
    EXPECT_FALSE(store.IsOpen());
    EXPECT_EQ(m_memory.OpenHandleCount(), handlesBefore - 1);
    Registry check(m_memory);
    EXPECT_EQ(
        ThrownCode([&] { check.Open(RegRoot::CurrentUser, L"Software\\OrvaTests\\Doomed", 0); }),
        2u);

    Registry parent(m_memory);
    parent.Create(RegRoot::CurrentUser, L"Software\\OrvaTests", 0);
    EXPECT_EQ(ThrownCode([&] { parent.DeleteKey(); }), 5u);
    EXPECT_TRUE(parent.IsOpen());
}

TEST_F(RegistryStore, CloseReopenAndDestructor_ReleaseTheHandle) {
    const std::size_t before = m_memory.OpenHandleCount();
    {
        Registry store(m_memory);
        store.Open(RegRoot::CurrentUser, kPath, 0);
        EXPECT_EQ(m_memory.OpenHandleCount(), before + 1);
        store.Open(RegRoot::CurrentUser, kPath, 0);  // reopening drops the first key
        EXPECT_EQ(m_memory.OpenHandleCount(), before + 1);
        EXPECT_EQ(ThrownCode([&] { store.Flush(); }), 0u);
    }
    EXPECT_EQ(m_memory.OpenHandleCount(), before);
    Registry store(m_memory);
    store.Open(RegRoot::CurrentUser, kPath, 0);
    store.Close(false);
    EXPECT_FALSE(store.IsOpen());
    EXPECT_EQ(m_memory.OpenHandleCount(), before);
    EXPECT_EQ(ThrownCode([&] { store.GetString(L"x", L""); }), 6u);
    EXPECT_EQ(ThrownCode([&] { store.Flush(); }), 6u);
}

}  // namespace
}  // namespace ZelCommon::Storage
