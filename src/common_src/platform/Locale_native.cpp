#include <cstdlib>
#include <string>
#include <string_view>

#include "common_src/platform/Locale.h"

namespace ZelCommon::Platform {
namespace {

struct KnownLocale {
    uint32_t lcid;
    const wchar_t* name;
};

// The locales a demonstration is likely to ask for; Windows knows many more.
constexpr KnownLocale kKnownLocales[] = {
    {0x0401, L"ar-SA"}, {0x0404, L"zh-TW"}, {0x0405, L"cs-CZ"}, {0x0406, L"da-DK"},
    {0x0407, L"de-DE"}, {0x0408, L"el-GR"}, {0x0409, L"en-US"}, {0x040A, L"es-ES_tradnl"},
    {0x040B, L"fi-FI"}, {0x040C, L"fr-FR"}, {0x040D, L"he-IL"}, {0x040E, L"hu-HU"},
    {0x0410, L"it-IT"}, {0x0411, L"ja-JP"}, {0x0412, L"ko-KR"}, {0x0413, L"nl-NL"},
    {0x0414, L"nb-NO"}, {0x0415, L"pl-PL"}, {0x0416, L"pt-BR"}, {0x0419, L"ru-RU"},
    {0x041D, L"sv-SE"}, {0x041F, L"tr-TR"}, {0x0804, L"zh-CN"}, {0x0807, L"de-CH"},
    {0x0809, L"en-GB"}, {0x080C, L"fr-BE"}, {0x0816, L"pt-PT"}, {0x0C07, L"de-AT"},
    {0x0C09, L"en-AU"}, {0x0C0A, L"es-ES"}, {0x0C0C, L"fr-CA"}, {0x1009, L"en-CA"},
    {0x1407, L"de-LI"},
};

// Natively the system default comes from ORVA_LCID (decimal, or hexadecimal with "0x"), so a
// demonstration can show another language; without it the answer is English (United States).
uint32_t LcidFromEnvironment() {
    const char* text = std::getenv("ORVA_LCID");
    if (text == nullptr || *text == '\0') {
        return kLcidEnglishUnitedStates;
    }
    char* end = nullptr;
    const unsigned long value = std::strtoul(text, &end, 0);
    if (end == text || *end != '\0' || value == 0 || value > 0xFFFFFFFFul) {
        return kLcidEnglishUnitedStates;
    }
    return static_cast<uint32_t>(value);
}

class NativeLocale final : public ILocale {
public:
    uint32_t SystemDefaultLcid() const override { return LcidFromEnvironment(); }

    std::wstring LcidToLocaleName(uint32_t lcid) const override {
        for (const KnownLocale& known : kKnownLocales) {
            if (known.lcid == lcid) {
                return known.name;
            }
        }
        return {};
    }
};

}  // namespace

ILocale& SystemLocale() {
    static NativeLocale locale;
    return locale;
}

}  // namespace ZelCommon::Platform
