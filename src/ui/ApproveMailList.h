#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orva::Ui {

// The box that refuses a malformed ApproveMailList, in the words of the installation tools.
inline constexpr std::wstring_view kMailListErrorCaption = L"Format Error!";
inline constexpr std::wstring_view kMailListErrorText =
    L"In ORVA_OE.INI file,\nThe fomart of AppendMailList is not correct!\n\nPlease Modify";

// The addresses of the installation's ApproveMailList: separated by ";" or ",", blanks around
// each ignored, empty items (two separators in a row, one at an end) skipped. Nothing when any
// item fails the e-mail test: the value is then malformed and none of it is taken.
std::optional<std::vector<std::wstring>> ParseApproveMailList(std::wstring_view value);

}  // namespace Orva::Ui
