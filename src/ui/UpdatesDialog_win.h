#pragma once

#include <windows.h>

#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/MessageBoxes.h"
#include "ui/PageServices.h"
#include "ui/PasswordProtector.h"
#include "ui/UpdatesModel.h"
#include "ui/UpdatesShortcuts_win.h"

namespace Orva::Ui {

// What the proxy dialog, opened from the updates dialog, needs besides the page services.
struct ProxyParts {
    IMessageBoxes& boxes;
    IPasswordProtector& protector;
};

// The updates dialog: versions and the last update as the agent writes them, read again every
// three seconds so that an update started here shows its result; the schedule, kept on OK; the
// update now, the proxy settings and the help file.
class CUpdatesDlg final : public CDialogWindow {
public:
    CUpdatesDlg(CUpdatesModel& model, PageServices& services, const ProxyParts& proxy);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void ShowStatus();
    UpdateChoices ShownChoices() const;
    void FollowScheduleBox();

    CUpdatesModel& m_model;
    PageServices& m_services;
    ProxyParts m_proxy;
    CDialogShortcuts m_shortcuts;
    ZelCommon::Platform::unique_hfont m_headlineFont;
    bool m_lastUpdateRed = false;
};

// Opens the updates dialog modally over `owner`.
void RunUpdatesDialog(PageServices& services, const UpdatesPorts& ports,
                      const std::wstring& programFolder, const ProxyParts& proxy, HWND owner);

}  // namespace Orva::Ui
