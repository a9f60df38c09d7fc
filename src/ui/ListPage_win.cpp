#include "ui/ListPage_win.h"

#include <commctrl.h>

#include <string>

#include "ui/DialogIds.h"
#include "ui/DialogTexts_win.h"
#include "ui/Headline.h"

namespace Orva::Ui {

bool CListPage::OnInitDialog() {
    UseWhiteBackground();
    ApplyControlTexts(Handle(), m_texts, m_services.strings);
    const FontSpec font =
        HeadlineFont(m_services.strings, L"IDS_ORVA_SYSTEM_FONT", L"IDS_INTERMEDIATE_FONT_SIZE");
    m_headlineFont = CreateHeadlineFont(Handle(), font.face, font.points);
    ::SendDlgItemMessageW(Handle(), IDC_LIST_TITLE, WM_SETFONT,
                          reinterpret_cast<WPARAM>(m_headlineFont.get()), FALSE);
    const HWND list = Item(IDC_LIST_VIEW);
    m_list.SubclassWindow(list);
    RECT client{};
    ::GetClientRect(list, &client);
    const int count = static_cast<int>(m_columnIds.size());
    // The first column takes what the others leave; the others share a third of the width.
    const int other = count > 1 ? (client.right / 3) / (count - 1) : 0;
    for (int column = 0; column < count; ++column) {
        const auto index = static_cast<size_t>(column);
        std::wstring title = m_services.strings.LoadShown(std::wstring(m_columnIds[index]));
        LVCOLUMNW description{};
        description.mask = LVCF_TEXT | LVCF_WIDTH;
        description.pszText = title.data();
        description.cx = column == 0 ? client.right - other * (count - 1) : other;
        ::SendMessageW(list, LVM_INSERTCOLUMNW, index, reinterpret_cast<LPARAM>(&description));
    }
    return true;
}

}  // namespace Orva::Ui
