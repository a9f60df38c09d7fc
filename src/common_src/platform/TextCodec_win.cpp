#include <windows.h>

#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Text {

std::string WideToAnsi(std::wstring_view wide) {
    if (wide.empty()) {
        return {};
    }
    const int length = static_cast<int>(wide.size());
    const int needed =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    if (needed <= 0) {
        return {};
    }
    std::string out(static_cast<size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), length, out.data(), needed, nullptr, nullptr);
    return out;
}

std::wstring ToLower(std::wstring_view text) {
    std::wstring out(text);
    if (!out.empty()) {
        CharLowerBuffW(out.data(), static_cast<DWORD>(out.size()));
    }
    return out;
}

}  // namespace ZelCommon::Text
