#include "mailstore/AccountSettingsFile.h"

#include <new>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::MailStore {

std::wstring_view FieldBetweenTags(std::wstring_view text, const AccountField& field) {
    const size_t open = text.find(field.openTag);
    if (open == std::wstring_view::npos) {
        return {};
    }
    const size_t start = open + field.openTag.size();
    const size_t close = text.find(field.closeTag, start);
    if (close == std::wstring_view::npos) {
        return {};
    }
    return text.substr(start, close - start);
}

std::wstring AccountFileText(std::string_view bytes) {
    constexpr size_t kMarkSize = 2;
    if (bytes.size() <= kMarkSize) {
        return {};
    }
    const std::string_view units = bytes.substr(kMarkSize, (bytes.size() - kMarkSize) / 2 * 2);
    return ZelCommon::Text::Utf16LeToWide(units);
}

int ReadAccountField(const std::wstring& path, const AccountField& field, std::wstring& value,
                     ZelCommon::Library::DebugLog& log) {
    // Every line but IN and OUT carries the web-mail reader's name, the IMAP reader's too.
    log.LogText(L"@@@ %s  IN", field.readerName);
    log.LogText(L"GetDefWLMAccountHTTPMailUserName(): pszWLMSettingFile=%s", path);
    int result = 0;
    std::string bytes;
    if (const uint32_t error = ZelCommon::Platform::ReadWholeFile(path, bytes); error != 0) {
        log.LogText(L"GetDefWLMAccountHTTPMailUserName(): Open setting file failed. error=%d",
                    static_cast<int32_t>(error));
    } else if (bytes.empty()) {
        log.LogText(L"GetDefWLMAccountHTTPMailUserName(): _filelength() failed. error=%d", 0);
    } else {
        try {
            log.LogText(L"GetDefWLMAccountHTTPMailUserName(): read file");
            const std::wstring text = AccountFileText(bytes);
            const size_t units = bytes.size() > 2 ? (bytes.size() - 2) / 2 : 0;
            log.LogText(L"GetDefWLMAccountHTTPMailUserName(): read file total bytes=[%d]",
                        static_cast<int32_t>(units));
            value = std::wstring(FieldBetweenTags(text, field));
            result = 1;
        } catch (const std::bad_alloc&) {
            log.LogText(L"GetDefWLMAccountHTTPMailUserName(): new char failed. error=%d", 8);
        }
    }
    log.LogText(L"GetDefWLMAccountHTTPMailUserName(): bRet=[%d], strAccName=[%s]", result, value);
    log.LogText(L"@@@ %s  OUT", field.readerName);
    return result;
}

int GetDefWLMAccountHTTPMailUserName(const std::wstring& path, std::wstring& userName,
                                     ZelCommon::Library::DebugLog& log) {
    return ReadAccountField(path, kHttpMailUserName, userName, log);
}

int GetDefWLMAccountIMAPMailUserName(const std::wstring& path, std::wstring& server,
                                     ZelCommon::Library::DebugLog& log) {
    return ReadAccountField(path, kImapServer, server, log);
}

}  // namespace Orva::MailStore
