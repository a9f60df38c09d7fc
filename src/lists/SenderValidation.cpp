#include "lists/SenderValidation.h"

#include <cstdint>

#include "common_src/platform/TextCodec.h"
#include "lists/ListKinds.h"
#include "lists/ListText.h"
#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

constexpr std::wstring_view kTooLongMessage = L"IDS_TEXT_TOO_LONG_MSG";
constexpr std::wstring_view kWrongAddressMessage = L"IDS_WRONG_EMAILADDR_MSG";
constexpr std::wstring_view kConfirmationCaption = L"IDS_CONFIRMATION_CAPTION";

// [0-9A-Za-z-]
bool IsLocalLetter(wchar_t c) {
    return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
           c == L'-';
}

// \w in the "C" locale, for the characters the pattern is ever given.
bool IsWord(wchar_t c) {
    return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
           c == L'_';
}

bool IsLabelLetter(wchar_t c) {
    return IsWord(c) || c == L'-';
}

SenderValidation Refuse(SenderValidation result, SenderCheck check, std::wstring_view messageId,
                        int number) {
    result.check = check;
    result.messageId = messageId;
    result.captionId = kConfirmationCaption;
    result.number = number;
    return result;
}

}  // namespace

// The local part (?:[0-9A-Za-z-]*(\.|_))*?[0-9A-Za-z-]+ is any run of letters, dots and
// underscores ending in a letter; the domain [\w-]+\.(?:[\w-]+\.)*?\w+ is two or more non-empty
// labels of [\w-] separated by dots, the last without "-".
bool MatchesAddressPattern(std::wstring_view address) {
    const size_t at = address.find(L'@');
    if (at == 0 || at == std::wstring_view::npos) {
        return false;
    }
    for (size_t i = 0; i < at; ++i) {
        const wchar_t c = address[i];
        if (!IsLocalLetter(c) && c != L'.' && c != L'_') {
            return false;
        }
    }
    if (!IsLocalLetter(address[at - 1])) {
        return false;
    }
    size_t labels = 0;
    size_t labelStart = at + 1;
    for (size_t i = labelStart; i <= address.size(); ++i) {
        if (i < address.size() && address[i] != L'.') {
            if (!IsLabelLetter(address[i])) {
                return false;
            }
            continue;
        }
        if (i == labelStart) {
            return false;  // an empty label
        }
        ++labels;
        if (i == address.size()) {
            for (size_t j = labelStart; j < i; ++j) {
                if (address[j] == L'-') {
                    return false;
                }
            }
        }
        labelStart = i + 1;
    }
    return labels >= 2;
}

bool IsAcceptableAddress(std::wstring_view address) {
    size_t starRuns = 0;
    for (size_t i = 0; i < address.size(); ++i) {
        const wchar_t c = address[i];
        if (static_cast<uint32_t>(c) > 0x80) {
            return false;
        }
        if (c == L'*' && (i == 0 || address[i - 1] != L'*')) {
            ++starRuns;
        }
    }
    if (starRuns > 1) {
        return false;
    }
    if (starRuns == 0) {
        return MatchesAddressPattern(address);
    }
    std::wstring tested(address);
    for (wchar_t& c : tested) {
        if (c == L'*') {
            c = L'0';
        }
    }
    return MatchesAddressPattern(tested);
}

SenderValidation ValidateSender(std::wstring_view name, std::wstring_view address) {
    SenderValidation result;
    result.name.assign(ZelCommon::Text::TrimBlanks(name));
    result.address.assign(ZelCommon::Text::TrimBlanks(address));
    if (result.address.size() > kMaxFieldLength) {
        return Refuse(std::move(result), SenderCheck::AddressTooLong, kTooLongMessage,
                      static_cast<int>(kMaxFieldLength));
    }
    if (result.name.size() > kMaxFieldLength) {
        return Refuse(std::move(result), SenderCheck::NameTooLong, kTooLongMessage,
                      static_cast<int>(kMaxFieldLength));
    }
    if (!IsAcceptableAddress(result.address)) {
        return Refuse(std::move(result), SenderCheck::NotAnEmailAddress, kWrongAddressMessage, 0);
    }
    if (!IsStorableValue(result.name)) {
        return Refuse(std::move(result), SenderCheck::NameNotPlainText, kWrongAddressMessage, 0);
    }
    if (result.address.find(L"**") != std::wstring::npos) {
        result.address = CollapseStars(result.address);
    }
    return result;
}

AddMessage MessageForAddResult(int addResult) {
    if (addResult == kAddFull) {
        return {L"IDS_LISTFULL_MSG", L"IDS_WARNING_CAPTION", static_cast<int>(kListLimit)};
    }
    if (addResult == kAddExisted) {
        return {L"IDS_LISTEXISTED_MSG", L"IDS_WARNING_CAPTION", 0};
    }
    return {};
}

}  // namespace Orva::Lists
