#include "common_src/platform/TextCodec.h"

#include <cstdint>

namespace ZelCommon::Text {

std::wstring_view TrimBlanks(std::wstring_view text) {
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

void AppendCodePoint(std::wstring& out, char32_t c) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (c >= 0x10000) {
            c -= 0x10000;
            out.push_back(static_cast<wchar_t>(0xD800 + (c >> 10)));
            out.push_back(static_cast<wchar_t>(0xDC00 + (c & 0x3FF)));
            return;
        }
    }
    out.push_back(static_cast<wchar_t>(c));
}

// Reads one code point from wide text, joining UTF-16 surrogate pairs where wchar_t is 16-bit.
char32_t NextCodePoint(std::wstring_view text, size_t& i) {
    char32_t c = static_cast<char32_t>(text[i++]);
    if constexpr (sizeof(wchar_t) == 2) {
        if (c >= 0xD800 && c <= 0xDBFF && i < text.size()) {
            const char32_t low = static_cast<char32_t>(text[i]) & 0xFFFF;
            if (low >= 0xDC00 && low <= 0xDFFF) {
                ++i;
                return 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
            }
        }
        c &= 0xFFFF;
    }
    return (IsSurrogate(c) || c > 0x10FFFF) ? kReplacement : c;
}

}  // namespace

std::wstring Utf8ToWide(std::string_view utf8) {
    std::wstring out;
    out.reserve(utf8.size());
    const auto* bytes = reinterpret_cast<const unsigned char*>(utf8.data());
    const size_t size = utf8.size();
    size_t i = 0;
    while (i < size) {
        const unsigned char lead = bytes[i];
        if (lead < 0x80) {
            out.push_back(static_cast<wchar_t>(lead));
            ++i;
            continue;
        }
        size_t length = 0;
        char32_t c = 0;
        char32_t minimum = 0;
        if ((lead & 0xE0) == 0xC0) {
            length = 2, c = lead & 0x1Fu, minimum = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            length = 3, c = lead & 0x0Fu, minimum = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            length = 4, c = lead & 0x07u, minimum = 0x10000;
        }
        size_t consumed = 1;
        bool valid = length != 0;
        while (valid && consumed < length) {
            if (i + consumed >= size || (bytes[i + consumed] & 0xC0) != 0x80) {
                valid = false;
                break;
            }
            c = (c << 6) | (bytes[i + consumed] & 0x3Fu);
            ++consumed;
        }
        if (valid && (c < minimum || c > 0x10FFFF || IsSurrogate(c))) {
            valid = false;
        }
        // A broken sequence costs only the bytes read so far, so that the next lead byte is seen.
        AppendCodePoint(out, valid ? c : kReplacement);
        i += valid ? length : consumed;
    }
    return out;
}

std::string WideToUtf8(std::wstring_view wide) {
    std::string out;
    out.reserve(wide.size());
    for (size_t i = 0; i < wide.size();) {
        const char32_t c = NextCodePoint(wide, i);
        if (c < 0x80) {
            out.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (c >> 6)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (c >> 12)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (c >> 18)));
            out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return out;
}

std::wstring Utf16LeToWide(std::string_view bytes) {
    std::wstring out;
    out.reserve(bytes.size() / 2);
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const size_t units = bytes.size() / 2;  // an odd last byte is dropped
    for (size_t i = 0; i < units; ++i) {
        const char32_t unit = static_cast<char32_t>(data[2 * i] | (data[2 * i + 1] << 8));
        if constexpr (sizeof(wchar_t) == 2) {
            out.push_back(static_cast<wchar_t>(unit));
        } else {
            if (unit >= 0xD800 && unit <= 0xDBFF && i + 1 < units) {
                const char32_t low =
                    static_cast<char32_t>(data[2 * i + 2] | (data[2 * i + 3] << 8));
                if (low >= 0xDC00 && low <= 0xDFFF) {
                    out.push_back(
                        static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00)));
                    ++i;
                    continue;
                }
            }
            out.push_back(static_cast<wchar_t>(IsSurrogate(unit) ? kReplacement : unit));
        }
    }
    return out;
}

std::string WideToUtf16Le(std::wstring_view wide) {
    std::string out;
    out.reserve(wide.size() * 2);
    auto put = [&out](char32_t unit) {
        out.push_back(static_cast<char>(unit & 0xFF));
        out.push_back(static_cast<char>((unit >> 8) & 0xFF));
    };
    if constexpr (sizeof(wchar_t) == 2) {
        for (wchar_t c : wide) {
            put(static_cast<char32_t>(c) & 0xFFFF);
        }
    } else {
        for (size_t i = 0; i < wide.size();) {
            const char32_t c = NextCodePoint(wide, i);
            if (c >= 0x10000) {
                put(0xD800 + ((c - 0x10000) >> 10));
                put(0xDC00 + ((c - 0x10000) & 0x3FF));
            } else {
                put(c);
            }
        }
    }
    return out;
}

}  // namespace ZelCommon::Text
