#pragma once

#include "ui/PasswordProtector.h"

namespace Orva::Ui {

// The Windows data-protection API for the current user (CryptProtectData, no extra entropy, no
// prompt), the form the agent unprotects.
class CUserPasswordProtector final : public IPasswordProtector {
public:
    std::optional<ProtectedBytes> Protect(const ProtectedBytes& plain) override;
    std::optional<ProtectedBytes> Unprotect(const ProtectedBytes& protectedBytes) override;
};

}  // namespace Orva::Ui
