#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orva::Ui {

using ProtectedBytes = std::vector<uint8_t>;

// Protection of a secret for the current Windows user, so that the settings file never holds
// the proxy password in clear text and only this user's processes (the agent among them) can
// read it back.
class IPasswordProtector {
public:
    virtual ~IPasswordProtector() = default;
    // Nothing when the system refused.
    virtual std::optional<ProtectedBytes> Protect(const ProtectedBytes& plain) = 0;
    // Nothing when the bytes were not protected for this user or were damaged.
    virtual std::optional<ProtectedBytes> Unprotect(const ProtectedBytes& protectedBytes) = 0;
};

// The mark in front of the stored form, which names how the rest was made.
inline constexpr std::wstring_view kProtectedPasswordPrefix = L"dpapi:";

// The stored form of a password: empty for an empty password, else the prefix and the base64
// text of the protected UTF-16LE bytes (no terminator). Nothing when protection failed.
std::optional<std::wstring> StoredPasswordOf(IPasswordProtector& protector,
                                             std::wstring_view password);
// The password a stored form holds; nothing when it is not in that form or does not unprotect.
std::optional<std::wstring> PasswordFromStored(IPasswordProtector& protector,
                                               std::wstring_view stored);

// Base64 (RFC 4648, with padding); decoding refuses any other text.
std::wstring Base64Encode(const ProtectedBytes& bytes);
std::optional<ProtectedBytes> Base64Decode(std::wstring_view text);

}  // namespace Orva::Ui
