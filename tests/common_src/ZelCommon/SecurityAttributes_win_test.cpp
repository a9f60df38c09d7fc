#include "common_src/ZelCommon/SecurityAttributes.h"

#include <windows.h>

#include <aclapi.h>
#include <gtest/gtest.h>
#include <sddl.h>

#include <vector>

#include "common_src/ZelCommon/RegistryApiContract.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::AccessControl {
namespace {

using Platform::unique_hkey;
using Platform::unique_hlocal;
using Storage::Testing::RegistrySandbox;

constexpr DWORD kUserRights = KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY |
                              KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | READ_CONTROL;

struct Entry {
    std::vector<BYTE> sid;
    ACCESS_MASK mask;
    BYTE type;
    BYTE flags;
    bool operator==(const Entry&) const = default;
};

struct KeySecurity {
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    std::vector<Entry> entries;
};

KeySecurity ReadDescriptor(PSECURITY_DESCRIPTOR descriptor) {
    KeySecurity result;
    DWORD revision = 0;
    EXPECT_TRUE(GetSecurityDescriptorControl(descriptor, &result.control, &revision));
    BOOL present = FALSE;
    BOOL defaulted = FALSE;
    PACL dacl = nullptr;
    EXPECT_TRUE(GetSecurityDescriptorDacl(descriptor, &present, &dacl, &defaulted));
    if (!present || dacl == nullptr) {
        ADD_FAILURE() << "no DACL";
        return result;
    }
    for (DWORD index = 0; index < dacl->AceCount; ++index) {
        void* raw = nullptr;
        EXPECT_TRUE(GetAce(dacl, index, &raw));
        const auto* ace = static_cast<const ACCESS_ALLOWED_ACE*>(raw);
        auto* sid = reinterpret_cast<BYTE*>(const_cast<DWORD*>(&ace->SidStart));
        result.entries.push_back(Entry{std::vector<BYTE>(sid, sid + GetLengthSid(sid)), ace->Mask,
                                       ace->Header.AceType, ace->Header.AceFlags});
    }
    return result;
}

KeySecurity ReadKeySecurity(const std::wstring& path) {
    unique_hkey key;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, READ_CONTROL, key.put()),
              ERROR_SUCCESS);
    if (!key) {
        return {};
    }
    DWORD size = 0;
    EXPECT_EQ(RegGetKeySecurity(key.get(), DACL_SECURITY_INFORMATION, nullptr, &size),
              ERROR_INSUFFICIENT_BUFFER);
    std::vector<BYTE> buffer(size);
    EXPECT_EQ(RegGetKeySecurity(key.get(), DACL_SECURITY_INFORMATION, buffer.data(), &size),
              ERROR_SUCCESS);
    return ReadDescriptor(buffer.data());
}

std::vector<BYTE> Sid(const wchar_t* sddlName) {
    unique_hlocal sid;
    EXPECT_TRUE(ConvertStringSidToSidW(sddlName, sid.put()));
    const auto* bytes = static_cast<const BYTE*>(sid.get());
    return std::vector<BYTE>(bytes, bytes + GetLengthSid(sid.get()));
}

void ExpectOurEntries(const KeySecurity& security) {
    const auto entry = [](const wchar_t* who, ACCESS_MASK mask) {
        return Entry{Sid(who), mask, ACCESS_ALLOWED_ACE_TYPE, CONTAINER_INHERIT_ACE};
    };
    EXPECT_EQ(security.entries,
              (std::vector<Entry>{entry(L"SY", KEY_ALL_ACCESS), entry(L"BA", KEY_ALL_ACCESS),
                                  entry(L"IU", kUserRights)}));
}

TEST(SecurityAttributesWin32, Get_PointsAtProtectedDescriptorWithOurDacl) {
    SecurityAttributes attributes;
    const auto* sa = static_cast<const SECURITY_ATTRIBUTES*>(attributes.Get());
    ASSERT_NE(sa, nullptr);
    EXPECT_EQ(sa->nLength, sizeof(SECURITY_ATTRIBUTES));
    EXPECT_FALSE(sa->bInheritHandle);
    ASSERT_TRUE(IsValidSecurityDescriptor(sa->lpSecurityDescriptor));
    const KeySecurity security = ReadDescriptor(sa->lpSecurityDescriptor);
    EXPECT_TRUE(security.control & SE_DACL_PROTECTED);
    ExpectOurEntries(security);
}

TEST(SecurityAttributesWin32, BadSddl_ThrowsAccessControlException) {
    uint32_t code = 0;
    const bool built = ZelCommon::Exception::CatchThrown<Exception>(
        [] { SecurityAttributes attributes(L"D:(A;;nonsense;;;XX)"); },
        [&](const Exception& e) { code = e.ErrorCode(); });
    EXPECT_FALSE(built);
    EXPECT_NE(code, 0u);
}

// Wine ignores the attributes on RegCreateKeyExW, so the descriptor is set on the key itself.
TEST(SecurityAttributesWin32, DaclSetOnKey_ReadsBackUnchanged) {
    RegistrySandbox sandbox(Storage::SystemRegistryApi());
    const std::wstring path = sandbox.Path() + L"\\Secured";
    unique_hkey key;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                              nullptr, key.put(), nullptr),
              ERROR_SUCCESS);
    SecurityAttributes attributes;
    const auto* sa = static_cast<const SECURITY_ATTRIBUTES*>(attributes.Get());
    ASSERT_EQ(RegSetKeySecurity(key.get(), DACL_SECURITY_INFORMATION, sa->lpSecurityDescriptor),
              ERROR_SUCCESS);
    ExpectOurEntries(ReadKeySecurity(path));
}

}  // namespace
}  // namespace ZelCommon::AccessControl
