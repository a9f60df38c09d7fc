#pragma once

#include <string_view>

namespace Orva::Lists {

// The two sender lists share one design; a kind carries what differs between them.
struct BlockedList {
    static constexpr std::wstring_view kRecordOpen = L"<BL_REC>";
    static constexpr std::wstring_view kRecordClose = L"<\\BL_REC>";
    static constexpr std::wstring_view kFileName = L"BlackList.dat";
};

struct ApprovedList {
    static constexpr std::wstring_view kRecordOpen = L"<WL_REC>";
    static constexpr std::wstring_view kRecordClose = L"<\\WL_REC>";
    static constexpr std::wstring_view kFileName = L"WhiteList.dat";
};

inline constexpr std::wstring_view kNameOpen = L"<SN_ATTR>";
inline constexpr std::wstring_view kNameClose = L"<\\SN_ATTR>";
inline constexpr std::wstring_view kAddressOpen = L"<SA_ATTR>";
inline constexpr std::wstring_view kAddressClose = L"<\\SA_ATTR>";

// The only header ever written, and every header a list file may start with.
inline constexpr std::wstring_view kWrittenHeader = L"; Written by ORVA v3.5 (c) 2005 Halvion";
inline constexpr std::wstring_view kAcceptedHeaders[] = {
    L"; Written by ZelQuillon v1.0 (c) 2003 Halvion",
    L"; Written by ZelAnti-Spam v1.0 (c) 2003 Halvion",
    kWrittenHeader,
};

// A list holds at most this many entries.
inline constexpr size_t kListLimit = 8000;

}  // namespace Orva::Lists
