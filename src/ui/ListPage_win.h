#pragma once

#include <windows.h>

#include <span>
#include <string_view>

#include "common_src/platform/UniqueAny_win.h"
#include "ui/ControlTexts.h"
#include "ui/DrawListCtrl_win.h"
#include "ui/PageServices.h"
#include "ui/PropertyPage_win.h"

namespace Orva::Ui {

// A page of the sheet around one list view: the approved and blocked senders. For now it shows
// its headline, its note and the list's drawn columns.
class CListPage final : public CPropertyPage {
public:
    CListPage(int templateId, std::span<const ControlText> texts,
              std::span<const std::wstring_view> columnIds, PageServices& services)
        : CPropertyPage(templateId), m_texts(texts), m_columnIds(columnIds), m_services(services) {}

private:
    bool OnInitDialog() override;

    std::span<const ControlText> m_texts;
    std::span<const std::wstring_view> m_columnIds;
    PageServices& m_services;
    CDrawListCtrl m_list;
    ZelCommon::Platform::unique_hfont m_headlineFont;
};

}  // namespace Orva::Ui
