#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/AdvancedPage_win.h"
#include "ui/BlockEncodingPage_win.h"
#include "ui/DrawTabCtrl_win.h"
#include "ui/FilteringSheetModel.h"
#include "ui/LinkFilterPage_win.h"
#include "ui/PageServices.h"
#include "ui/SenderListPage_win.h"
#include "ui/SpamDetectionPage_win.h"

namespace Orva::Ui {

// The title by which other parts of the product find an open filtering sheet.
inline constexpr wchar_t kFilteringSheetOwnerTitle[] = L"{4E1A8C65-1A1D-45c3-80DE-A4A3C25341AC}";

// The filtering sheet: six pages over the sheet's model, no Apply button, a help topic per
// page, OK and Cancel on the right with the user's texts, Alt+O and Alt+C, and OK, Cancel and
// Close ignored while the security suite is busy. One modal run per object.
class CFilteringSheet {
public:
    using HelpOpener = std::function<void(std::wstring_view topic)>;

    CFilteringSheet(CFilteringSheetModel& model, PageServices& services, HelpOpener openHelp);
    ~CFilteringSheet();
    CFilteringSheet(const CFilteringSheet&) = delete;
    CFilteringSheet& operator=(const CFilteringSheet&) = delete;

    // Runs the sheet modally over `parent`; true when it ended with OK.
    bool RunModal(const std::wstring& caption, HWND parent);
    // The sheet's window while it runs.
    HWND Handle() const { return m_sheet; }

private:
    static int CALLBACK SheetCallback(HWND sheet, UINT message, LPARAM lParam);
    static LRESULT CALLBACK SheetProcedure(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR id, DWORD_PTR self);
    static LRESULT CALLBACK KeyHook(int code, WPARAM wParam, LPARAM lParam);

    void OnInitialized(HWND sheet);
    void PlaceButtons();
    // True when the message was the sheet's and is handled here.
    bool OnSheetMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    bool OnShortcut(const MSG& message);

    CFilteringSheetModel& m_model;
    PageServices& m_services;
    HelpOpener m_openHelp;
    CSpamDetectionPage m_spamDetection;
    CLinkFilter m_linkFilter;
    CApproveSenderPage m_approved;
    CBlockSenderPage m_blocked;
    CBlockEncodingPage m_encodings;
    CAdvancedPage m_advanced;
    CDrawTabCtrl m_tabs;
    ATOM m_ownerClass = 0;
    ZelCommon::Platform::unique_hwnd m_owner;
    HWND m_sheet = nullptr;
};

}  // namespace Orva::Ui
