#pragma once

#include <windows.h>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/DigitEdit_win.h"
#include "ui/MessageBoxes.h"
#include "ui/PageServices.h"
#include "ui/PasswordProtector.h"
#include "ui/ProxyModel.h"
#include "ui/UpdatesShortcuts_win.h"

namespace Orva::Ui {

// The proxy dialog: the switch, host, port, user and password the agent connects with. OK
// stays open on a bad host or port, with the focus on that field.
class CProxySettingDlg final : public CDialogWindow {
public:
    CProxySettingDlg(PageServices& services, IMessageBoxes& boxes, IPasswordProtector& protector);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    PageServices& m_services;
    CProxyModel m_model;
    CDigitEdit m_port;
    CDialogShortcuts m_shortcuts;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

}  // namespace Orva::Ui
