#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/ProcessContext.h"
#include "settings/log/DebugLog.h"

namespace Orva::MailStore {

// The mail client's "Default Mail Account" of the current user; nothing when it cannot be read
// (`error` then holds the registry's status) or is too long for the mail client's own buffer.
std::optional<std::wstring> ReadDefaultAccountName(ZelCommon::Storage::IRegistryApi& registry,
                                                   int32_t& error);

// The mail client's data folder, "Microsoft\Windows Live Mail\" in the local application-data
// folder, with its final separator.
std::wstring MailClientDataFolder(const std::wstring& localAppDataFolder);

// The account's settings file: a file of the account's name (whatever its case) in the data
// folder or in one of its direct sub-folders, the first one listed; empty when there is none.
std::wstring FindAccountSettingsFile(const std::wstring& dataFolder,
                                     const std::wstring& accountName);

// 1 when the account's settings name a web-mail user or an IMAP server, which the add-in cannot
// serve; 0 otherwise, also when anything could not be read, so that a damaged or missing file
// never switches the add-in off.
int CheckAccountSettingsFile(const std::wstring& settingsFile, ZelCommon::Library::DebugLog& log);

struct AccountCheckPorts {
    ZelCommon::Storage::IRegistryApi& registry;
    ZelCommon::Platform::IProcessContext& process;
    ZelCommon::Library::DebugLog& log;
};

// Whether the mail client's default account is one the add-in cannot serve (1) or not (0).
int CheckIsUnsupportedMailServer(const AccountCheckPorts& ports);

}  // namespace Orva::MailStore
