#pragma once

#include <string>
#include <string_view>

#include "settings/log/DebugLog.h"

namespace Orva::MailStore {

// One field of the mail client's account settings file: the text between two tags, and the
// name its reader logs under.
struct AccountField {
    std::wstring_view readerName;
    std::wstring_view openTag;
    std::wstring_view closeTag;
};

inline constexpr AccountField kHttpMailUserName{L"CToolBarWnd::GetDefWLMAccountHTTPMailUserName",
                                                L"<HTTPMail_User_Name type=\"SZ\">",
                                                L"</HTTPMail_User_Name>"};
inline constexpr AccountField kImapServer{L"CToolBarWnd::GetDefWLMAccountIMAPMailUserName",
                                          L"<IMAP_Server type=\"SZ\">", L"</IMAP_Server>"};

// The text between the field's tags (not trimmed); empty when either tag is missing. The
// closing tag is looked for after the opening one only.
std::wstring_view FieldBetweenTags(std::wstring_view text, const AccountField& field);

// The file's text as the mail client writes it: UTF-16LE behind a 2-byte byte-order mark. The
// first two bytes are skipped whatever they are, and an odd last byte is no character.
std::wstring AccountFileText(std::string_view bytes);

// Reads `field` of the account settings file `path` into `value`: 1 when the file was read
// (`value` is empty when the tags are missing), 0 when it could not be opened or read. Logs
// every step.
int ReadAccountField(const std::wstring& path, const AccountField& field, std::wstring& value,
                     ZelCommon::Library::DebugLog& log);

int GetDefWLMAccountHTTPMailUserName(const std::wstring& path, std::wstring& userName,
                                     ZelCommon::Library::DebugLog& log);
int GetDefWLMAccountIMAPMailUserName(const std::wstring& path, std::wstring& server,
                                     ZelCommon::Library::DebugLog& log);

}  // namespace Orva::MailStore
