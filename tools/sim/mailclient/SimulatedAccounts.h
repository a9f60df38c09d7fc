#pragma once

#include <optional>
#include <string>

#include "common_src/ZelCommon/MemoryRegistry.h"

namespace Orva::Sim {

// The kinds of default account a user of the mail client may have.
enum class AccountKind { Pop, Imap, WebMail };

std::optional<AccountKind> AccountKindNamed(const std::string& name);

// The mail client's account files of one user, one account of each kind, each in a folder of its
// server below the mail client's data folder in `localAppData`, written as the mail client writes
// them; `defaultAccount` is named in the registry as the default one.
void CreateMailAccounts(const std::wstring& localAppData, AccountKind defaultAccount,
                        ZelCommon::Storage::MemoryRegistry& registry);

}  // namespace Orva::Sim
