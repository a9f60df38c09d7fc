#pragma once

#include <string_view>

namespace Orva::Ui {

// A level is 1, 2 or 3; sliders and combo boxes show it at position 3 - level, so that
// position 0 is level 3.
inline constexpr int kLevelPositions = 3;
inline constexpr int kMiddleLevel = 2;

// A stored value without the blanks around it.
std::wstring_view TrimBlanks(std::wstring_view text);
// A stored level text, blanks trimmed: "1" and "3" are themselves, anything else is 2.
int ReadLevelText(std::wstring_view text);
// A level read as a profile integer: 1 and 3 are themselves, anything else is 2.
int ReadLevelNumber(int value);
int PositionOfLevel(int level);
int LevelOfPosition(int position);
// A position from a control, kept within 0 .. kLevelPositions - 1.
int ClampPosition(int position);

}  // namespace Orva::Ui
