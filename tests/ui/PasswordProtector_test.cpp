#include "ui/PasswordProtector.h"

#include <gtest/gtest.h>

#include "FakePasswordProtector.h"

namespace Orva::Ui {
namespace {

ProtectedBytes BytesOf(std::string_view text) {
    return ProtectedBytes(text.begin(), text.end());
}

// The test vectors of RFC 4648, both ways.
TEST(Base64, RfcVectors_EncodeAndDecode) {
    const std::pair<std::string_view, std::wstring_view> vectors[] = {
        {"", L""},
        {"f", L"Zg=="},
        {"fo", L"Zm8="},
        {"foo", L"Zm9v"},
        {"foob", L"Zm9vYg=="},
        {"fooba", L"Zm9vYmE="},
        {"foobar", L"Zm9vYmFy"},
    };
    for (const auto& [plain, encoded] : vectors) {
        EXPECT_EQ(Base64Encode(BytesOf(plain)), encoded);
        EXPECT_EQ(Base64Decode(encoded), BytesOf(plain)) << plain;
    }
    EXPECT_EQ(Base64Encode({0xFF, 0xEF, 0x00}), L"/+8A");
}

TEST(Base64, DamagedText_IsRefused) {
    for (const std::wstring_view text :
         {L"Zm9", L"Zm=v", L"Z===", L"Zg==Zg==", L"Zm9v!A==", L"Zm 9"}) {
        EXPECT_FALSE(Base64Decode(text).has_value()) << std::string(text.begin(), text.end());
    }
}

TEST(StoredPassword, RoundTrip_MarkedAndNeverClear) {
    Testing::FakePasswordProtector protector;
    const std::wstring password = L"s\u00e9cr\u20acet 1";
    const std::optional<std::wstring> stored = StoredPasswordOf(protector, password);
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->rfind(L"dpapi:", 0), 0u);
    EXPECT_EQ(stored->find(password), std::wstring::npos);
    EXPECT_EQ(PasswordFromStored(protector, *stored), password);

    EXPECT_EQ(StoredPasswordOf(protector, L""), L"");
    EXPECT_EQ(PasswordFromStored(protector, L""), L"");
}

// A password from elsewhere, damaged or protected for someone else is not readable.
TEST(StoredPassword, UnreadableForms_GiveNothing) {
    Testing::FakePasswordProtector protector;
    for (const std::wstring_view stored :
         {L"plain", L"dpapi:", L"dpapi:not base64!", L"dpapi:QUJD", L"DPAPI:0S0=", L"dpapi:0S0"}) {
        EXPECT_FALSE(PasswordFromStored(protector, stored).has_value())
            << std::string(stored.begin(), stored.end());
    }
    protector.refuses = true;
    EXPECT_FALSE(StoredPasswordOf(protector, L"x").has_value());
}

}  // namespace
}  // namespace Orva::Ui
