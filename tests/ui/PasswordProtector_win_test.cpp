#include "ui/PasswordProtector_win.h"

#include <gtest/gtest.h>

namespace Orva::Ui {
namespace {

// The system's protection for this user reads back what it sealed, and nothing that was damaged.
TEST(UserPasswordProtector, RoundTripAndDamagedBlob) {
    CUserPasswordProtector protector;
    const std::optional<std::wstring> stored = StoredPasswordOf(protector, L"pa55 w\u00f6rd");
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(PasswordFromStored(protector, *stored), L"pa55 w\u00f6rd");

    std::optional<ProtectedBytes> sealed = Base64Decode(stored->substr(6));
    ASSERT_TRUE(sealed.has_value());
    sealed->back() ^= 0xFF;
    EXPECT_FALSE(protector.Unprotect(*sealed).has_value());
}

}  // namespace
}  // namespace Orva::Ui
