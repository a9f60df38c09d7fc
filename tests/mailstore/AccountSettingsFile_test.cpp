#include "mailstore/AccountSettingsFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "common_src/platform/TextCodec.h"
#include "settings/probes/ProbeLog.h"
#include "support/TempFolder.h"

namespace Orva::MailStore {
namespace {

const std::string kMark = "\xFF\xFE";

std::string Utf16(const std::wstring& text) {
    return ZelCommon::Text::WideToUtf16Le(text);
}

const std::wstring kHttpAccount =
    L"<?xml version=\"1.0\" encoding=\"UTF-16\"?><MessageAccount>"
    L"<HTTPMail_User_Name type=\"SZ\">user@web.example</HTTPMail_User_Name></MessageAccount>";

struct FieldCase {
    const char* name;
    std::string bytes;
    const AccountField& field;
    int result;
    std::wstring value;
};

TEST(ReadAccountField, Files_GiveTheTextBetweenTheTagsOrNothing) {
    const std::wstring imap = L"<x><IMAP_Server type=\"SZ\"> imap.example </IMAP_Server>";
    const FieldCase cases[] = {
        {"web-mail user", kMark + Utf16(kHttpAccount), kHttpMailUserName, 1, L"user@web.example"},
        {"IMAP server, not trimmed", kMark + Utf16(imap), kImapServer, 1, L" imap.example "},
        {"the other tag", kMark + Utf16(imap), kHttpMailUserName, 1, L""},
        {"empty user name", kMark + Utf16(L"<HTTPMail_User_Name type=\"SZ\"></HTTPMail_User_Name>"),
         kHttpMailUserName, 1, L""},
        {"no closing tag", kMark + Utf16(L"<IMAP_Server type=\"SZ\">imap.example"), kImapServer, 1,
         L""},
        {"closing tag only before the opening one",
         kMark + Utf16(L"</IMAP_Server><IMAP_Server type=\"SZ\">x"), kImapServer, 1, L""},
        // Without the mark the first character is lost: here the tag's own "<".
        {"no byte-order mark", Utf16(L"<IMAP_Server type=\"SZ\">a</IMAP_Server>"), kImapServer, 1,
         L""},
        {"odd length", kMark + Utf16(imap) + "\x41", kImapServer, 1, L" imap.example "},
        {"one byte", "\xFF", kImapServer, 1, L""},
        {"not XML", kMark + std::string("\x00\xD8\x41\x00garbage\x00\x00", 13), kImapServer, 1,
         L""},
        {"empty file", "", kImapServer, 0, L""},
    };
    for (const FieldCase& test : cases) {
        SCOPED_TRACE(test.name);
        Testing::TempFolder folder;
        const std::wstring path = folder.File(L"account.oeaccount");
        std::ofstream(folder.Root() / "account.oeaccount", std::ios::binary) << test.bytes;
        Testing::ProbeLog log;
        std::wstring value;
        EXPECT_EQ(ReadAccountField(path, test.field, value, log.Log()), test.result);
        EXPECT_EQ(value, test.value);
    }
}

TEST(ReadAccountField, MissingFile_IsNotReadAndSaysSo) {
    Testing::TempFolder folder;
    Testing::ProbeLog log;
    std::wstring value;
    const std::wstring none = folder.File(L"none");
    EXPECT_EQ(GetDefWLMAccountIMAPMailUserName(none, value, log.Log()), 0);
    EXPECT_EQ(log.Lines(),
              (std::vector<std::wstring>{
                  L"@@@ CToolBarWnd::GetDefWLMAccountIMAPMailUserName  IN\n",
                  L"GetDefWLMAccountHTTPMailUserName(): pszWLMSettingFile=" + none + L"\n",
                  L"GetDefWLMAccountHTTPMailUserName(): Open setting file failed. error=2\n",
                  L"GetDefWLMAccountHTTPMailUserName(): bRet=[0], strAccName=[]\n",
                  L"@@@ CToolBarWnd::GetDefWLMAccountIMAPMailUserName  OUT\n"}));
}

}  // namespace
}  // namespace Orva::MailStore
