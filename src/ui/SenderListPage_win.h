#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/DrawListCtrl_win.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"
#include "ui/SenderPageModel.h"

namespace Orva::Ui {

// The approved- or blocked-sender page: a virtual list view over the model's sorted rows, a
// click on a column header sorting by it, Add, Edit (also a double click) and Remove, and on
// the approved page the AutoApprove box and the contact import.
class CSenderListPage final : public CPropertyPage {
public:
    CSenderListPage(CSenderPageModel& model, PageServices& services);

private:
    bool OnInitDialog() override;
    bool OnCommand(int id, int code, HWND control) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnSetActive() override;
    bool OnApply() override;

    void AddColumns();
    void GiveText(NMLVDISPINFOW& item) const;
    // The list view's selection into the model, before an operation or a new order.
    void TakeSelection();
    // The model's rows and selection into the list view.
    void ShowRows();
    void EnableControls(bool enable);
    void Run(bool (CSenderPageModel::*operation)(ZelCommon::Platform::WindowHandle));
    void TellSheet();

    CSenderPageModel& m_model;
    PageServices& m_services;
    CDrawListCtrl m_list;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

// The two pages are one design with mirrored texts; their model tells them apart.
using CApproveSenderPage = CSenderListPage;
using CBlockSenderPage = CSenderListPage;

}  // namespace Orva::Ui
