#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"
#include "settings/localisation/LocalisedStrings.h"
#include "ui/DialogWindow_win.h"
#include "ui/ImportProgress.h"

namespace Orva::Ui {

// The contact import's progress: a modeless window over `owner` with a bar, the address being
// imported and Cancel. The owner is disabled while it is open, as under a modal dialog, so that
// no second import starts; the import asks Cancelled() between contacts, which answers the
// window's and the mail client's messages meanwhile.
class CImportDlg final : public CDialogWindow, public IImportProgress {
public:
    CImportDlg(Settings::ILocalisedStrings& strings, HWND owner);
    ~CImportDlg() override;

    void Open() override;
    void SetRange(int count) override;
    void ShowAddress(const std::wstring& address) override;
    void Step() override;
    bool Cancelled() override;
    void Close() override;

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    Settings::ILocalisedStrings& m_strings;
    HWND m_owner;
    bool m_ownerDisabled = false;
    bool m_cancelled = false;
    ZelCommon::Platform::unique_hwnd m_dialog;
};

}  // namespace Orva::Ui
