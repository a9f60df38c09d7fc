#pragma once

#include <windows.h>

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "common_src/platform/UniqueAny_win.h"
#include "settings/localisation/LocalisedStrings.h"
#include "ui/ControlTexts.h"

namespace Orva::Ui {

// Puts the user's language over the template's texts; a text the table lacks keeps the
// template's English one.
void ApplyControlTexts(HWND dialog, std::span<const ControlText> texts,
                       Settings::ILocalisedStrings& strings);

// The headline font that `faceId` and `sizeId` name, set on each of `headlines`; they show it for
// as long as the returned font lives.
ZelCommon::Platform::unique_hfont SetHeadlineFont(HWND dialog, std::initializer_list<int> headlines,
                                                  Settings::ILocalisedStrings& strings,
                                                  std::wstring_view faceId,
                                                  std::wstring_view sizeId);

// The window's whole text; empty when it has none or is gone.
std::wstring WindowText(HWND window);

// Tooltips over controls of one dialog; they go with this object.
class CToolTips {
public:
    explicit CToolTips(HWND owner);
    // `control` must have SS_NOTIFY when it is a static.
    void Add(HWND control, const std::wstring& text);

private:
    HWND m_owner;
    ZelCommon::Platform::unique_hwnd m_tips;
};

}  // namespace Orva::Ui
