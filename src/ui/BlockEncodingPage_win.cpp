#include "ui/BlockEncodingPage_win.h"

#include <commctrl.h>

#include <string>
#include <vector>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"

namespace Orva::Ui {
namespace {

// The column leaves room for the vertical scroll bar of a long list.
constexpr int kColumnMargin = 20;
constexpr UINT kCheckedImage = 2;

}  // namespace

CBlockEncodingPage::CBlockEncodingPage(CBlockEncodingPageModel& model, PageServices& services)
    : CPropertyPage(IDD_BLOCK_ENCODING_PAGE), m_model(model), m_services(services) {}

bool CBlockEncodingPage::OnInitDialog() {
    m_filling = true;
    UseWhiteBackground();
    ApplyControlTexts(Handle(), EncodingsPageTexts(), m_services.strings);
    m_headlineFont = SetHeadlineFont(Handle(), {IDC_LIST_TITLE}, m_services.strings,
                                     L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    m_model.Load();
    FillList(Item(IDC_LIST_VIEW));
    m_filling = false;
    return true;
}

void CBlockEncodingPage::FillList(HWND list) {
    m_list.SubclassWindow(list);
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    RECT client{};
    ::GetClientRect(list, &client);
    std::wstring title = m_services.strings.LoadShown(L"IDS_HEADER_ENCODINGS");
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = title.data();
    column.cx = client.right - kColumnMargin;
    ListView_InsertColumn(list, 0, &column);
    const std::vector<EncodingRow> rows = m_model.Rows();
    for (size_t row = 0; row < rows.size(); ++row) {
        std::wstring name = rows[row].name;
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = static_cast<int>(row);
        item.pszText = name.data();
        const int index = ListView_InsertItem(list, &item);
        if (index >= 0) {
            ListView_SetCheckState(list, index, rows[row].blocked);
        }
    }
}

std::optional<INT_PTR> CBlockEncodingPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.idFrom == IDC_LIST_VIEW && header.code == LVN_ITEMCHANGED) {
            OnItemChanged(*reinterpret_cast<const NMLISTVIEW*>(lParam));
            return TRUE;
        }
    }
    return CPropertyPage::OnMessage(message, wParam, lParam);
}

// A click on the check box or the space bar changes the item's state image; the model decides
// whether that changed the group.
void CBlockEncodingPage::OnItemChanged(const NMLISTVIEW& change) {
    if (m_filling || change.iItem < 0 || (change.uChanged & LVIF_STATE) == 0 ||
        ((change.uNewState ^ change.uOldState) & LVIS_STATEIMAGEMASK) == 0) {
        return;
    }
    const UINT image = (change.uNewState & LVIS_STATEIMAGEMASK) >> 12;
    m_model.SetBlocked(static_cast<size_t>(change.iItem), image == kCheckedImage);
}

bool CBlockEncodingPage::OnApply() {
    m_model.Apply();
    return true;
}

}  // namespace Orva::Ui
