#pragma once

#include <string>
#include <string_view>

#include "settings/SettingsStore.h"
#include "settings/localisation/LocalisedStrings.h"

namespace Orva::Ui {

// Puts the company name in place of "<$CORP_NAME>": the installation file's CorpName, else the
// localised IDS_CORP_NAME.
std::wstring ExpandCorpName(std::wstring_view text, const Settings::SettingsStore& settings,
                            Settings::ILocalisedStrings& strings);

// A bold headline font. An empty face means the dialog's own.
struct FontSpec {
    std::wstring face;
    int points = 0;
    bool bold = true;
};
inline constexpr int kDefaultHeadlinePoints = 9;
inline constexpr int kLargestHeadlinePoints = 72;

// The face and the point size from their string ids; a size that is not a number from 1 to
// kLargestHeadlinePoints is kDefaultHeadlinePoints.
FontSpec HeadlineFont(Settings::ILocalisedStrings& strings, std::wstring_view faceId,
                      std::wstring_view sizeId);

// The logical font height of a point size on a screen of `verticalDpi` pixels per inch.
int FontHeight(int points, int verticalDpi);

// The replacement slider bitmap named by the installation file, in the add-in's folder; empty
// for the built-in one.
std::wstring SliderBitmapPath(const Settings::SettingsStore& settings,
                              std::wstring_view moduleFolder);

}  // namespace Orva::Ui
