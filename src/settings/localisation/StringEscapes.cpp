#include "settings/localisation/StringEscapes.h"

namespace Orva::Settings {

std::wstring ExpandStringEscapes(std::wstring_view text) {
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\\' && i + 1 < text.size()) {
            if (text[i + 1] == L'n') {
                result += L'\n';
                ++i;
                continue;
            }
            if (text[i + 1] == L'r') {
                result += L'\r';
                ++i;
                continue;
            }
        }
        result += text[i];
    }
    return result;
}

}  // namespace Orva::Settings
