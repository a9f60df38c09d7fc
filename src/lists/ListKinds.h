#pragma once

#include <string_view>

namespace Orva::Lists {

// The two sender lists share one design; a kind carries what differs between them. Tags and
// headers are ASCII, so they are matched in the files' UTF-8 bytes as they stand.
struct BlockedList {
    static constexpr std::string_view kRecordOpen = "<BL_REC>";
    static constexpr std::string_view kRecordClose = "<\\BL_REC>";
    static constexpr std::wstring_view kFileName = L"BlackList.dat";
    // Asked before adding to this list an address that the other list holds.
    static constexpr std::wstring_view kConflictMessageId = L"IDS_BLOCKLISTCONLICT_MSG";
};

struct ApprovedList {
    static constexpr std::string_view kRecordOpen = "<WL_REC>";
    static constexpr std::string_view kRecordClose = "<\\WL_REC>";
    static constexpr std::wstring_view kFileName = L"WhiteList.dat";
    static constexpr std::wstring_view kConflictMessageId = L"IDS_APPROVELISTCONLICT_MSG";
};

inline constexpr std::string_view kNameOpen = "<SN_ATTR>";
inline constexpr std::string_view kNameClose = "<\\SN_ATTR>";
inline constexpr std::string_view kAddressOpen = "<SA_ATTR>";
inline constexpr std::string_view kAddressClose = "<\\SA_ATTR>";

// Every tag of both lists: no value may hold one, or reading would cut it there.
inline constexpr std::string_view kEveryTag[] = {
    BlockedList::kRecordOpen,
    BlockedList::kRecordClose,
    ApprovedList::kRecordOpen,
    ApprovedList::kRecordClose,
    kNameOpen,
    kNameClose,
    kAddressOpen,
    kAddressClose,
};

// The only header ever written, and every header a list file may start with.
inline constexpr std::string_view kWrittenHeader = "; Written by ORVA v3.5 (c) 2005 Halvion";
inline constexpr std::string_view kAcceptedHeaders[] = {
    "; Written by ZelQuillon v1.0 (c) 2003 Halvion",
    "; Written by ZelAnti-Spam v1.0 (c) 2003 Halvion",
    kWrittenHeader,
};

// A list holds at most this many entries.
inline constexpr size_t kListLimit = 8000;

}  // namespace Orva::Lists
