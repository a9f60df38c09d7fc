#include "ui/CategoryLevel_win.h"

#include <string>
#include <vector>

#include "ui/ControlTexts.h"
#include "ui/DialogIds.h"
#include "ui/LevelValue.h"

namespace Orva::Ui {

bool CCategoryLevel::OnInitDialog() {
    const std::wstring caption = m_services.strings.LoadShown(L"IDS_CATEGORY_CAPTION");
    if (!caption.empty()) {
        ::SetWindowTextW(Handle(), caption.c_str());
    }
    ApplyControlTexts(Handle(), CategoryLevelTexts(), m_services.strings);
    m_infoIcon = static_cast<HICON>(::LoadImageW(nullptr, IDI_INFORMATION, IMAGE_ICON,
                                                 ::GetSystemMetrics(SM_CXSMICON),
                                                 ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    m_tips = std::make_unique<CToolTips>(Handle());
    std::vector<std::wstring> levelNames;
    for (const std::wstring_view id : LevelNameIds()) {
        levelNames.push_back(m_services.strings.LoadShown(std::wstring(id)));
    }
    size_t row = 0;
    for (const CategoryRow& category : CategoryRows()) {
        const HWND combo = Item(category.comboId);
        for (const std::wstring& name : levelNames) {
            ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
        }
        ::SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(m_positions[row++]), 0);
        ::SendDlgItemMessageW(Handle(), category.iconId, STM_SETICON,
                              reinterpret_cast<WPARAM>(m_infoIcon), 0);
        m_tips->Add(Item(category.iconId),
                    m_services.strings.LoadShown(std::wstring(category.tooltipId)));
    }
    return true;
}

bool CCategoryLevel::OnCommand(int id, int /*code*/, HWND /*control*/) {
    if (id == IDOK) {
        size_t row = 0;
        for (const CategoryRow& category : CategoryRows()) {
            const auto selected = ::SendMessageW(Item(category.comboId), CB_GETCURSEL, 0, 0);
            if (selected >= 0 && selected < kLevelPositions) {
                m_positions[row] = static_cast<int>(selected);
            }
            ++row;
        }
    }
    if (id == IDOK || id == IDCANCEL) {
        ::EndDialog(Handle(), id);
        return true;
    }
    return false;
}

}  // namespace Orva::Ui
