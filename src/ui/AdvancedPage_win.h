#pragma once

#include <windows.h>

#include <memory>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/AdvancedPageModel.h"
#include "ui/DialogTexts_win.h"
#include "ui/DigitEdit_win.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"

namespace Orva::Ui {

// The last page of the sheet: how long spam is kept, deleted spam, the notification icon, and
// the delete-now button that acts at once.
class CAdvancedPage final : public CPropertyPage {
public:
    CAdvancedPage(CAdvancedPageModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;
    bool OnApply() override;

    CAdvancedPageModel& m_model;
    PageServices& m_services;
    CDigitEdit m_purgeDays;
    std::unique_ptr<CToolTips> m_tips;
    ZelCommon::Platform::unique_hfont m_headlineFont;
    // Set while the page fills its controls, whose change notices are not the user's.
    bool m_filling = false;
};

}  // namespace Orva::Ui
