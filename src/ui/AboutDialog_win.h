#pragma once

#include <windows.h>

#include <functional>

#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/UniqueAny_win.h"
#include "ui/AboutContent.h"
#include "ui/DialogWindow_win.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// The About box: the product's identity, banner and versions, and the way to the feedback
// programme and to the updates dialog. It stays open while the security suite is busy, as the sheet
// does.
class CAboutDlg final : public CDialogWindow {
public:
    // `openUpdates` opens the updates dialog over the box; without it the box offers none.
    using UpdatesOpener = std::function<void(HWND owner)>;
    CAboutDlg(AboutContent content, PageServices& services, ZelCommon::Platform::IShellOpen& shell,
              UpdatesOpener openUpdates = {});

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PlaceUpdatesButton();

    AboutContent m_content;
    PageServices& m_services;
    ZelCommon::Platform::IShellOpen& m_shell;
    UpdatesOpener m_openUpdates;
    ZelCommon::Platform::unique_hbitmap m_banner;
    ZelCommon::Platform::unique_hfont m_titleFont;
};

// The version strings of the module this code is linked into.
ModuleVersion ThisModuleVersion();

}  // namespace Orva::Ui
