#include "mailstore/UnsupportedMailServer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/platform/TextCodec.h"
#include "settings/probes/ProbeLog.h"
#include "support/TempFolder.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::MailStore {
namespace {

using namespace ZelCommon::Storage;

// The mail client of one user: its registry, its data folder and the account files in it.
struct MailClientRig {
    MailClientRig() {
        process.SetLocalAppDataFolder(temp.Path() + L"Local");
        std::filesystem::create_directories(DataFolder());
    }

    std::filesystem::path DataFolder() const {
        return std::filesystem::path(temp.Root()) / "Local" / "Microsoft" / "Windows Live Mail";
    }
    void SetDefaultAccount(const std::wstring& name) {
        const std::string data = ZelCommon::Text::WideToUtf16Le(name) + std::string(2, '\0');
        SetDefaultAccountData(data, data.size());
    }
    // `size` bytes of `data` are the value; Windows looks at the two bytes after them.
    void SetDefaultAccountData(const std::string& data, std::size_t size) {
        RegHandle key = 0;
        ASSERT_EQ(registry.CreateKey(RootHandle(RegRoot::CurrentUser),
                                     L"Software\\Microsoft\\Windows Live Mail",
                                     RegAccess::AllAccess, nullptr, &key),
                  0);
        registry.SetValue(key, L"Default Mail Account", RegType::Sz,
                          reinterpret_cast<const uint8_t*>(data.data()),
                          static_cast<uint32_t>(size));
        registry.CloseKey(key);
    }
    void WriteAccount(const std::filesystem::path& relative, const std::wstring& xml) {
        const std::filesystem::path file = DataFolder() / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << "\xFF\xFE" << ZelCommon::Text::WideToUtf16Le(xml);
    }
    int Check() { return CheckIsUnsupportedMailServer({registry, process, log.Log()}); }

    Testing::TempFolder temp;
    MemoryRegistry registry;
    ZelCommon::Fakes::FakeProcessContext process;
    Testing::ProbeLog log;
};

const std::wstring kPop = L"<POP3_Server type=\"SZ\">pop.example</POP3_Server>";
const std::wstring kImap = L"<IMAP_Server type=\"SZ\">imap.example</IMAP_Server>";
const std::wstring kWebMail = L"<HTTPMail_User_Name type=\"SZ\">me</HTTPMail_User_Name>";

struct AccountCase {
    const char* name;
    std::filesystem::path file;
    std::wstring xml;
    int answer;
};

TEST(CheckIsUnsupportedMailServer, AccountFiles_OnlyWebMailAndImapSwitchOff) {
    const AccountCase cases[] = {
        {"POP in the data folder", "account{1}.oeaccount", kPop, 0},
        {"IMAP in the data folder", "account{1}.oeaccount", kImap, 1},
        {"web mail in a sub-folder", "Hotmail/account{1}.oeaccount", kWebMail, 1},
        {"name in another case", "ACCOUNT{1}.OEACCOUNT", kImap, 1},
        {"empty web-mail user", "account{1}.oeaccount",
         L"<HTTPMail_User_Name type=\"SZ\"></HTTPMail_User_Name>" + kPop, 0},
        {"two levels deep", "Mail/Deeper/account{1}.oeaccount", kImap, 0},
        {"another account's file", "account{2}.oeaccount", kImap, 0},
    };
    for (const AccountCase& test : cases) {
        SCOPED_TRACE(test.name);
        MailClientRig rig;
        rig.SetDefaultAccount(L"account{1}.oeaccount");
        rig.WriteAccount(test.file, test.xml);
        EXPECT_EQ(rig.Check(), test.answer);
    }
}

TEST(CheckIsUnsupportedMailServer, BothKinds_LoggedWithTheirOwnLines) {
    MailClientRig rig;
    rig.SetDefaultAccount(L"a");
    rig.WriteAccount("a", kWebMail + kImap);
    EXPECT_EQ(rig.Check(), 1);
    const std::vector<std::wstring> lines = rig.log.Lines();
    const auto has = [&](const std::wstring& line) {
        return std::find(lines.begin(), lines.end(), line + L"\n") != lines.end();
    };
    EXPECT_TRUE(has(L"CToolBarWnd::CheckIsUnsupportedMailServer Dafault account is HTTP protocol"));
    EXPECT_TRUE(has(L"CToolBarWnd::CheckIsUnsupportedMailServer Dafault account is IMAP protocol"));
}

TEST(ReadDefaultAccountName, DataSize_UpToTheMailClientsLimit) {
    struct SizeCase {
        std::size_t bytes;
        bool accepted;
    };
    for (const SizeCase test : {SizeCase{4096, true}, SizeCase{4097, true}, SizeCase{4098, false},
                                SizeCase{9000, false}}) {
        SCOPED_TRACE(test.bytes);
        MailClientRig rig;
        // Characters follow the data, so that no terminator is counted in.
        rig.SetDefaultAccountData(std::string(test.bytes + 2, 'a'), test.bytes);
        int32_t error = 0;
        const auto name = ReadDefaultAccountName(rig.registry, error);
        ASSERT_EQ(name.has_value(), test.accepted);
        if (name) {
            EXPECT_EQ(*name, std::wstring(2048, L'\x6161'));
        } else {
            EXPECT_NE(error, 0);
        }
    }
}

TEST(CheckIsUnsupportedMailServer, NoDefaultAccount_AnswersZeroAndLogsTheError) {
    MailClientRig rig;
    rig.WriteAccount("a", kImap);
    EXPECT_EQ(rig.Check(), 0);
    const std::vector<std::wstring> lines = rig.log.Lines();
    EXPECT_NE(std::find(lines.begin(), lines.end(), L"Read WLM Root Reg error : 2\n"), lines.end());
}

}  // namespace
}  // namespace Orva::MailStore
