#include "ui/FilteringSheet_win.h"

#include <commctrl.h>
#include <prsht.h>

#include <array>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/ResourceModule_win.h"

namespace Orva::Ui {
namespace {

constexpr wchar_t kOwnerClassName[] = L"OrvaFilteringSheetOwner";
constexpr UINT_PTR kSubclassId = 1;
constexpr int kTabItemHeight = 22;

// The sheet being opened on this thread: the sheet's callback carries no pointer of its own.
thread_local CFilteringSheet* t_opening = nullptr;
// The sheet whose keys the message hook watches.
thread_local CFilteringSheet* t_watching = nullptr;

UINT CALLBACK LastPageCallback(HWND, UINT, LPPROPSHEETPAGEW) {
    return TRUE;
}

ButtonBox BoxOf(HWND sheet, HWND button) {
    RECT box{};
    ::GetWindowRect(button, &box);
    ::MapWindowPoints(nullptr, sheet, reinterpret_cast<POINT*>(&box), 2);
    return {box.left, box.top, box.right - box.left, box.bottom - box.top};
}

void MoveTo(HWND button, const ButtonBox& box) {
    ::SetWindowPos(button, nullptr, box.left, box.top, box.width, box.height,
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

CFilteringSheet::CFilteringSheet(CFilteringSheetModel& model, PageServices& services,
                                 HelpOpener openHelp)
    : m_model(model),
      m_services(services),
      m_openHelp(std::move(openHelp)),
      m_spamDetection(model.SpamDetection(), services),
      m_linkFilter(model.LinkFilter(), services),
      m_approved(model.ApprovedSenders(), services),
      m_blocked(model.BlockedSenders(), services),
      m_encodings(model.Encodings(), services),
      m_advanced(model.Advanced(), services) {
    // The pages' list views and the tooltips are common controls.
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES |
                                                        ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    WNDCLASSW ownerClass{};
    ownerClass.lpfnWndProc = &::DefWindowProcW;
    ownerClass.hInstance = ResourceModule();
    ownerClass.lpszClassName = kOwnerClassName;
    m_ownerClass = ::RegisterClassW(&ownerClass);
    m_owner.reset(::CreateWindowExW(0, kOwnerClassName, kFilteringSheetOwnerTitle,
                                    WS_POPUP | WS_SYSMENU, 0, 0, 0, 0, nullptr, nullptr,
                                    ResourceModule(), nullptr));
}

CFilteringSheet::~CFilteringSheet() {
    m_owner.reset();
    if (m_ownerClass != 0) {
        ::UnregisterClassW(kOwnerClassName, ResourceModule());
    }
}

bool CFilteringSheet::RunModal(const std::wstring& caption, HWND parent) {
    constexpr size_t kPages = kSheetPageCount;
    std::array<std::wstring, kPages> titles;
    for (size_t page = 0; page < kPages; ++page) {
        titles[page] = m_services.strings.LoadShown(std::wstring(PageTitleIds()[page]));
    }
    CPropertyPage* const pages[kPages] = {&m_spamDetection, &m_linkFilter, &m_approved,
                                          &m_blocked,       &m_encodings,  &m_advanced};
    std::array<PROPSHEETPAGEW, kPages> descriptions{};
    for (size_t page = 0; page < kPages; ++page) {
        const bool last = page == kPages - 1;
        descriptions[page] =
            pages[page]->Describe(titles[page], PSP_HASHELP | (last ? PSP_USECALLBACK : 0));
        if (last) {
            descriptions[page].pfnCallback = &LastPageCallback;
        }
    }
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof(header);
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_HASHELP | PSH_NOAPPLYNOW | PSH_USECALLBACK;
    header.hwndParent = parent;
    header.hInstance = ResourceModule();
    header.pszCaption = caption.c_str();
    header.nPages = kSheetPageCount;
    header.ppsp = descriptions.data();
    header.pfnCallback = &SheetCallback;

    t_opening = this;
    using ZelCommon::Platform::unique_any;
    const unique_any<HHOOK, &::UnhookWindowsHookEx> hook(
        ::SetWindowsHookExW(WH_GETMESSAGE, &KeyHook, nullptr, ::GetCurrentThreadId()));
    CFilteringSheet* const outer = std::exchange(t_watching, this);
    const INT_PTR result = ::PropertySheetW(&header);
    if (result < 0) {
        m_services.log.LogText(
            L"xxx CFilteringSheet::DoModal() the sheet cannot be shown, error %u",
            ::GetLastError());
    }
    t_watching = outer;
    t_opening = nullptr;
    m_sheet = nullptr;
    return result > 0;
}

int CALLBACK CFilteringSheet::SheetCallback(HWND sheet, UINT message, LPARAM /*lParam*/) {
    if (message == PSCB_INITIALIZED && t_opening != nullptr) {
        t_opening->OnInitialized(sheet);
    }
    return 0;
}

void CFilteringSheet::OnInitialized(HWND sheet) {
    m_sheet = sheet;
    ::SetWindowSubclass(sheet, &SheetProcedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
    const HWND tab = PropSheet_GetTabControl(sheet);
    ::SendMessageW(tab, TCM_SETITEMSIZE, 0, MAKELPARAM(65535, kTabItemHeight));
    PropSheet_SetCurSel(sheet, nullptr, 0);
    m_tabs.SubclassWindow(tab);
    m_tabs.Layout();
    if (const HWND apply = ::GetDlgItem(sheet, IDC_SHEET_APPLY)) {
        ::ShowWindow(apply, SW_HIDE);
    }
    PlaceButtons();
}

void CFilteringSheet::PlaceButtons() {
    const HWND help = ::GetDlgItem(m_sheet, IDC_SHEET_HELP);
    const HWND ok = ::GetDlgItem(m_sheet, IDOK);
    const HWND cancel = ::GetDlgItem(m_sheet, IDCANCEL);
    if (help == nullptr || ok == nullptr || cancel == nullptr) {
        return;
    }
    RECT client{};
    ::GetClientRect(m_sheet, &client);
    const SheetButtons placed = PlaceSheetButtons(
        client.right, {BoxOf(m_sheet, help), BoxOf(m_sheet, ok), BoxOf(m_sheet, cancel)});
    MoveTo(help, placed.help);
    MoveTo(ok, placed.ok);
    MoveTo(cancel, placed.cancel);
    const std::pair<HWND, const wchar_t*> texts[] = {
        {help, L"IDS_HELP"}, {ok, L"IDS_OK"}, {cancel, L"IDS_CANCEL"}};
    for (const auto& [button, id] : texts) {
        const std::wstring text = m_services.strings.LoadShown(id);
        if (!text.empty()) {
            ::SetWindowTextW(button, text.c_str());
        }
    }
}

LRESULT CALLBACK CFilteringSheet::SheetProcedure(HWND sheet, UINT message, WPARAM wParam,
                                                 LPARAM lParam, UINT_PTR /*id*/, DWORD_PTR self) {
    LRESULT result = 0;
    try {
        if (reinterpret_cast<CFilteringSheet*>(self)->OnSheetMessage(message, wParam, lParam,
                                                                     result)) {
            return result;
        }
    } catch (...) {
        // Whatever failed, the sheet's own handling goes on.
    }
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(sheet, &SheetProcedure, kSubclassId);
    }
    return ::DefSubclassProc(sheet, message, wParam, lParam);
}

bool CFilteringSheet::OnSheetMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_COMMAND: {
            const int id = LOWORD(wParam);
            if ((id == IDOK || id == IDCANCEL) && m_services.agent.IsSuiteBusy()) {
                return true;
            }
            if (id == IDC_SHEET_HELP) {
                m_openHelp(HelpTopicOf(TabCtrl_GetCurSel(PropSheet_GetTabControl(m_sheet))));
                return true;
            }
            return false;
        }
        case WM_SYSCOMMAND:
            return (wParam & 0xFFF0) == SC_CLOSE && m_services.agent.IsSuiteBusy();
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            if (item.hwndItem == m_tabs.Handle() && m_tabs.DrawItem(item)) {
                result = TRUE;
                return true;
            }
            return false;
        }
        default:
            return false;
    }
}

LRESULT CALLBACK CFilteringSheet::KeyHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE && t_watching != nullptr) {
        auto& message = *reinterpret_cast<MSG*>(lParam);
        if (t_watching->OnShortcut(message)) {
            message.message = WM_NULL;
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool CFilteringSheet::OnShortcut(const MSG& message) {
    if (m_sheet == nullptr || (message.hwnd != m_sheet && !::IsChild(m_sheet, message.hwnd))) {
        return false;
    }
    // The system keys carry Alt in their context bit; the others only in the key state.
    const bool altDown = (HIWORD(message.lParam) & KF_ALTDOWN) != 0 || ::GetKeyState(VK_MENU) < 0;
    const SheetShortcut shortcut = AltShortcut(message.message, message.wParam, altDown);
    if (shortcut == SheetShortcut::None) {
        return false;
    }
    const int button = shortcut == SheetShortcut::Ok ? IDOK : IDCANCEL;
    ::PostMessageW(m_sheet, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                   reinterpret_cast<LPARAM>(::GetDlgItem(m_sheet, button)));
    return true;
}

}  // namespace Orva::Ui
