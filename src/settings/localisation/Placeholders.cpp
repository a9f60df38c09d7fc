#include "settings/localisation/Placeholders.h"

#include "settings/SettingsStore.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Settings {
namespace {

constexpr std::wstring_view kKnownPlaceholders[] = {kProductNamePlaceholder, kCorpNamePlaceholder,
                                                    kSpamNamePlaceholder};

struct PlaceholderSource {
    std::wstring_view placeholder;
    SettingId setting;
    const wchar_t* stringId;
    std::wstring_view fallback;
};

constexpr PlaceholderSource kSources[] = {
    {kProductNamePlaceholder, SettingId::InstallAboutProductName, L"IDS_PRODUCT_NAME", L""},
    {kCorpNamePlaceholder, SettingId::InstallCorpName, L"IDS_CORP_NAME", L""},
    {kSpamNamePlaceholder, SettingId::InstallAntiSpamTitle, L"IDS_SPAM_NAME", kSpamNameFallback},
};

}  // namespace

std::span<const std::wstring_view> KnownPlaceholders() {
    return kKnownPlaceholders;
}

std::wstring ReplaceAll(std::wstring_view text, std::wstring_view placeholder,
                        std::wstring_view value) {
    std::wstring result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (;;) {
        const std::size_t found =
            placeholder.empty() ? std::wstring_view::npos : text.find(placeholder, from);
        if (found == std::wstring_view::npos) {
            result.append(text.substr(from));
            return result;
        }
        result.append(text.substr(from, found - from));
        result.append(value);
        from = found + placeholder.size();
    }
}

std::wstring ExpandPlaceholders(std::wstring_view text, const std::wstring& installFile,
                                ZelCommon::Storage::IProfileApi& api,
                                ZelResourceStringLoader& strings) {
    SettingsFiles files;
    files.installFile = installFile;
    const SettingsStore install(api, files);
    std::wstring result(text);
    for (const PlaceholderSource& source : kSources) {
        // Only what the text needs is read, so a text without placeholders costs nothing.
        if (result.find(source.placeholder) == std::wstring::npos) {
            continue;
        }
        std::wstring value = install.GetString(source.setting);
        if (value.empty()) {
            value = strings.LoadString(source.stringId);
        }
        if (value.empty()) {
            value = source.fallback;
        }
        result = ReplaceAll(result, source.placeholder, value);
    }
    return result;
}

}  // namespace Orva::Settings
