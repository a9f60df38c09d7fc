#include <cwctype>

#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Text {

// Linux has no ANSI code page; its files and terminals are UTF-8.
std::string WideToAnsi(std::wstring_view wide) {
    return WideToUtf8(wide);
}

std::wstring ToLower(std::wstring_view text) {
    std::wstring out(text);
    for (wchar_t& c : out) {
        if (c < 0x80) {
            if (c >= L'A' && c <= L'Z') {
                c = static_cast<wchar_t>(c + (L'a' - L'A'));
            }
        } else if ((c >= 0xC0 && c <= 0xDE && c != 0xD7)) {
            c = static_cast<wchar_t>(c + 0x20);  // Latin-1 capitals, independent of the C locale
        } else {
            c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
        }
    }
    return out;
}

}  // namespace ZelCommon::Text
