#include "lists/ListText.h"

#include <cstdint>

#include "lists/ListKinds.h"

namespace Orva::Lists {
namespace {

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

bool HoldsTagText(std::wstring_view text) {
    for (const std::string_view tag : kEveryTag) {
        if (FindAscii(text, tag) != std::wstring_view::npos) {
            return true;
        }
    }
    return false;
}

bool IsHighSurrogate(uint32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool IsLowSurrogate(uint32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

bool IsScalarValue(uint32_t c) {
    return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF);
}

// With 16-bit wchar_t a character outside the Basic Multilingual Plane is a surrogate pair.
bool IsPairAt(std::wstring_view text, size_t i) {
    if constexpr (sizeof(wchar_t) == 2) {
        return IsHighSurrogate(static_cast<uint32_t>(text[i])) && i + 1 < text.size() &&
               IsLowSurrogate(static_cast<uint32_t>(text[i + 1]));
    }
    return false;
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
    return TrimTagBlanks(line.substr(begin, closeAt - begin));
}

std::string_view TrimTagBlanks(std::string_view value) {
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
    uint32_t control = 0;
    uint32_t mayHoldTag = 0;
    uint32_t mayHoldSurrogate = 0;
    for (const wchar_t c : value) {
        const auto code = static_cast<uint32_t>(c);
        control |= static_cast<uint32_t>(code < 0x20) & static_cast<uint32_t>(code != 0x09);
        mayHoldTag |= static_cast<uint32_t>(code == 0x3C);
        mayHoldSurrogate |= static_cast<uint32_t>(code >= 0xD800);
    }
    if (control != 0 || (mayHoldTag != 0 && HoldsTagText(value))) {
        return false;
    }
    if (mayHoldSurrogate == 0) {
        return true;
    }
    for (size_t i = 0; i < value.size(); ++i) {
        if (IsPairAt(value, i)) {
            ++i;
        } else if (!IsScalarValue(static_cast<uint32_t>(value[i]))) {
            return false;
        }
    }
    return true;
}

std::wstring StorableForm(std::wstring_view value) {
    std::wstring kept;
    kept.reserve(value.size());
    for (size_t i = 0; i < value.size(); ++i) {
        const auto c = static_cast<uint32_t>(value[i]);
        if (IsPairAt(value, i)) {
            kept.append(value.substr(i, 2));
            ++i;
        } else if ((c >= 0x20 || c == 0x09) && IsScalarValue(c)) {
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

bool HoldsTagText(std::string_view utf8) {
    for (const std::string_view tag : kEveryTag) {
        if (utf8.find(tag) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace Orva::Lists
