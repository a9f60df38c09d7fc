#include "SimulatedAccounts.h"

#include <fstream>

#include "common_src/ZelCommon/Registry.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "mailstore/UnsupportedMailServer.h"

namespace Orva::Sim {
namespace {

struct AccountFile {
    AccountKind kind;
    const char* name;
    const wchar_t* folder;
    const wchar_t* file;
    const wchar_t* settings;
};

constexpr AccountFile kAccounts[] = {
    {AccountKind::Pop, "pop", L"pop.example.com", L"account{5C1A0D3E-POP}.oeaccount",
     L"<POP3_Server type=\"SZ\">pop.example.com</POP3_Server>"},
    {AccountKind::Imap, "imap", L"imap.example.com", L"account{7E2B1F40-IMAP}.oeaccount",
     L"<IMAP_Server type=\"SZ\">imap.example.com</IMAP_Server>"},
    {AccountKind::WebMail, "web", L"Web Mail", L"account{9F3C2A51-WEB}.oeaccount",
     L"<HTTPMail_User_Name type=\"SZ\">someone@web.example</HTTPMail_User_Name>"},
};

}  // namespace

std::optional<AccountKind> AccountKindNamed(const std::string& name) {
    for (const AccountFile& account : kAccounts) {
        if (name == account.name) {
            return account.kind;
        }
    }
    return std::nullopt;
}

void CreateMailAccounts(const std::wstring& localAppData, AccountKind defaultAccount,
                        ZelCommon::Storage::MemoryRegistry& registry) {
    const std::wstring data = Orva::MailStore::MailClientDataFolder(localAppData);
    for (const AccountFile& account : kAccounts) {
        const std::wstring folder = ZelCommon::Path::ChildFolder(data, account.folder);
        ZelCommon::Path::CreateFolderWithParents(folder);
        std::ofstream file(
            ZelCommon::Text::WideToUtf8(ZelCommon::Path::ChildFile(folder, account.file)),
            std::ios::binary);
        file << "\xFF\xFE"
             << ZelCommon::Text::WideToUtf16Le(
                    L"<?xml version=\"1.0\" encoding=\"utf-16\" ?>\r\n<MessageAccount>\r\n"
                    L"\t<Account_Name type=\"SZ\">" +
                    std::wstring(account.folder) + L"</Account_Name>\r\n\t" + account.settings +
                    L"\r\n</MessageAccount>\r\n");
        if (account.kind == defaultAccount) {
            ZelCommon::Storage::Registry key(registry);
            key.Create(ZelCommon::Storage::RegRoot::CurrentUser,
                       L"Software\\Microsoft\\Windows Live Mail", 0);
            key.SetString(L"Default Mail Account", account.file);
        }
    }
}

}  // namespace Orva::Sim
