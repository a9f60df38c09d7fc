#include "lists/ListText.h"

#include <cstdint>

#include "lists/ListKinds.h"

namespace Orva::Lists {
namespace {

constexpr std::wstring_view kEveryTag[] = {
    BlockedList::kRecordOpen,
    BlockedList::kRecordClose,
    ApprovedList::kRecordOpen,
    ApprovedList::kRecordClose,
    kNameOpen,
    kNameClose,
    kAddressOpen,
    kAddressClose,
};

bool IsBlank(wchar_t c) {
    return c == L' ' || c == L'\t';
}

// Unpaired surrogates (or, with 32-bit wchar_t, values beyond Unicode) would come back from
// UTF-8 as U+FFFD, so they cannot be stored.
bool HasOnlyScalarValues(std::wstring_view value) {
    for (size_t i = 0; i < value.size(); ++i) {
        const auto c = static_cast<uint32_t>(value[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0xD800 && c <= 0xDBFF) {
                if (i + 1 >= value.size()) {
                    return false;
                }
                const auto low = static_cast<uint32_t>(value[i + 1]);
                if (low < 0xDC00 || low > 0xDFFF) {
                    return false;
                }
                ++i;
                continue;
            }
        }
        if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::wstring_view ExtractTaggedValue(std::wstring_view line, std::wstring_view open,
                                     std::wstring_view close) {
    const size_t openAt = line.find(open);
    if (openAt == std::wstring_view::npos) {
        return {};
    }
    const size_t closeAt = line.find(close, openAt + 1);
    const size_t begin = openAt + open.size();
    if (closeAt == std::wstring_view::npos || closeAt < begin) {
        return {};
    }
    std::wstring_view value = line.substr(begin, closeAt - begin);
    while (!value.empty() && IsBlank(value.front())) {
        value.remove_prefix(1);
    }
    while (!value.empty() && IsBlank(value.back())) {
        value.remove_suffix(1);
    }
    return value;
}

std::wstring CollapseStars(std::wstring_view address) {
    std::wstring collapsed;
    collapsed.reserve(address.size());
    for (const wchar_t c : address) {
        if (c != L'*' || collapsed.empty() || collapsed.back() != L'*') {
            collapsed.push_back(c);
        }
    }
    return collapsed;
}

bool IsStorableValue(std::wstring_view value) {
    if (!value.empty() && (IsBlank(value.front()) || IsBlank(value.back()))) {
        return false;
    }
    for (const wchar_t c : value) {
        if (static_cast<uint32_t>(c) < 0x20 && c != L'\t') {
            return false;
        }
    }
    if (value.find(L'<') != std::wstring_view::npos) {
        for (const std::wstring_view tag : kEveryTag) {
            if (value.find(tag) != std::wstring_view::npos) {
                return false;
            }
        }
    }
    return HasOnlyScalarValues(value);
}

}  // namespace Orva::Lists
