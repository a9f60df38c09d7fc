#include "plugin/controller/MailClientVersion.h"

namespace Orva::Plugin {

std::optional<int> MajorVersionOf(std::wstring_view fileVersion) {
    // Five digits are more than any file version field can hold (16 bits).
    constexpr std::size_t kMaxDigits = 5;
    constexpr int kMaxField = 0xFFFF;
    int major = 0;
    std::size_t digits = 0;
    for (const wchar_t c : fileVersion) {
        if (c < L'0' || c > L'9') {
            break;
        }
        if (++digits > kMaxDigits) {
            return std::nullopt;
        }
        major = major * 10 + (c - L'0');
    }
    if (digits == 0 || major > kMaxField) {
        return std::nullopt;
    }
    return major;
}

}  // namespace Orva::Plugin
