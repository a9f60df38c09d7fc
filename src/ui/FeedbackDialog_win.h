#pragma once

#include <windows.h>

#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/UniqueAny_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/FeedbackChoice.h"
#include "ui/PageServices.h"
#include "ui/StaticEx_win.h"

namespace Orva::Ui {

// The feedback programme: Yes or No, kept on OK, and a link to the programme's page.
class CFeedbackDlg final : public CDialogWindow {
public:
    CFeedbackDlg(PageServices& services, ZelCommon::Platform::IShellOpen& shell);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    PageServices& m_services;
    FeedbackChoice m_choice;
    CStaticEx m_link;
    ZelCommon::Platform::unique_hfont m_font;
};

}  // namespace Orva::Ui
