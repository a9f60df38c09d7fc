#pragma once

#include "ui/FilteringSheetOpener.h"
#include "ui/FilteringSheet_win.h"

namespace Orva::Ui {

// The Win32 sheet; the help button opens the active page's topic through `openHelp`.
class CSheetWindows final : public ISheetWindows {
public:
    explicit CSheetWindows(CFilteringSheet::HelpOpener openHelp)
        : m_openHelp(std::move(openHelp)) {}

    bool RunFilteringSheet(CFilteringSheetModel& model, PageServices& services,
                           const std::wstring& caption,
                           ZelCommon::Platform::WindowHandle parent) override {
        CFilteringSheet sheet(model, services, m_openHelp);
        return sheet.RunModal(caption, reinterpret_cast<HWND>(parent));
    }

private:
    CFilteringSheet::HelpOpener m_openHelp;
};

}  // namespace Orva::Ui
