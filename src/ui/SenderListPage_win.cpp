#include "ui/SenderListPage_win.h"

#include <prsht.h>

#include <algorithm>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {
namespace {

// The address column takes what the name column and a vertical scroll bar leave.
constexpr int kNameShare = 3;
constexpr int kScrollBarRoom = 20;

int TemplateOf(const CSenderPageModel& model) {
    return model.Kind().list == Lists::SenderList::Approved ? IDD_APPROVE_SENDER_PAGE
                                                            : IDD_BLOCK_SENDER_PAGE;
}

// Clearing all rows at once goes through every one of them, a notice each, which takes seconds
// in a full list: only the selected ones are cleared.
void ClearSelection(HWND list) {
    for (int row = ListView_GetNextItem(list, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(list, row, LVNI_SELECTED)) {
        ListView_SetItemState(list, row, 0, LVIS_SELECTED);
    }
}

// The header's arrow on the column the rows are sorted by, pointing the way they run.
void MarkSortColumn(HWND list, const CSenderRows& rows) {
    const HWND header = ListView_GetHeader(list);
    const int sorted = rows.Column() == SortColumn::Address ? 0 : 1;
    for (int column = 0; column < Header_GetItemCount(header); ++column) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        Header_GetItem(header, column, &item);
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (column == sorted) {
            item.fmt |= rows.Ascending() ? HDF_SORTUP : HDF_SORTDOWN;
        }
        Header_SetItem(header, column, &item);
    }
}

}  // namespace

CSenderListPage::CSenderListPage(CSenderPageModel& model, PageServices& services)
    : CPropertyPage(TemplateOf(model)), m_model(model), m_services(services) {}

bool CSenderListPage::OnInitDialog() {
    UseWhiteBackground();
    const bool approved = m_model.Kind().approvedExtras;
    ApplyControlTexts(Handle(), approved ? ApprovedPageTexts() : BlockedPageTexts(),
                      m_services.strings);
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_LIST_TITLE}, m_services.strings,
                                     L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    m_list.SubclassWindow(Item(IDC_LIST_VIEW));
    AddColumns();
    m_model.Load(reinterpret_cast<uintptr_t>(Handle()));
    ::SetDlgItemTextW(Handle(), IDC_LIST_TITLE, m_model.Title().c_str());
    ::SetDlgItemTextW(Handle(), IDC_LIST_NOTE, m_model.Note().c_str());
    if (approved) {
        SetChecked(IDC_CHECK_AUTO_APPROVE, m_model.AutoApprove());
    }
    EnableControls(true);
    ShowRows();
    // The installation's addresses may have changed the list already.
    if (m_model.Modified()) {
        TellSheet();
    }
    return true;
}

void CSenderListPage::AddColumns() {
    const HWND list = Item(IDC_LIST_VIEW);
    RECT client{};
    ::GetClientRect(list, &client);
    const int nameWidth = client.right / kNameShare;
    const std::pair<const wchar_t*, int> columns[] = {
        {L"IDS_HEADER_ADDR", client.right - nameWidth - kScrollBarRoom},
        {L"IDS_HEADER_SENDERNAME", nameWidth}};
    int index = 0;
    for (const auto& [id, width] : columns) {
        std::wstring title = m_services.strings.LoadShown(id);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = title.data();
        column.cx = width;
        ListView_InsertColumn(list, index++, &column);
    }
}

void CSenderListPage::EnableControls(bool enable) {
    const bool editable = enable && !m_model.ReadOnly();
    ::EnableWindow(Item(IDC_LIST_VIEW), enable);
    for (const int id : {IDC_BUTTON_ADD_SENDER, IDC_BUTTON_EDIT_SENDER, IDC_BUTTON_REMOVE_SENDER}) {
        ::EnableWindow(Item(id), editable);
    }
    if (m_model.Kind().approvedExtras) {
        ::EnableWindow(Item(IDC_CHECK_AUTO_APPROVE), enable);
        ::EnableWindow(Item(IDC_BUTTON_IMPORT_CONTACTS), enable && m_model.CanImport());
    }
}

