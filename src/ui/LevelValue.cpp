#include "ui/LevelValue.h"

#include <algorithm>

namespace Orva::Ui {
std::wstring_view TrimBlanks(std::wstring_view text) {
    constexpr std::wstring_view kBlanks = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

int ReadLevelText(std::wstring_view text) {
    const std::wstring_view level = TrimBlanks(text);
    if (level == L"1") {
        return 1;
    }
    if (level == L"3") {
        return 3;
    }
    return kMiddleLevel;
}

int ReadLevelNumber(int value) {
    return value == 1 || value == 3 ? value : kMiddleLevel;
}

int PositionOfLevel(int level) {
    return kLevelPositions - level;
}

int LevelOfPosition(int position) {
    return kLevelPositions - position;
}

int ClampPosition(int position) {
    return std::clamp(position, 0, kLevelPositions - 1);
}

}  // namespace Orva::Ui
