#include "lists/ValueCodec.h"

#include <cstdint>

#include "common_src/platform/TextCodec.h"
#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

bool IsContinuation(uint32_t byte) {
    return (byte & 0xC0) == 0x80;
}

// Well-formed UTF-8 of one to three bytes a character, which is what names hold, decoded without
// the shared decoder's growth character by character. False on anything else, which that decoder
// then reads; on well-formed text both give the same characters.
bool DecodeCommonUtf8(std::string_view utf8, std::wstring& out) {
    out.resize(utf8.size());
    const auto* in = reinterpret_cast<const unsigned char*>(utf8.data());
    const size_t size = utf8.size();
    wchar_t* target = out.data();
    for (size_t i = 0; i < size;) {
        const uint32_t lead = in[i];
        if (lead < 0x80) {
            *target++ = static_cast<wchar_t>(lead);
            i += 1;
        } else if (lead >= 0xC2 && lead <= 0xDF && i + 1 < size && IsContinuation(in[i + 1])) {
            *target++ = static_cast<wchar_t>(((lead & 0x1F) << 6) | (in[i + 1] & 0x3F));
            i += 2;
        } else if ((lead & 0xF0) == 0xE0 && i + 2 < size && IsContinuation(in[i + 1]) &&
                   IsContinuation(in[i + 2])) {
            const uint32_t c =
                ((lead & 0x0F) << 12) | ((in[i + 1] & 0x3Fu) << 6) | (in[i + 2] & 0x3F);
            if (c < 0x800 || (c >= 0xD800 && c <= 0xDFFF)) {
                return false;
            }
            *target++ = static_cast<wchar_t>(c);
            i += 3;
        } else {
            return false;
        }
    }
    out.resize(static_cast<size_t>(target - out.data()));
    return true;
}

bool IsBlank(uint32_t c) {
    return c == ' ' || c == '\t';
}

}  // namespace

ValueRead DecodeStoredValue(std::string_view utf8, std::wstring& out) {
    if (!utf8.empty() && (IsBlank(static_cast<unsigned char>(utf8.front())) ||
                          IsBlank(static_cast<unsigned char>(utf8.back())))) {
        return ValueRead::Refused;
    }
    // Widened as plain ASCII while it is checked; other text is decoded again below.
    out.resize(utf8.size());
    wchar_t* target = out.data();
    uint32_t control = 0;
    uint32_t high = 0;
    uint32_t angle = 0;
    for (const char c : utf8) {
        const auto byte = static_cast<uint32_t>(static_cast<unsigned char>(c));
        control |= static_cast<uint32_t>(byte < 0x20) & static_cast<uint32_t>(byte != 0x09);
        high |= byte & 0x80;
        angle |= static_cast<uint32_t>(byte == '<');
        *target++ = static_cast<wchar_t>(byte);
    }
    if (control != 0 || (angle != 0 && HoldsTagText(utf8))) {
        return ValueRead::Refused;
    }
    if (high == 0 || DecodeCommonUtf8(utf8, out)) {
        return ValueRead::AsWritten;
    }
    out = ZelCommon::Text::Utf8ToWide(utf8);
    return ValueRead::Decoded;
}

char* EncodeUtf8(std::wstring_view text, char* out) {
    for (size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<uint32_t>(text[i]);
        if (c < 0x80) {
            *out++ = static_cast<char>(c);
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
            *out++ = static_cast<char>(0xC0 | (c >> 6));
        } else if (c < 0x10000) {
            *out++ = static_cast<char>(0xE0 | (c >> 12));
            *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        } else {
            *out++ = static_cast<char>(0xF0 | (c >> 18));
            *out++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            *out++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        }
        *out++ = static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

namespace {

// Every value that a control character, a tab, DEL or '<' makes suspect: checked in full.
char* EncodeCheckedValue(std::wstring_view value, char* out) {
    return IsStorableValue(value) ? EncodeUtf8(value, out) : nullptr;
}

}  // namespace

// Names beyond ASCII are encoded in one pass; a character that may make the value unstorable
// hands it to the full check.
char* EncodeOtherStorableValue(std::wstring_view value, char* out) {
    if (!value.empty() && (IsBlank(static_cast<uint32_t>(value.front())) ||
                           IsBlank(static_cast<uint32_t>(value.back())))) {
        return nullptr;
    }
    char* target = out;
    for (size_t i = 0; i < value.size(); ++i) {
        auto c = static_cast<uint32_t>(value[i]);
        if (c - 0x20u < 0x5Fu && c != 0x3Cu) {
            *target++ = static_cast<char>(c);
            continue;
        }
        if (c < 0x80) {
            return EncodeCheckedValue(value, out);
        }
        if (c < 0x800) {
            *target++ = static_cast<char>(0xC0 | (c >> 6));
            *target++ = static_cast<char>(0x80 | (c & 0x3F));
            continue;
        }
        if (c >= 0xD800 && c <= 0xDFFF) {
            // Only a whole surrogate pair, where wchar_t is 16-bit, stands for a character.
            const auto low = i + 1 < value.size() ? static_cast<uint32_t>(value[i + 1]) : 0u;
            if (sizeof(wchar_t) != 2 || c > 0xDBFF || low < 0xDC00 || low > 0xDFFF) {
                return nullptr;
            }
            c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
            ++i;
        }
        if (c < 0x10000) {
            *target++ = static_cast<char>(0xE0 | (c >> 12));
        } else if (c <= 0x10FFFF) {
            *target++ = static_cast<char>(0xF0 | (c >> 18));
            *target++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        } else {
            return nullptr;
        }
        *target++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *target++ = static_cast<char>(0x80 | (c & 0x3F));
    }
    return target;
}

void AppendUtf8(std::string& out, std::wstring_view text) {
    const size_t start = out.size();
    out.resize(start + text.size() * kMaxUtf8PerUnit);
    char* const end = EncodeUtf8(text, out.data() + start);
    out.resize(static_cast<size_t>(end - out.data()));
}

}  // namespace Orva::Lists
