#pragma once

#include <windows.h>

#include <span>
#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "settings/localisation/LocalisedStrings.h"
#include "ui/ControlTexts.h"

namespace Orva::Ui {

// Puts the user's language over the template's texts; a text the table lacks keeps the
// template's English one.
void ApplyControlTexts(HWND dialog, std::span<const ControlText> texts,
                       Settings::ILocalisedStrings& strings);

// A bold headline font of `points` in `face`, as tall on this screen as the point size says;
// the dialog's own face when `face` is empty or not installed.
ZelCommon::Platform::unique_hfont CreateHeadlineFont(HWND dialog, const std::wstring& face,
                                                     int points);

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
