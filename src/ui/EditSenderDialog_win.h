#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "settings/localisation/LocalisedStrings.h"
#include "ui/DialogWindow_win.h"
#include "ui/EditSenderCheck.h"
#include "ui/MessageBoxes.h"
#include "ui/SenderPageModel.h"

namespace Orva::Ui {

// The modal dialog that enters or changes one sender: a name and an address field. OK closes
// it only once both fields pass the checks; a refusal sends the focus back to its field.
class CEditSenderDlg final : public CDialogWindow {
public:
    CEditSenderDlg(std::wstring caption, SenderFields initial, IMessageBoxes& boxes,
                   Settings::ILocalisedStrings& strings);

    // The checked fields after OK.
    const std::optional<SenderFields>& Accepted() const { return m_accepted; }

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    std::wstring m_caption;
    SenderFields m_initial;
    IMessageBoxes& m_boxes;
    Settings::ILocalisedStrings& m_strings;
    std::optional<SenderFields> m_accepted;
};

// The sender pages' edit dialog.
class CEditSenderDialogs final : public IEditSenderDialog {
public:
    CEditSenderDialogs(IMessageBoxes& boxes, Settings::ILocalisedStrings& strings)
        : m_boxes(boxes), m_strings(strings) {}

    std::optional<SenderFields> Run(ZelCommon::Platform::WindowHandle owner,
                                    const std::wstring& caption,
                                    const SenderFields& initial) override;

private:
    IMessageBoxes& m_boxes;
    Settings::ILocalisedStrings& m_strings;
};

}  // namespace Orva::Ui
