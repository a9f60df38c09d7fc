#pragma once

#include <windows.h>

#include <string>

#include "settings/localisation/LocalisedStrings.h"
#include "ui/DialogWindow_win.h"

namespace Orva::Ui {

// A notice the user confirms with OK, and may ask not to see again.
class CConfirmationDlg final : public CDialogWindow {
public:
    // `caption` and `text` are shown as given; the box and the button take the user's language.
    CConfirmationDlg(std::wstring caption, std::wstring text, Settings::ILocalisedStrings& strings);

    // True when the user ticked "do not show this again" before closing.
    bool DontShowAgain() const { return m_dontShowAgain; }

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    std::wstring m_caption;
    std::wstring m_text;
    Settings::ILocalisedStrings& m_strings;
    bool m_dontShowAgain = false;
};

}  // namespace Orva::Ui
