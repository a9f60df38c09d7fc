#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/BlockEncodingPageModel.h"
#include "ui/DrawListCtrl_win.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"

namespace Orva::Ui {

// The blocked-encodings page: one check-box row per group of the encodings file, ticked when
// the group's mail is blocked.
class CBlockEncodingPage final : public CPropertyPage {
public:
    CBlockEncodingPage(CBlockEncodingPageModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnApply() override;

    void FillList(HWND list);
    void OnItemChanged(const NMLISTVIEW& change);

    CBlockEncodingPageModel& m_model;
    PageServices& m_services;
    CDrawListCtrl m_list;
    ZelCommon::Platform::unique_hfont m_headlineFont;
    // Set while the page fills the list, whose change notices are not the user's.
    bool m_filling = false;
};

}  // namespace Orva::Ui
