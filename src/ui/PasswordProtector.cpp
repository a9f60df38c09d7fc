#include "ui/PasswordProtector.h"

#include "common_src/platform/TextCodec.h"

namespace Orva::Ui {
namespace {

constexpr std::wstring_view kAlphabet =
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

int SextetOf(wchar_t character) {
    const std::size_t at = kAlphabet.find(character);
    return at == std::wstring_view::npos ? -1 : static_cast<int>(at);
}

}  // namespace

std::wstring Base64Encode(const ProtectedBytes& bytes) {
    std::wstring text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t left = bytes.size() - at;
        const uint32_t group = (uint32_t{bytes[at]} << 16) |
                               (left > 1 ? uint32_t{bytes[at + 1]} << 8 : 0) |
                               (left > 2 ? uint32_t{bytes[at + 2]} : 0);
        text += kAlphabet[(group >> 18) & 0x3F];
        text += kAlphabet[(group >> 12) & 0x3F];
        text += left > 1 ? kAlphabet[(group >> 6) & 0x3F] : L'=';
        text += left > 2 ? kAlphabet[group & 0x3F] : L'=';
    }
    return text;
}

std::optional<ProtectedBytes> Base64Decode(std::wstring_view text) {
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    ProtectedBytes bytes;
    bytes.reserve(text.size() / 4 * 3);
    for (std::size_t at = 0; at < text.size(); at += 4) {
        const bool last = at + 4 == text.size();
        const int padding = last ? (text[at + 3] == L'=') + (text[at + 2] == L'=') : 0;
        if (padding == 1 && text[at + 2] == L'=') {
            return std::nullopt;
        }
        uint32_t group = 0;
        for (int i = 0; i < 4; ++i) {
            const int sextet =
                i >= 4 - padding ? 0 : SextetOf(text[at + static_cast<std::size_t>(i)]);
            if (sextet < 0) {
                return std::nullopt;
            }
            group = (group << 6) | static_cast<uint32_t>(sextet);
        }
        bytes.push_back(static_cast<uint8_t>(group >> 16));
        if (padding < 2) {
            bytes.push_back(static_cast<uint8_t>(group >> 8));
        }
        if (padding < 1) {
            bytes.push_back(static_cast<uint8_t>(group));
        }
    }
    return bytes;
}

std::optional<std::wstring> StoredPasswordOf(IPasswordProtector& protector,
                                             std::wstring_view password) {
    if (password.empty()) {
        return std::wstring();
    }
    const std::string utf16 = ZelCommon::Text::WideToUtf16Le(password);
    const std::optional<ProtectedBytes> sealed =
        protector.Protect(ProtectedBytes(utf16.begin(), utf16.end()));
    if (!sealed) {
        return std::nullopt;
    }
    return std::wstring(kProtectedPasswordPrefix) + Base64Encode(*sealed);
}

std::optional<std::wstring> PasswordFromStored(IPasswordProtector& protector,
                                               std::wstring_view stored) {
    if (stored.empty()) {
        return std::wstring();
    }
    if (stored.substr(0, kProtectedPasswordPrefix.size()) != kProtectedPasswordPrefix) {
        return std::nullopt;
    }
    const std::optional<ProtectedBytes> sealed =
        Base64Decode(stored.substr(kProtectedPasswordPrefix.size()));
    if (!sealed) {
        return std::nullopt;
    }
    const std::optional<ProtectedBytes> plain = protector.Unprotect(*sealed);
    if (!plain || plain->size() % 2 != 0) {
        return std::nullopt;
    }
    return ZelCommon::Text::Utf16LeToWide(
        std::string_view(reinterpret_cast<const char*>(plain->data()), plain->size()));
}

}  // namespace Orva::Ui
