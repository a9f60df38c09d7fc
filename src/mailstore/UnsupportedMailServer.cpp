#include "mailstore/UnsupportedMailServer.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "mailstore/AccountSettingsFile.h"

namespace Orva::MailStore {
namespace {

using namespace ZelCommon::Storage;
namespace fs = std::filesystem;

constexpr wchar_t kCheckName[] = L"CToolBarWnd::CheckIsUnsupportedMailServer";
constexpr wchar_t kMailClientKey[] = L"Software\\Microsoft\\Windows Live Mail";
constexpr wchar_t kDefaultAccountValue[] = L"Default Mail Account";
// The mail client reads the name into 2048 characters and refuses data of 4098 bytes or more.
constexpr uint32_t kNameCharacters = 2048;
constexpr uint32_t kRefusedDataSize = 4098;

bool SameName(const std::wstring& a, const std::wstring& b) {
    return ZelCommon::Text::ToLower(a) == ZelCommon::Text::ToLower(b);
}

// The folder's entries in the order Windows lists them; natively sorted by name for the same
// reason: the first match wins, so the order must not be the file system's whim.
std::vector<fs::directory_entry> ListFolder(const std::wstring& folder) {
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    for (fs::directory_iterator it(fs::path(folder), error), end; !error && it != end;
         it.increment(error)) {
        entries.push_back(*it);
    }
#ifndef _WIN32
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return a.path().filename() < b.path().filename();
    });
#endif
    return entries;
}

std::wstring NameOf(const fs::directory_entry& entry) {
    return entry.path().filename().wstring();
}

// A plain file of the account's name directly in `folder`.
std::wstring FileNamedIn(const std::wstring& folder, const std::wstring& accountName) {
    for (const fs::directory_entry& entry : ListFolder(folder)) {
        std::error_code error;
        if (entry.is_regular_file(error) && SameName(NameOf(entry), accountName)) {
            return folder + NameOf(entry);
        }
    }
    return {};
}

}  // namespace

std::optional<std::wstring> ReadDefaultAccountName(IRegistryApi& registry, int32_t& error) {
    RegHandle opened = 0;
    error = registry.OpenKey(RootHandle(RegRoot::CurrentUser), kMailClientKey,
                             RegAccess::QueryValue, &opened);
    if (error != RegStatus::Success) {
        return std::nullopt;
    }
    const UniqueRegKey key(registry, opened);
    uint32_t type = 0;
    uint32_t size = 0;
    error = registry.QueryValue(key.Get(), kDefaultAccountValue, &type, nullptr, &size);
    if (error == RegStatus::Success && size >= kRefusedDataSize) {
        error = RegStatus::MoreData;
    }
    if (error != RegStatus::Success) {
        return std::nullopt;
    }
    std::vector<uint8_t> data(size + sizeof(wchar_t), 0);
    error = registry.QueryValue(key.Get(), kDefaultAccountValue, &type, data.data(), &size);
    if (error != RegStatus::Success) {
        return std::nullopt;
    }
    // Registry data comes as UTF-16 code units (natively wchar_t is wider): copy unit by unit,
    // up to the terminator or the mail client's buffer, whichever comes first.
    std::wstring name;
    for (size_t at = 0; at + 1 < size && name.size() < kNameCharacters; at += 2) {
        const auto unit = static_cast<wchar_t>(data[at] | (data[at + 1] << 8));
        if (unit == L'\0') {
            break;
        }
        name.push_back(unit);
    }
    return name;
}

std::wstring MailClientDataFolder(const std::wstring& localAppDataFolder) {
    using ZelCommon::Path::ChildFolder;
    return ChildFolder(ChildFolder(localAppDataFolder, L"Microsoft"), L"Windows Live Mail");
}

std::wstring FindAccountSettingsFile(const std::wstring& dataFolder,
                                     const std::wstring& accountName) {
    for (const fs::directory_entry& entry : ListFolder(dataFolder)) {
        std::error_code error;
        const std::wstring name = NameOf(entry);
        if (entry.is_regular_file(error)) {
            if (SameName(name, accountName)) {
                return dataFolder + name;
            }
        } else if (entry.is_directory(error)) {
            const std::wstring found =
                FileNamedIn(ZelCommon::Path::ChildFolder(dataFolder, name), accountName);
            if (!found.empty()) {
                return found;
            }
        }
    }
    return {};
}

int CheckAccountSettingsFile(const std::wstring& settingsFile, ZelCommon::Library::DebugLog& log) {
    int result = 0;
    std::wstring value;
    if (GetDefWLMAccountHTTPMailUserName(settingsFile, value, log) == 1 && !value.empty()) {
        log.LogText(L"%s Dafault account is HTTP protocol", kCheckName);
        result = 1;
    }
    value.clear();
    if (GetDefWLMAccountIMAPMailUserName(settingsFile, value, log) == 1 && !value.empty()) {
        log.LogText(L"%s Dafault account is IMAP protocol", kCheckName);
        result = 1;
    }
    return result;
}

int CheckIsUnsupportedMailServer(const AccountCheckPorts& ports) {
    ports.log.LogText(L"@@@ %s  IN", kCheckName);
    int result = 0;
    try {
        int32_t error = 0;
        if (const std::optional<std::wstring> account =
                ReadDefaultAccountName(ports.registry, error)) {
            const std::wstring file = FindAccountSettingsFile(
                MailClientDataFolder(ports.process.LocalAppDataFolder()), *account);
            if (!file.empty()) {
                result = CheckAccountSettingsFile(file, ports.log);
            }
        } else {
            ports.log.LogText(L"Read WLM Root Reg error : %d", error);
        }
    } catch (...) {
        ports.log.LogText(L"%s  error : %d", kCheckName,
                          static_cast<int32_t>(ports.process.LastError()));
        result = 0;
    }
    ports.log.LogText(L"@@@ %s  OUT", kCheckName);
    return result;
}

}  // namespace Orva::MailStore
