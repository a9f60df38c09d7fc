#include "lists/ListText.h"

#include <cstdint>

#include "common_src/platform/TextCodec.h"
#include "lists/ListKinds.h"

namespace Orva::Lists {
namespace {

constexpr std::string_view kEveryTag[] = {
    BlockedList::kRecordOpen,
    BlockedList::kRecordClose,
    ApprovedList::kRecordOpen,
    ApprovedList::kRecordClose,
    kNameOpen,
    kNameClose,
    kAddressOpen,
    kAddressClose,
};

template <class Char>
bool IsBlank(Char c) {
    return c == Char(' ') || c == Char('\t');
}

// Where wide text holds an ASCII needle.
size_t FindAscii(std::wstring_view text, std::string_view needle) {
    for (size_t at = 0; at + needle.size() <= text.size(); ++at) {
        size_t i = 0;
        while (i < needle.size() &&
               text[at + i] == static_cast<wchar_t>(static_cast<unsigned char>(needle[i]))) {
            ++i;
        }
        if (i == needle.size()) {
            return at;
        }
    }
    return std::wstring_view::npos;
}

bool HoldsAscii(std::wstring_view text, std::string_view needle) {
    return FindAscii(text, needle) != std::wstring_view::npos;
}

bool IsHighSurrogate(uint32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool IsLowSurrogate(uint32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
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

std::string_view ExtractTaggedValue(std::string_view line, std::string_view open,
                                    std::string_view close) {
    const size_t openAt = line.find(open);
    if (openAt == std::string_view::npos) {
        return {};
    }
    const size_t closeAt = line.find(close, openAt + 1);
    const size_t begin = openAt + open.size();
    if (closeAt == std::string_view::npos || closeAt < begin) {
        return {};
    }
    std::string_view value = line.substr(begin, closeAt - begin);
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
    // Without early exits the scan vectorises; lists are saved whole, value after value.
    bool control = false;
    bool mayHoldTag = false;
    bool mayHoldSurrogate = false;
    for (const wchar_t c : value) {
        const auto code = static_cast<uint32_t>(c);
        control |= (code < 0x20) & (code != 0x09);
        mayHoldTag |= code == 0x3C;
        mayHoldSurrogate |= code >= 0xD800;
    }
    if (control) {
        return false;
    }
    if (mayHoldTag) {
        for (const std::string_view tag : kEveryTag) {
            if (HoldsAscii(value, tag)) {
                return false;
            }
        }
    }
    return !mayHoldSurrogate || HasOnlyScalarValues(value);
}

std::wstring StorableForm(std::wstring_view value) {
    std::wstring kept;
    kept.reserve(value.size());
    for (size_t i = 0; i < value.size(); ++i) {
        const auto c = static_cast<uint32_t>(value[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            if (IsHighSurrogate(c) && i + 1 < value.size() &&
                IsLowSurrogate(static_cast<uint32_t>(value[i + 1]))) {
                kept.append(value.substr(i, 2));
                ++i;
                continue;
            }
        }
        const bool control = c < 0x20 && c != 0x09;
        if (!control && !(c >= 0xD800 && c <= 0xDFFF) && c <= 0x10FFFF) {
            kept.push_back(value[i]);
        }
    }
    // Taking a tag out can join the text around it into another tag.
    for (bool removed = true; removed;) {
        removed = false;
        for (const std::string_view tag : kEveryTag) {
            if (const size_t at = FindAscii(kept, tag); at != std::wstring::npos) {
                kept.erase(at, tag.size());
                removed = true;
            }
        }
    }
    const size_t first = kept.find_first_not_of(L" \t");
    if (first == std::wstring::npos) {
        return {};
    }
    return kept.substr(first, kept.find_last_not_of(L" \t") - first + 1);
}

bool IsStorableUtf8(std::string_view value) {
    if (!value.empty() && (IsBlank(value.front()) || IsBlank(value.back()))) {
        return false;
    }
    bool control = false;
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        control |= (byte < 0x20) & (byte != 0x09);
    }
    if (control) {
        return false;
    }
    if (value.find('<') != std::string_view::npos) {
        for (const std::string_view tag : kEveryTag) {
            if (value.find(tag) != std::string_view::npos) {
                return false;
            }
        }
    }
    return true;
}

std::wstring DecodeValue(std::string_view utf8) {
    bool ascii = true;
    for (const char c : utf8) {
        ascii &= static_cast<unsigned char>(c) < 0x80;
    }
    if (!ascii) {
        return ZelCommon::Text::Utf8ToWide(utf8);
    }
    std::wstring text(utf8.size(), L'\0');
    for (size_t i = 0; i < utf8.size(); ++i) {
        text[i] = static_cast<wchar_t>(utf8[i]);
    }
    return text;
}

namespace {

// Every value that AppendStorableUtf8's fast path does not take: checked in full.
bool AppendCheckedUtf8(std::string& out, std::wstring_view value) {
    bool control = false;
    bool mayHoldTag = false;
    bool nonAscii = false;
    for (const wchar_t c : value) {
        const auto code = static_cast<uint32_t>(c);
        control |= (code < 0x20) & (code != 0x09);
        mayHoldTag |= code == 0x3C;
        nonAscii |= code >= 0x80;
    }
    if (control || (mayHoldTag && !IsStorableValue(value))) {
        return false;
    }
    if (nonAscii) {
        if (!HasOnlyScalarValues(value)) {
            return false;
        }
        AppendUtf8(out, value);
        return true;
    }
    const size_t start = out.size();
    out.resize(start + value.size());
    char* target = out.data() + start;
    for (const wchar_t c : value) {
        *target++ = static_cast<char>(c);
    }
    return true;
}

}  // namespace

bool AppendStorableUtf8(std::string& out, std::wstring_view value) {
    if (!value.empty() && (IsBlank(value.front()) || IsBlank(value.back()))) {
        return false;
    }
    // Most names and addresses are printable ASCII without '<': copy them in one pass, which
    // the compiler vectorises, and check anything else in full.
    const size_t start = out.size();
    out.resize(start + value.size());
    char* target = out.data() + start;
    uint32_t special = 0;
    for (const wchar_t c : value) {
        const auto code = static_cast<uint32_t>(c);
        special |=
            static_cast<uint32_t>(code - 0x20u >= 0x5Fu) | static_cast<uint32_t>(code == 0x3Cu);
        *target++ = static_cast<char>(code);
    }
    if (special == 0) {
        return true;
    }
    out.resize(start);
    return AppendCheckedUtf8(out, value);
}

void AppendUtf8(std::string& out, std::wstring_view text) {
    bool ascii = true;
    for (const wchar_t c : text) {
        ascii &= static_cast<uint32_t>(c) < 0x80;
    }
    if (ascii) {
        const size_t start = out.size();
        out.resize(start + text.size());
        char* target = out.data() + start;
        for (const wchar_t c : text) {
            *target++ = static_cast<char>(c);
        }
        return;
    }
    for (size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<uint32_t>(text[i]);
        if (c < 0x80) {
            out.push_back(static_cast<char>(c));
            continue;
        }
        if constexpr (sizeof(wchar_t) == 2) {
            if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
                const auto low = static_cast<uint32_t>(text[i + 1]);
                if (low >= 0xDC00 && low <= 0xDFFF) {
                    c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                    ++i;
                }
            }
        }
        if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) {
            c = 0xFFFD;
        }
        if (c < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        } else if (c < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (c >> 12)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (c >> 18)));
            out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        }
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

}  // namespace Orva::Lists
