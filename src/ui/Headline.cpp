#include "ui/Headline.h"

#include "common_src/platform/Path.h"
#include "settings/localisation/Placeholders.h"
#include "ui/LevelValue.h"

namespace Orva::Ui {
namespace {

constexpr wchar_t kCorpNameId[] = L"IDS_CORP_NAME";

// Digits only, blanks around them aside; nothing that could overflow is read.
int PointsOf(std::wstring_view text) {
    text = TrimBlanks(text);
    if (text.empty()) {
        return kDefaultHeadlinePoints;
    }
    int points = 0;
    for (const wchar_t character : text) {
        if (character < L'0' || character > L'9') {
            return kDefaultHeadlinePoints;
        }
        if (points <= kLargestHeadlinePoints) {
            points = points * 10 + (character - L'0');
        }
    }
    return points >= 1 && points <= kLargestHeadlinePoints ? points : kDefaultHeadlinePoints;
}

}  // namespace

std::wstring ExpandCorpName(std::wstring_view text, const Settings::SettingsStore& settings,
                            Settings::ILocalisedStrings& strings) {
    if (text.find(Settings::kCorpNamePlaceholder) == std::wstring_view::npos) {
        return std::wstring(text);
    }
    std::wstring corpName = settings.GetString(Settings::SettingId::InstallCorpName);
    if (corpName.empty()) {
        corpName = strings.Load(kCorpNameId);
    }
    return Settings::ReplaceAll(text, Settings::kCorpNamePlaceholder, corpName);
}

FontSpec HeadlineFont(Settings::ILocalisedStrings& strings, std::wstring_view faceId,
                      std::wstring_view sizeId) {
    FontSpec font;
    font.face = std::wstring(TrimBlanks(strings.Load(std::wstring(faceId))));
    font.points = PointsOf(strings.Load(std::wstring(sizeId)));
    return font;
}

// 64-bit arithmetic: no dpi a caller passes can overflow the product.
int FontHeight(int points, int verticalDpi) {
    return static_cast<int>(-(static_cast<long long>(points) * verticalDpi / 72));
}

std::wstring SliderBitmapPath(const Settings::SettingsStore& settings,
                              std::wstring_view moduleFolder) {
    const std::wstring name = settings.GetString(Settings::SettingId::InstallSliderBitmap);
    if (name.empty()) {
        return {};
    }
    return ZelCommon::Path::ChildFile(moduleFolder, name);
}

}  // namespace Orva::Ui