void CSenderListPage::TakeSelection() {
    const HWND list = Item(IDC_LIST_VIEW);
    std::vector<size_t> rows;
    for (int row = ListView_GetNextItem(list, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(list, row, LVNI_SELECTED)) {
        rows.push_back(static_cast<size_t>(row));
    }
    m_model.Rows().Select(rows);
}

void CSenderListPage::ShowRows() {
    const HWND list = Item(IDC_LIST_VIEW);
    const CSenderRows& rows = m_model.Rows();
    ListView_SetItemCountEx(list, static_cast<int>(rows.Count()), LVSICF_NOSCROLL);
    MarkSortColumn(list, rows);
    ClearSelection(list);
    const std::vector<size_t> selected = rows.SelectedRows();
    for (const size_t row : selected) {
        ListView_SetItemState(list, static_cast<int>(row), LVIS_SELECTED, LVIS_SELECTED);
    }
    if (!selected.empty()) {
        const int first = static_cast<int>(selected.front());
        ListView_SetItemState(list, first, LVIS_FOCUSED, LVIS_FOCUSED);
        ListView_EnsureVisible(list, first, FALSE);
    }
    ::InvalidateRect(list, nullptr, TRUE);
}

void CSenderListPage::GiveText(NMLVDISPINFOW& item) const {
    const auto row = static_cast<size_t>(item.item.iItem);
    if ((item.item.mask & LVIF_TEXT) == 0 || item.item.cchTextMax <= 0 ||
        row >= m_model.Rows().Count()) {
        return;
    }
    const Lists::SenderEntry& entry = m_model.Rows().At(row);
    const std::wstring& text = item.item.iSubItem == 0 ? entry.address : entry.name;
    const size_t room = static_cast<size_t>(item.item.cchTextMax) - 1;
    const size_t length = std::min(text.size(), room);
    text.copy(item.item.pszText, length);
    item.item.pszText[length] = L'\0';
}

std::optional<INT_PTR> CSenderListPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.idFrom == IDC_LIST_VIEW) {
            switch (header.code) {
                case LVN_GETDISPINFOW:
                    GiveText(*reinterpret_cast<NMLVDISPINFOW*>(lParam));
                    return TRUE;
                case LVN_COLUMNCLICK: {
                    const auto& click = *reinterpret_cast<const NMLISTVIEW*>(lParam);
                    TakeSelection();
                    m_model.Rows().SortBy(click.iSubItem == 0 ? SortColumn::Address
                                                              : SortColumn::Name);
                    ShowRows();
                    return TRUE;
                }
                case NM_DBLCLK: {
                    // The row under the pointer is the one edited, whatever else was selected.
                    const int row = reinterpret_cast<const NMITEMACTIVATE*>(lParam)->iItem;
                    if (row >= 0) {
                        ClearSelection(header.hwndFrom);
                        ListView_SetItemState(header.hwndFrom, row, LVIS_SELECTED, LVIS_SELECTED);
                        Run(&CSenderPageModel::Edit);
                    }
                    return TRUE;
                }
                default:
                    break;
            }
        }
    }
    return CPropertyPage::OnMessage(message, wParam, lParam);
}

bool CSenderListPage::OnCommand(int id, int code, HWND /*control*/) {
    if (code != BN_CLICKED) {
        return false;
    }
    switch (id) {
        case IDC_BUTTON_ADD_SENDER:
            Run(&CSenderPageModel::Add);
            return true;
        case IDC_BUTTON_EDIT_SENDER:
            Run(&CSenderPageModel::Edit);
            return true;
        case IDC_BUTTON_REMOVE_SENDER:
            Run(&CSenderPageModel::Remove);
            return true;
        case IDC_BUTTON_IMPORT_CONTACTS:
            // The import runs modally on the files; the page waits for it.
            EnableControls(false);
            Run(&CSenderPageModel::Import);
            EnableControls(true);
            return true;
        case IDC_CHECK_AUTO_APPROVE:
            m_model.SetAutoApprove(IsChecked(IDC_CHECK_AUTO_APPROVE));
            TellSheet();
            return true;
        default:
            return false;
    }
}

void CSenderListPage::Run(bool (CSenderPageModel::*operation)(ZelCommon::Platform::WindowHandle)) {
    TakeSelection();
    if ((m_model.*operation)(reinterpret_cast<uintptr_t>(Handle()))) {
        ShowRows();
        TellSheet();
    }
}

void CSenderListPage::TellSheet() {
    if (m_model.Modified()) {
        PropSheet_Changed(::GetParent(Handle()), Handle());
    }
}

// The other page may have moved addresses between the lists, or the import read them again.
void CSenderListPage::OnSetActive() {
    if (!m_model.Loaded()) {
        return;
    }
    TakeSelection();
    m_model.Refresh();
    ShowRows();
}

bool CSenderListPage::OnApply() {
    m_model.Apply();
    return true;
}

}  // namespace Orva::Ui
