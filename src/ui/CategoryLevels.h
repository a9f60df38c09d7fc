#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "settings/SettingsCatalogue.h"

namespace Orva::Ui {

inline constexpr std::size_t kCategoryCount = 7;
// The combo-box position of each category, in CategoryRows() order.
using CategoryPositions = std::array<int, kCategoryCount>;

// One row of the category dialog: the level's key, its combo box, the information icon that
// carries the tooltip, and the tooltip's string id.
struct CategoryRow {
    Settings::SettingId key;
    int comboId;
    int iconId;
    std::wstring_view tooltipId;
};

// The rows as the dialog lists them.
std::span<const CategoryRow> CategoryRows();

}  // namespace Orva::Ui
