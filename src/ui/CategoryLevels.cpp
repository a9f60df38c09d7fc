#include "ui/CategoryLevels.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

// clang-format off
constexpr std::array<CategoryRow, kCategoryCount> kRows{{
    {SettingId::SexualLevel,     6051, 6078, L"IDS_TOOLTIP_ADULT"},
    {SettingId::CommercialLevel, 6052, 6079, L"IDS_TOOLTIP_COMMERCIAL"},
    {SettingId::FinancialLevel,  6053, 6080, L"IDS_TOOLTIP_FINANCIAL"},
    {SettingId::HealthLevel,     6055, 6081, L"IDS_TOOLTIP_HEALTH"},
    {SettingId::OtherLevel,      6057, 6082, L"IDS_TOOLTIP_OTHER"},
    {SettingId::RacialLevel,     6056, 6083, L"IDS_TOOLTIP_RACIAL"},
    {SettingId::SpiritualLevel,  6054, 6084, L"IDS_TOOLTIP_SPIRITUAL"},
}};
// clang-format on

}  // namespace

std::span<const CategoryRow> CategoryRows() {
    return kRows;
}

}  // namespace Orva::Ui
