#pragma once

#include <windows.h>

#include <memory>

#include "ui/CategoryLevels.h"
#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"
#include "ui/DialogWindow_win.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// The category levels, one combo box per kind of spam; OK keeps the choice for the page, which
// writes it only on the sheet's OK.
class CCategoryLevel final : public CDialogWindow {
public:
    CCategoryLevel(const CategoryPositions& positions, PageServices& services)
        : CDialogWindow(IDD_CATEGORY_LEVEL), m_positions(positions), m_services(services) {}

    const CategoryPositions& Positions() const { return m_positions; }

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;

    CategoryPositions m_positions;
    PageServices& m_services;
    std::unique_ptr<CToolTips> m_tips;
    HICON m_infoIcon = nullptr;  // shared system icon, never destroyed
};

}  // namespace Orva::Ui
