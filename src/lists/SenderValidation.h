#pragma once

#include <string>
#include <string_view>

namespace Orva::Lists {

// The e-mail test's pattern, matched against the whole address (ECMAScript grammar).
inline constexpr wchar_t kAddressPattern[] =
    L"^(?:[0-9A-Za-z-]*(\\.|_))*?[0-9A-Za-z-]+@[\\w-]+\\.(?:[\\w-]+\\.)*?[\\w]+$";

inline constexpr size_t kMaxFieldLength = 256;

enum class SenderCheck {
    Accepted,
    AddressTooLong,
    NameTooLong,
    NotAnEmailAddress,
    NameNotPlainText,  // a line break, a control character or a list file's tag text
};

// What the caller shows for a refusal: the message and caption string ids, and the number the
// message is formatted with (0 when it takes none). Message ids are empty when accepted.
struct SenderValidation {
    SenderCheck check = SenderCheck::Accepted;
    std::wstring name;     // trimmed
    std::wstring address;  // trimmed, and runs of "*" collapsed when accepted
    std::wstring_view messageId;
    std::wstring_view captionId;
    int number = 0;

    bool Accepted() const { return check == SenderCheck::Accepted; }
};

// What a page shows after Add: nothing for kAddAdded; for kAddFull the list-full message
// formatted with 8000, for kAddExisted the already-listed message, both captioned as warnings.
struct AddMessage {
    std::wstring_view messageId;
    std::wstring_view captionId;
    int number = 0;
};
AddMessage MessageForAddResult(int addResult);

// Every name and address passes here before it reaches a list.
SenderValidation ValidateSender(std::wstring_view name, std::wstring_view address);

// The e-mail test alone, on a trimmed address: nothing above U+0080, at most one run of "*"
// (tested as "0"), and the full pattern.
bool IsAcceptableAddress(std::wstring_view address);

// kAddressPattern's full match, on text without "*" and without characters above U+0080.
bool MatchesAddressPattern(std::wstring_view address);

}  // namespace Orva::Lists
